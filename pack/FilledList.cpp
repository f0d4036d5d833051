// The steps in which the word list is filled.
#include "pack/FilledList.h"

#include "pack/Message.h"

#include "pack/BuiltWords.h"
#include "pack/Derivation.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <algorithm>

namespace talvora::pack {

namespace {

constexpr std::size_t mostOrigins = 2;

constexpr ClassSet inflected{WordClass::Noun, WordClass::Verb, WordClass::Modal,
                             WordClass::Adjective, WordClass::Adverb};

bool isSingleWord(std::string_view head) {
  return head.find_first_of(" -'") == std::string_view::npos;
}

bool hasCapital(std::string_view head) {
  return std::any_of(head.begin(), head.end(),
                     [](char character) { return character >= 'A' && character <= 'Z'; });
}

ClassSet classesOf(const std::vector<Sense>& senses) {
  ClassSet classes;
  for (const Sense& sense : senses)
    classes.add(sense.wordClass);
  return classes;
}

/// Classes that a form takes part in when words are built from it: participles describe.
ClassSet classesOf(const Form& form) {
  const bool participle = std::any_of(form.kinds.begin(), form.kinds.end(), [](FormKind kind) {
    return kind != FormKind::Present && kind != FormKind::Plural && kind != FormKind::ThirdPerson &&
           kind != FormKind::Comparative && kind != FormKind::Superlative;
  });
  return participle ? ClassSet{WordClass::Adjective} : ClassSet{};
}

/// A word that waits for its turn, with the word it comes from.
struct Candidate {
  std::string head;
  Origin origin;
  ClassSet classes = {};
};

class Filler {
 public:
  Filler(const WordSources& sources, std::size_t limit, Problems& problems)
      : sources_(sources), problems_(problems), list_(limit),
        inflections_(sources.own, sources.wordNet, sources.known) {}

  void addOwn() {
    addLetters();
    for (const OwnEntry& entry : sources_.own)
      addOwnEntry(entry);
    addForms(0, WordKind::OwnForm);
  }

  void addEverythingElse() {
    const std::size_t firstNew = list_.size();
    for (const WordNetWord& word : sources_.wordNet.words)
      addWordNet(word);
    addForms(firstNew, WordKind::Form);
    addPhraseForms();
    addBuiltWords();
    addBuiltWords();
    addPhrasePlurals();
    addPossessives();
    addPhrasePossessives();
  }

  [[nodiscard]] WordList takeList() { return std::move(list_); }

 private:
  void addLetters() {
    const std::string before = ownText("chữ cái thứ ");
    const std::string behind = ownText(" của bảng chữ cái tiếng Anh");
    for (char letter = 'a'; letter <= 'z'; ++letter) {
      Word word{std::string(1, letter), WordKind::Letter, {}, {}, {}};
      word.note = before;
      word.note += std::to_string(letter - 'a' + 1) + behind;
      list_.add(std::move(word));
    }
  }

  // A head word of one letter has the line that opens the letter's section as its own.
  void addOwnEntry(const OwnEntry& entry) {
    const auto taken =
        list_.find(ChuanHoaTu(entry.head.size() == 1 ? lower(entry.head) : entry.head));
    const bool joins = taken && (list_.at(*taken).kind == WordKind::Letter || isSecond(entry));
    const ClassSet classes = classesOf(entry.block.senses);
    const Order order = entry.formsFirst ? Order::OriginsFirst : Order::OwnFirst;
    if (joins) {
      Word& word = list_.at(*taken);
      word.blocks.push_back(entry.block);
      if (word.kind == WordKind::Own) word.classes.add(classes);
      return;
    }
    if (list_.add({entry.head, WordKind::Own, classes, {entry.block}, {}, order})) return;
    problems_.add(entry.where, list_.full() ? said("the word list has no more room for this word")
                                            : said("this word has a place in the list already"));
  }

  /// True for the second of two words of one spelling, which stand one behind the other.
  [[nodiscard]] bool isSecond(const OwnEntry& entry) const {
    return &entry != sources_.own.data() && std::prev(&entry)->head == entry.head;
  }

  /// Adds the forms of all single words from a number on.
  void addForms(std::size_t from, WordKind kind) {
    const std::size_t end = list_.size();
    for (std::size_t base = from; base < end && !list_.full(); ++base) {
      if (!isSingleWord(list_.at(base).head)) continue;
      // "Many" has forms of its own, though no other determiner has.
      const bool own = list_.at(base).kind == WordKind::Own;
      if (!own && !list_.at(base).classes.meets(inflected)) continue;
      const std::string head = list_.at(base).head;
      for (const Form& form : inflections_.formsOf(head, list_.at(base).classes)) {
        addOrExtend({form.text,
                     {formOf(form, head), base, baseClassesOf(form), form.block},
                     classesOf(form)},
                    kind);
      }
    }
  }

