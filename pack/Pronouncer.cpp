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
#include <set>
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

/// Whether a line tells of a word by itself in sentences: its phrase is the word.
bool isDefault(const PronunciationRule& rule) {
  return lower(rule.phrase) == lower(rule.word);
}

bool isStressed(const Phones& phones) {
  return std::ranges::any_of(phones, [](const std::string& phone) { return phone.ends_with('1'); });
}

std::set<Phones> lexiconWays(const std::string& word) {
  std::set<Phones> ways;
  for (const char each : lexiconClasses)
    ways.insert(lexiconPhones(word, each));
  return ways;
}

/// Whether the classes of a word are said in several ways, each with a stress: "to" is only weak or
/// not.
bool lexiconHasSeveral(const std::string& word) {
  const auto ways = lexiconWays(word);
  return ways.size() > 1 && std::ranges::all_of(ways, isStressed);
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

/// Whether a phrase with the word at a place stands around it.
bool standsAround(const std::vector<std::string>& phrase, const std::vector<std::string>& words,
                  std::size_t at) {
  for (std::size_t ahead = 0; ahead < phrase.size() && ahead <= at; ++ahead) {
    if (phrase[ahead] != words[at] || at - ahead + phrase.size() > words.size()) continue;
    if (std::equal(phrase.begin(), phrase.end(), words.begin() + static_cast<long>(at - ahead)))
      return true;
  }
  return false;
}

/// A correction of a word wherever it stands. The voice names the letters of some words and looks
/// others up without their apostrophe: they need a spelling of their own, as words of a phrase get.
SpokenCorrection everywhere(const std::string& word, const Phones& phones) {
  if (isSpelledOut(word) || word.find('\'') != std::string::npos)
    return {SpokenWhere::Within, word, joined(phones), {word}};
  return {SpokenWhere::Everywhere, word, joined(phones)};
}

} // namespace

Pronouncer::Pronouncer(std::vector<PronunciationRule> rules) : rules_(std::move(rules)) {
  for (const PronunciationRule& rule : rules_) {
    auto& kind = rule.phrase.empty() ? byWord_ : withinPhrases_;
    auto& ofWord = kind[lower(rule.word)];
    // What a word is by itself in sentences gives way to every other phrase, wherever it stands.
    ofWord.insert(isDefault(rule) ? ofWord.begin() : ofWord.end(), &rule);
  }
}

bool Pronouncer::isSaidInSeveralWays(const std::string& word) const {
  if (withinPhrases_.contains(word)) return true;
  const auto found = byWord_.find(word);
  if (found == byWord_.end()) return lexiconHasSeveral(word);
  std::set<Phones> ways;
  for (const PronunciationRule* rule : found->second)
    if (rule->wordClass && !rule->phones.empty()) ways.insert(rule->phones);
  const bool everywhere = ruleEverywhere(word) != nullptr;
  return ways.size() > 1 || (!everywhere && lexiconHasSeveral(word));
}

Phones Pronouncer::phonesWithin(const std::vector<std::string>& words, std::size_t at) const {
  const auto within = withinPhrases_.find(words.at(at));
  // A later line goes before an earlier one.
  if (within != withinPhrases_.end()) {
    const auto& rules = within->second;
    const auto rule =
        std::find_if(rules.rbegin(), rules.rend(), [&](const PronunciationRule* each) {
          return standsAround(spokenWordsOf(each->phrase), words, at);
        });
    if (rule != rules.rend()) return (*rule)->phones;
  }
  const PronunciationRule* rule = ruleEverywhere(words[at]);
  return rule != nullptr ? rule->phones : Phones{};
}

const PronunciationRule* Pronouncer::ruleEverywhere(const std::string& word) const {
  const auto found = byWord_.find(word);
  if (found == byWord_.end()) return nullptr;
  const auto rule = std::ranges::find_if(found->second, [](const PronunciationRule* each) {
    return !each->wordClass && !each->phones.empty();
  });
  return rule == found->second.end() ? nullptr : *rule;
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
  if (word.find('-') != std::string::npos) {
    Phones phones;
    for (const std::string& part : partsOf(word))
      for (std::string& phone : phonesOfWord(part, wordClass))
        phones.push_back(std::move(phone));
    return phones;
  }
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
  const PronunciationRule* sounds = ruleFor(std::string(head), wordClass, Gives::Sounds);
  if (sounds != nullptr && sounds->parts.size() > 1) return phoneticOf(sounds->phones, head);
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

// They go ahead of what holds for a word alone and within phrases, since later ones go before.
std::vector<SpokenCorrection> Pronouncer::defaultsInSentences() const {
  std::vector<SpokenCorrection> corrections;
  for (const PronunciationRule& rule : rules_) {
    const std::string word = lower(rule.word);
    if (isDefault(rule))
      corrections.push_back({SpokenWhere::Within, word, joined(rule.phones), {word}});
  }
  return corrections;
}

// The voice takes the parts of a word with a hyphen for words.
void Pronouncer::addParts(std::vector<SpokenCorrection>& corrections,
                          const PronunciationRule& rule) {
  const auto words = spokenWordsOf(rule.word);
  for (std::size_t at = 0; at < words.size(); ++at)
    corrections.push_back({SpokenWhere::Within, words[at], joined(rule.parts[at]), words});
}

Pronunciations Pronouncer::correctionsFor(const std::vector<OwnEntry>& entries,
                                          const std::vector<SpokenForm>& forms) const {
  std::vector<SpokenCorrection> corrections = defaultsInSentences();
  std::unordered_set<std::string> heads;
  for (const OwnEntry& entry : entries) {
    const std::string word = lower(utf8Of(entry.head));
    if (entry.block.senses.empty() || spokenWordsOf(word) != std::vector{word}) continue;
    if (!heads.insert(word).second) continue;
    const WordClass wordClass = entry.block.senses.front().wordClass;
    const PronunciationRule* rule = ruleFor(entry.head, wordClass, Gives::Sounds);
    const bool ruled = rule != nullptr && rule->wordClass;
    if (!ruled && lexiconWays(word).size() < 2) continue;
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
    if (rule.phones.empty() || (rule.wordClass && heads.contains(word)) || isDefault(rule))
      continue;
    if (rule.parts.size() > 1) {
      addParts(corrections, rule);
      continue;
    }
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
