// Look-ups in the voice's lexicon.
#include "pack/Pronouncer.h"

#include "pack/Lexicon.h"
#include "pack/StreamText.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <unordered_set>
#include <utility>

namespace talvora::pack {

namespace {

/// The letters by which the lexicon tells classes apart.
constexpr std::array<char, 5> lexiconClasses = {'0', 'n', 'v', 'j', 'r'};

char lexiconClass(WordClass wordClass) {
  switch (wordClass) {
  case WordClass::Noun:
    return lexiconClasses[1];
  case WordClass::Verb:
  case WordClass::Modal:
    return lexiconClasses[2];
  case WordClass::Adjective:
    return lexiconClasses[3];
  case WordClass::Adverb:
    return lexiconClasses[4];
  default:
    return lexiconClasses[0];
  }
}

bool isSaidInSeveralWays(const std::string& word) {
  const Phones first = lexiconPhones(word, lexiconClasses[0]);
  return std::any_of(lexiconClasses.begin(), lexiconClasses.end(),
                     [&](char each) { return lexiconPhones(word, each) != first; });
}

bool isAbbreviation(std::string_view word) {
  return word.size() > 1 && std::all_of(word.begin(), word.end(),
                                        [](char letter) { return letter >= 'A' && letter <= 'Z'; });
}

/// What stands for a whole word behind an apostrophe.
struct ShortEnding {
  std::string_view spelling;
  std::string_view phones;
};

constexpr std::array<ShortEnding, 4> shortEndings = {
    {{"'d", "d"}, {"'ll", "l"}, {"'m", "m"}, {"'ve", "v"}}};

/// The names of the letters, a to z.
constexpr std::array<std::string_view, 26> letterNames = {"ey1",
                                                          "b iy1",
                                                          "s iy1",
                                                          "d iy1",
                                                          "iy1",
                                                          "eh1 f",
                                                          "jh iy1",
                                                          "ey1 ch",
                                                          "ay1",
                                                          "jh ey1",
                                                          "k ey1",
                                                          "eh1 l",
                                                          "eh1 m",
                                                          "eh1 n",
                                                          "ow1",
                                                          "p iy1",
                                                          "k y uw1",
                                                          "aa1 r",
                                                          "eh1 s",
                                                          "t iy1",
                                                          "y uw1",
                                                          "v iy1",
                                                          "d ah1 b ax0 l y uw0",
                                                          "eh1 k s",
                                                          "w ay1",
                                                          "z iy1"};

/// The words of a head word; hyphens part them as blanks do, stops are not said.
std::vector<std::string> partsOf(std::string_view head) {
  std::string plain(head);
  std::replace(plain.begin(), plain.end(), '-', ' ');
  std::erase(plain, '.');
  auto parts = split(plain, ' ');
  std::erase(parts, "");
  return parts;
}

std::string joined(const Phones& phones) {
  std::string text;
  for (const std::string& phone : phones)
    text += (text.empty() ? "" : " ") + phone;
  return text;
}

/// A correction of a word wherever it stands. The voice names the letters of some words and looks
/// others up without their apostrophe: they need a spelling of their own, as words of a phrase get.
SpokenCorrection everywhere(const std::string& word, const Phones& phones) {
  if (isSpelledOut(word) || word.find('\'') != std::string::npos)
    return {SpokenWhere::Within, word, joined(phones), {word}};
  return {SpokenWhere::Everywhere, word, joined(phones)};
}

bool isStressed(const Phones& phones) {
  return std::ranges::any_of(phones, [](const std::string& phone) { return phone.ends_with('1'); });
}

} // namespace

Pronouncer::Pronouncer(std::vector<PronunciationRule> rules) : rules_(std::move(rules)) {
  for (const PronunciationRule& rule : rules_) {
    if (rule.phrase.empty()) byWord_[lower(rule.word)].push_back(&rule);
  }
}

// A rule for the class goes before one for all.
const PronunciationRule* Pronouncer::ruleFor(const std::string& word, WordClass wordClass,
                                             Gives gives) const {
  const auto found = byWord_.find(lower(word));
  if (found == byWord_.end()) return nullptr;
  const PronunciationRule* general = nullptr;
  for (const PronunciationRule* rule : found->second) {
    if (rule->shown.empty() != (gives == Gives::Sounds)) continue;
    if (rule->wordClass == wordClass) return rule;
    if (!rule->wordClass) general = rule;
  }
  return general;
}

Phones Pronouncer::phonesOfWord(const std::string& word, WordClass wordClass) const {
  const PronunciationRule* rule = ruleFor(word, wordClass, Gives::Sounds);
  if (rule != nullptr) return rule->phones;
  for (const ShortEnding& ending : shortEndings) {
    if (!word.ends_with(ending.spelling) || word.size() == ending.spelling.size()) continue;
    Phones phones = phonesOfWord(word.substr(0, word.size() - ending.spelling.size()), wordClass);
    for (std::string& phone : phonesOf(ending.phones))
      phones.push_back(std::move(phone));
    return phones;
  }
  if (!isAbbreviation(word)) return lexiconPhones(lower(word), lexiconClass(wordClass));
  Phones phones;
  for (const char letter : word) {
    for (std::string& phone : phonesOf(letterNames.at(static_cast<std::size_t>(letter - 'A'))))
      phones.push_back(std::move(phone));
  }
  return phones;
}

std::string Pronouncer::shownOf(std::string_view head, WordClass wordClass) const {
  const PronunciationRule* whole = ruleFor(std::string(head), wordClass, Gives::Notation);
  if (whole != nullptr) return whole->shown;
  std::string shown;
  for (const std::string& part : partsOf(head)) {
    const PronunciationRule* rule = ruleFor(part, wordClass, Gives::Notation);
    const Phones phones = phonesOfWord(part, wordClass);
    const bool given = rule != nullptr;
    if (!given && !faultOf(phones).empty()) return {};
    const std::string notation = given ? rule->shown : phoneticOf(phones, part);
    shown += (shown.empty() ? "" : " ") + notation.substr(1, notation.size() - 2);
  }
  return shown.empty() ? shown : "/" + shown + "/";
}

void Pronouncer::pronounce(std::vector<OwnEntry>& entries) const {
  for (OwnEntry& entry : entries) {
    EntryBlock& block = entry.block;
    if (block.senses.empty()) continue;
    const std::string head = utf8Of(entry.head);
    const std::string first = shownOf(head, block.senses.front().wordClass);
    block.pronunciation = ownText(first);
    WordClass before = block.senses.front().wordClass;
    for (Sense& sense : block.senses) {
      if (sense.wordClass == before) continue;
      before = sense.wordClass;
      const std::string shown = shownOf(head, sense.wordClass);
      if (shown != first) sense.pronunciation = ownText(shown);
    }
  }
}

// Where a form belongs to two words that are said differently, the voice's guess stays.
void Pronouncer::addForms(std::vector<SpokenCorrection>& corrections,
                          const std::vector<SpokenForm>& forms) const {
  std::map<std::string, Phones> said;
  std::unordered_set<std::string> unclear;
  for (const SpokenForm& form : forms) {
    if (byWord_.contains(form.text) || lexiconHas(form.text)) continue;
    Phones phones = withEnding(phonesOfWord(form.base, form.wordClass), form.ending);
    const auto [place, isNew] = said.emplace(form.text, phones);
    if (!isNew && place->second != phones) unclear.insert(form.text);
  }
  for (const auto& [word, phones] : said) {
    const bool guessedRight = lexiconPhones(word, lexiconClasses[0]) == phones;
    if (!guessedRight && !unclear.contains(word) && isStressed(phones) && faultOf(phones).empty())
      corrections.push_back(everywhere(word, phones));
  }
}

Pronunciations Pronouncer::correctionsFor(const std::vector<OwnEntry>& entries,
                                          const std::vector<SpokenForm>& forms) const {
  std::vector<SpokenCorrection> corrections;
  std::unordered_set<std::string> heads;
  for (const OwnEntry& entry : entries) {
    const std::string word = lower(utf8Of(entry.head));
    if (entry.block.senses.empty() || spokenWordsOf(word) != std::vector{word}) continue;
    if (!heads.insert(word).second) continue;
    const WordClass wordClass = entry.block.senses.front().wordClass;
    const PronunciationRule* rule = ruleFor(entry.head, wordClass, Gives::Sounds);
    const bool ruled = rule != nullptr && rule->wordClass;
    if (!ruled && !isSaidInSeveralWays(word)) continue;
    // Small words without a stress of their own ("to", "in") are said well alone as it is.
    const Phones phones = phonesOfWord(entry.head, wordClass);
    if (isStressed(phones)) corrections.push_back({SpokenWhere::Alone, word, joined(phones)});
  }
  std::vector<SpokenForm> others;
  std::ranges::copy_if(forms, std::back_inserter(others), [&heads](const SpokenForm& form) {
    return !heads.contains(form.text); // "sometimes" is a head word too
  });
  addForms(corrections, others);
  for (const PronunciationRule& rule : rules_) {
    const std::string word = lower(rule.word);
    if (rule.phones.empty() || (rule.wordClass && heads.contains(word))) continue;
    if (!rule.phrase.empty())
      corrections.push_back(
          {SpokenWhere::Within, word, joined(rule.phones), spokenWordsOf(rule.phrase)});
    else if (rule.wordClass)
      corrections.push_back({SpokenWhere::Alone, word, joined(rule.phones)});
    else
      corrections.push_back(everywhere(word, rule.phones));
  }
  return Pronunciations(std::move(corrections));
}

} // namespace talvora::pack