  /// Adds a word, or one more origin to the word that has its place: one of the same kind, or a
  /// head word of ours for a form of another one, since "saw" is both.
  void addOrExtend(Candidate candidate, WordKind kind) {
    const auto taken = list_.find(ChuanHoaTu(candidate.head));
    if (!taken) {
      list_.add({std::move(candidate.head),
                 kind,
                 candidate.classes,
                 {},
                 {candidate.origin},
                 Order::OriginsFirst});
      return;
    }
    Word& word = list_.at(*taken);
    // "Easter" is no more of "east": a name is no form of a word in small letters.
    const bool ownToo = word.kind == WordKind::Own && kind == WordKind::OwnForm &&
                        hasCapital(word.head) == hasCapital(candidate.head);
    if ((word.kind != kind && !ownToo) || *taken == candidate.origin.base) return;
    if (word.origins.size() < mostOrigins) word.origins.push_back(std::move(candidate.origin));
  }

  // A form of ours says nothing of the English senses of its spelling: they would hide its own. A
  // word built from one of ours says that first.
  void addWordNet(const WordNetWord& word) {
    if (word.senses.empty()) return;
    const auto origin = ownOriginOf(word);
    list_.add({word.head,
               WordKind::WordNet,
               word.classes,
               {{word.senses}},
               origin ? std::vector{*origin} : std::vector<Origin>{},
               origin ? Order::OriginsFirst : Order::OwnFirst});
  }

  /// How a word of the database is built from a word of ours, when the database bears it out.
  [[nodiscard]] std::optional<Origin> ownOriginOf(const WordNetWord& word) const {
    if (!isSingleWord(word.head) || hasCapital(word.head)) return std::nullopt;
    for (const Derivation& derivation : derivationsOf(word.head)) {
      const auto base = list_.find(derivation.base);
      if (!base || list_.at(*base).kind > WordKind::OwnForm || hasCapital(list_.at(*base).head))
        continue;
      // A prefix leaves the class alone: "recurrent" is no "current" that is so again.
      const ClassSet classes =
          derivation.affix == "re-" ? derivation.baseClasses : derivation.classes;
      const bool fits = classes.empty() || classes.meets(word.classes);
      if (fits && isBornOut(sources_.wordNet, word, derivation))
        return builtOrigin(derivation, *base);
    }
    return std::nullopt;
  }

  [[nodiscard]] Origin builtOrigin(const Derivation& derivation, std::size_t base) const {
    return {builtFrom(derivation, list_.at(base).head),
            base,
            derivation.baseClasses,
            {},
            derivation.affix};
  }

  void addPhraseForms() {
    const std::size_t end = list_.size();
    for (std::size_t base = 0; base < end && !list_.full(); ++base) {
      const std::string head = list_.at(base).head;
      const std::size_t blank = head.find(' ');
      if (blank == std::string::npos || !list_.at(base).classes.has(WordClass::Verb)) continue;
      const std::string verb = head.substr(0, blank);
      if (!isOfClass(verb, WordClass::Verb)) continue;
      for (const Form& form : inflections_.formsOf(verb, {WordClass::Verb})) {
        addOrExtend(
            {form.text + head.substr(blank), {formOf(form, head), base, baseClassesOf(form)}},
            WordKind::PhraseForm);
      }
    }
  }

  bool isOfClass(const std::string& head, WordClass wordClass) const {
    const auto number = list_.find(ChuanHoaTu(head));
    return number && list_.at(*number).classes.has(wordClass);
  }

  /// Adds listed words that are built from known ones or spell one differently, then their forms.
  void addBuiltWords() {
    const std::size_t firstNew = list_.size();
    for (const std::string& listed : sources_.listed) {
      if (list_.full()) return;
      if (hasCapital(listed) || listed.find('\'') != std::string::npos) continue;
      if (list_.find(ChuanHoaTu(listed))) continue;
      if (!addOtherSpelling(listed)) addDerivation(listed);
    }
    addForms(firstNew, WordKind::Form);
  }

  bool addOtherSpelling(const std::string& listed) {
    for (const std::string& spelling : otherSpellings(listed)) {
      const auto base = list_.find(spelling);
      if (!base || list_.at(*base).kind == WordKind::Letter || spelling.size() < 4) continue;
      std::string relation = ownText("cách viết khác của ") + list_.at(*base).head;
      list_.add({listed, WordKind::Spelling, list_.at(*base).classes, {}, {{relation, *base}}});
      return true;
    }
    return false;
  }

  void addDerivation(const std::string& listed) {
    for (const Derivation& derivation : derivationsOf(listed)) {
      const auto base = list_.find(derivation.base);
      if (!base || !list_.at(*base).classes.meets(derivation.baseClasses)) continue;
      const std::string& head = list_.at(*base).head;
      if (!isSingleWord(head) || hasCapital(head)) continue;
      const ClassSet classes =
          derivation.classes.empty() ? list_.at(*base).classes : derivation.classes;
      list_.add({listed,
                 WordKind::Derivation,
                 classes,
                 {},
                 {builtOrigin(derivation, *base)},
                 Order::OriginsFirst});
      return;
    }
  }

  void addPhrasePlurals() {
    std::vector<Candidate> candidates;
    for (std::size_t base = 0; base < list_.size(); ++base) {
      const Word& word = list_.at(base);
      if (isSingleWord(word.head) || hasCapital(word.head) || !word.hasSenses() ||
          !word.classes.has(WordClass::Noun)) {
        continue;
      }
      std::string plural = phrasePlural(word.head);
      if (plural.empty()) continue;
      candidates.push_back(
          {std::move(plural),
           {formOf({"", {FormKind::Plural}}, word.head), base, {WordClass::Noun}}});
    }
    addShortestFirst(std::move(candidates), WordKind::PhrasePlural);
  }

  // The word ahead of the first preposition takes the plural ("chiefs of staff"), else the last.
  std::string phrasePlural(const std::string& head) const {
    if (head.find(" and ") != std::string::npos || head.find(" or ") != std::string::npos)
      return {};
    std::size_t end = head.size();
    for (const std::string_view preposition :
         {"of", "in", "for", "to", "on", "at", "by", "with", "from", "de", "la"}) {
      for (const char joint : {' ', '-'}) {
        end = std::min(end, head.find(joint + std::string(preposition) + joint));
      }
    }
    const std::size_t joint = head.find_last_of(" -", end - 1);
    const std::size_t from = joint == std::string::npos ? 0 : joint + 1;
    const std::string noun = head.substr(from, end - from);
    if (!isOfClass(noun, WordClass::Noun)) return {};
    const std::string plural = inflections_.pluralOf(noun);
    return plural.empty() ? plural : head.substr(0, from) + plural + head.substr(end);
  }

  void addPossessives() {
    std::vector<Candidate> candidates;
    for (const std::string& listed : sources_.listed) {
      if (!listed.ends_with("'s")) continue;
      addPossessive(candidates, listed,
                    list_.find(ChuanHoaTu(listed.substr(0, listed.size() - 2))));
    }
    addShortestFirst(std::move(candidates), WordKind::Possessive);
  }

  void addPossessive(std::vector<Candidate>& candidates, std::string head,
                     std::optional<std::size_t> base) const {
    // "Sophy's" belongs to a name that the list may lack, not to the word "sophy".
    if (!base || hasCapital(head) != hasCapital(list_.at(*base).head)) return;
    candidates.push_back(
        {std::move(head), {ownText("sở hữu cách của ") + list_.at(*base).head, *base}});
  }

  void addPhrasePossessives() {
    std::vector<Candidate> candidates;
    for (std::size_t base = 0; base < list_.size(); ++base) {
      const Word& word = list_.at(base);
      const bool phrase = word.head.find(' ') != std::string::npos;
      if (!phrase || !word.hasSenses() || !word.classes.has(WordClass::Noun)) continue;
      addPossessive(candidates, word.head + (word.head.ends_with('s') ? "'" : "'s"), base);
    }
    addShortestFirst(std::move(candidates), WordKind::PhrasePossessive);
  }

  // The list may be full within these: short words are met more often than long ones.
  void addShortestFirst(std::vector<Candidate> candidates, WordKind kind) {
    std::sort(candidates.begin(), candidates.end(), [](const auto& left, const auto& right) {
      if (left.head.size() != right.head.size()) return left.head.size() < right.head.size();
      return left.head < right.head;
    });
    for (Candidate& each : candidates) {
      list_.add({std::move(each.head), kind, each.classes, {}, {std::move(each.origin)}});
    }
  }

  const WordSources& sources_;
  Problems& problems_;
  WordList list_;
  Inflections inflections_;
};

} // namespace

void readListedWords(const std::filesystem::path& path, WordSources& sources, Problems& problems) {
  const std::string text = readSource(path, problems);
  for (const SourceLine& line : linesOf(text)) {
    const auto word = streamText(line.text);
    if (!word || word->empty()) continue;
    sources.known.insert(lower(*word));
    sources.listed.push_back(*word);
  }
}

WordList fillWordList(const WordSources& sources, std::size_t limit, Filling filling,
                      Problems& problems) {
  Filler filler(sources, limit, problems);
  filler.addOwn();
  if (filling == Filling::Full) filler.addEverythingElse();
  return filler.takeList();
}

} // namespace talvora::pack
