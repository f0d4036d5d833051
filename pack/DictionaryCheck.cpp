// The rules of the dictionary, one procedure each.
#include "pack/DictionaryCheck.h"

#include "dictionary/SyllableGate.h"
#include "pack/ClickedWords.h"
#include "pack/EntryLines.h"
#include "pack/Message.h"
#include "pack/PatternRules.h"
#include "pack/SmallLetters.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "pack/TranslationRules.h"
#include "sound/Pronunciations.h"
#include "text/CharClass.h"
#include "text/Contains.h"
#include "text/GlyphMap.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace talvora::pack {

namespace {

constexpr std::size_t longestEntry = 450;
constexpr std::size_t longestGloss = 24;

std::string_view firstGloss(std::string_view text) {
  text = text.substr(0, text.find(';'));
  return trim(text.substr(0, text.find(" (")));
}

/// How many letters of an entry are shown: the marks are not, and a line has " - " ahead of it.
std::size_t shownLetters(const OwnEntry& entry) {
  const std::string text = headDetails(entry.block) + blockLines(entry.block);
  std::size_t letters = entry.head.size() + 1;
  for (const char character : text) {
    if (character == '_') {
      letters += 4;
    } else if (character != '#' && character != '^') {
      ++letters;
    }
  }
  return letters;
}

/// A syllable with its tone mark on the second vowel, where it stands on the first: "thỏa" and
/// "thoả" are both in use, and a word list has one of them.
std::string toneMovedBack(const std::string& syllable) {
  struct Twin {
    std::string_view ours;
    std::string_view theirs;
  };
  static constexpr std::array<Twin, 15> twins = {{{"òa", "oà"},
                                                  {"óa", "oá"},
                                                  {"ỏa", "oả"},
                                                  {"õa", "oã"},
                                                  {"ọa", "oạ"},
                                                  {"òe", "oè"},
                                                  {"óe", "oé"},
                                                  {"ỏe", "oẻ"},
                                                  {"õe", "oẽ"},
                                                  {"ọe", "oẹ"},
                                                  {"ùy", "uỳ"},
                                                  {"úy", "uý"},
                                                  {"ủy", "uỷ"},
                                                  {"ũy", "uỹ"},
                                                  {"ụy", "uỵ"}}};
  for (const Twin& twin : twins) {
    if (syllable.ends_with(twin.ours))
      return syllable.substr(0, syllable.size() - twin.ours.size()).append(twin.theirs);
  }
  return syllable;
}

/// The syllables of a Vietnamese text in the text font's bytes, in UTF-8: stretches of letters.
std::vector<std::string> syllablesOf(std::string_view text) {
  std::vector<std::string> syllables;
  std::string syllable;
  const auto finish = [&] {
    if (!syllable.empty()) syllables.push_back(utf8Of(syllable));
    syllable.clear();
  };
  for (const char character : text) {
    if (Letters.has(character) || isVietnameseLetter(character)) {
      syllable += character;
    } else {
      finish();
    }
  }
  finish();
  return syllables;
}

class Checker {
 public:
  explicit Checker(const DictionaryMeasures& measures) : measures_(measures) {
    for (const auto& verb : measures.irregularVerbs)
      if (verb.size() == 3) verbs_[verb[0]] = {verb[1], verb[2]};
  }

  void check(const OwnEntry& entry) {
    entry_ = &entry;
    heads_.insert(lower(utf8Of(entry.head)));
    checkLength();
    checkPhrases();
    checkPatterns();
    checkForms();
    for (const Sense& sense : entry.block.senses)
      checkSense(sense);
    checkExamples();
  }

  // A word is accepted for an entry that has it, or as a form of one that only this confirms.
  void checkAccepted() {
    if (measures_.vietnamese.empty() || measures_.english.empty()) return;
    for (const auto& [word, where] : measures_.accepted) {
      const bool isForm = measures_.entries.contains(ChuanHoaTu(word)) && !heads_.contains(word);
      if (!met_.contains(word) && !isForm)
        findings_.push_back({DictionaryRule::AcceptedUnused,
                             {where, said("no entry needs \"{}\" to be accepted", word)}});
    }
  }

  std::vector<Finding> takeFindings() { return std::move(findings_); }

 private:
  void find(DictionaryRule rule, std::string message) {
    findings_.push_back({rule, {entry_->where, utf8Of(entry_->head) + ": " + std::move(message)}});
  }

  void checkLength() {
    const std::size_t letters = shownLetters(*entry_);
    if (letters > longestEntry)
      find(DictionaryRule::EntryTooLong,
           said("{} letters are shown, at most {} should be", letters, longestEntry));
  }

  // A form of the head will do, and the rules alter no more than its end.
  void checkPhrases() {
    const std::string head = lower(entry_->head);
    const std::string stem = head.size() > 3 ? head.substr(0, head.size() - 1) : head;
    for (const FixedPhrase& phrase : entry_->block.phrases) {
      const std::string english = lower(phrase.english);
      const auto& forms = entry_->block.forms;
      const bool holds = english.find(stem) != std::string::npos ||
                         std::any_of(forms.begin(), forms.end(), [&](const std::string& form) {
                           return english.find(form) != std::string::npos;
                         });
      if (!holds)
        find(DictionaryRule::PhraseWithoutHead,
             said("the phrase \"{}\" does not have the word", utf8Of(phrase.english)));
    }
  }

  void checkPatterns() {
    for (const std::string& pattern : patternsAmongPhrases(entry_->block))
      find(DictionaryRule::PatternIsPhrase,
           said("\"{}\" stands among the phrases again", utf8Of(pattern)));
    for (const Sense& sense : entry_->block.senses) {
      for (const std::string& counted : countedUncountables(entry_->head, sense))
        find(DictionaryRule::UncountableCounted,
             said("\"{}\" counts what is said not to be countable", utf8Of(counted)));
    }
  }

  void checkForms() {
    const auto verb = verbs_.find(entry_->head);
    const auto& senses = entry_->block.senses;
    const bool isVerb = std::any_of(senses.begin(), senses.end(), [](const Sense& sense) {
      return sense.wordClass == WordClass::Verb;
    });
    if (verb == verbs_.end() || !isVerb) return;
    const auto& forms = entry_->block.forms;
    const auto lists = [](const std::string& form, const std::string& wanted) {
      const auto all = alternativesOf(form);
      return contains(all, wanted);
    };
    if (forms.size() < 2 || !lists(forms[0], verb->second.first) ||
        !lists(forms[1], verb->second.second))
      find(DictionaryRule::FormsUnlikeLesson,
           said("the lesson has the forms {}, {}", verb->second.first, verb->second.second));
  }

  void checkSense(const Sense& sense) {
    const std::string_view gloss = firstGloss(sense.text);
    if (gloss.size() > longestGloss)
      find(DictionaryRule::GlossTooLong,
           said("\"{}\" has {} letters", utf8Of(gloss), gloss.size()));
    const std::size_t equals = sense.example.find(" = ");
    const std::string english = sense.example.substr(0, equals);
    checkEnglish(english);
    checkEnglish(sense.pattern);
    for (const std::string& word : clickedWords(english)) {
      if (!measures_.entries.empty() && LaTiengAnh(word) && !hasEntry(word))
        find(DictionaryRule::ExampleWordWithoutEntry, said("\"{}\" has no entry", word));
    }
    checkVietnamese(sense.text);
    if (equals == std::string::npos) return;
    const std::string vietnamese = sense.example.substr(equals + 3);
    checkVietnamese(vietnamese);
    for (std::string& fault :
         translationFaults(utf8Of(english), utf8Of(vietnamese), Surroundings::None))
      find(DictionaryRule::TranslationDiffers, std::move(fault));
  }

  /// Whether a word, what an apostrophe shortens, or each part of a word with a hyphen has a line
  /// in the word list. The words of the head word itself are explained there.
  [[nodiscard]] bool hasEntry(const std::string& word) const {
    const auto& entries = measures_.entries;
    const std::string form = ChuanHoaTu(lower(word));
    if (entries.contains(form) || entries.contains(form.substr(0, form.find('\'')))) return true;
    const bool plural = form.ends_with('s') && entries.contains(form.substr(0, form.size() - 1));
    if (plural && form.find(' ') != std::string::npos) return true;
    const auto parts = split(form, ' ');
    const auto ofHead = split(ChuanHoaTu(entry_->head), ' ');
    return std::ranges::all_of(parts, [&](const std::string& part) {
      return (parts.size() > 1 && entries.contains(part)) || contains(ofHead, part);
    });
  }

  bool isAccepted(const std::string& word) {
    const bool accepted = measures_.accepted.contains(word);
    if (accepted) met_.insert(word);
    return accepted;
  }

  // A name is right when it has an entry, and a head word as it is.
  void checkEnglish(const std::string& text) {
    if (measures_.english.empty()) return;
    for (const std::string& word : clickedWords(text)) {
      const auto ofHead = split(ChuanHoaTu(entry_->head), ' ');
      const bool known = contains(ofHead, lower(word)) || (lower(word) != word && hasEntry(word));
      if (known || word == "sb" || word == "sth" || word == "sb's") continue;
      for (const std::string& part : spokenWordsOf(word)) {
        if (!isAccepted(part) && !measures_.english.contains(part) &&
            !measures_.english.contains(part.substr(0, part.find('\''))))
          find(DictionaryRule::EnglishWordUnknown, said("\"{}\" is in no word list", part));
      }
    }
  }

  // English words stand in translations too, as names and in remarks.
  void checkVietnamese(const std::string& text) {
    if (measures_.vietnamese.empty()) return;
    for (const std::string& syllable : syllablesOf(text)) {
      const std::string small = smallUtf8(syllable);
      const bool name = syllable != small;
      if (name || isAccepted(small) || measures_.vietnamese.contains(small) ||
          measures_.vietnamese.contains(toneMovedBack(small)) || measures_.english.contains(small))
        continue;
      find(DictionaryRule::UnknownSyllable, said("\"{}\" is in no word list", syllable));
    }
  }

  void checkExamples() {
    const EntryBlock& block = entry_->block;
    if (block.level.empty() || block.level > "B1") return;
    ClassSet with;
    for (const Sense& sense : block.senses)
      if (!sense.example.empty()) with.add(sense.wordClass);
    ClassSet told;
    for (const Sense& sense : block.senses) {
      if (with.has(sense.wordClass) || told.has(sense.wordClass)) continue;
      told.add(sense.wordClass);
      find(DictionaryRule::LevelWithoutExample,
           said("no example for {}", ClassNames[static_cast<std::size_t>(sense.wordClass)].source));
    }
  }

  const DictionaryMeasures& measures_;
  std::unordered_map<std::string, std::pair<std::string, std::string>> verbs_;
  const OwnEntry* entry_ = nullptr;
  WordSet heads_; ///< in small letters
  WordSet met_;   ///< accepted words that an entry has
  std::vector<Finding> findings_;
};

} // namespace

std::vector<std::vector<std::string>> verbsOfLesson(std::string_view text) {
  std::vector<std::vector<std::string>> verbs;
  for (const SourceLine& line : linesOf(text)) {
    if (!line.text.starts_with("> ")) continue;
    std::string list(line.text.substr(2));
    std::replace(list.begin(), list.end(), ';', ',');
    for (const std::string& each : split(list, ',')) {
      std::vector<std::string> forms;
      for (const std::string& form : split(each, '-'))
        forms.emplace_back(trim(form));
      const bool single = std::all_of(forms.begin(), forms.end(), [](const std::string& form) {
        return !form.empty() && form.find(' ') == std::string::npos;
      });
      if (forms.size() == 3 && single) verbs.push_back(std::move(forms));
    }
  }
  return verbs;
}

WordSet wordSetOf(const std::filesystem::path& path) {
  WordSet words;
  const auto text = readWhole(path);
  if (!text) return words;
  for (const SourceLine& line : linesOf(*text))
    words.insert(smallUtf8(line.text.substr(0, line.text.find('/'))));
  return words;
}

AcceptedWords acceptedIn(const std::filesystem::path& path) {
  AcceptedWords words;
  const auto text = readWhole(path);
  if (!text) return words;
  for (const SourceLine& line : linesOf(*text)) {
    if (!line.text.empty() && !line.text.starts_with("//"))
      words.emplace(smallUtf8(line.text), Where{path.string(), line.number, 1});
  }
  return words;
}

std::vector<Finding> checkDictionary(const std::vector<OwnEntry>& entries,
                                     const DictionaryMeasures& measures) {
  Checker checker(measures);
  for (const OwnEntry& entry : entries)
    checker.check(entry);
  checker.checkAccepted();
  return checker.takeFindings();
}

std::string findingsReport(const std::vector<Finding>& findings) {
  std::string report;
  for (const DictionaryRuleName& rule : DictionaryRules) {
    const auto count =
        std::count_if(findings.begin(), findings.end(),
                      [&rule](const Finding& each) { return each.rule == rule.rule; });
    report += "  " + said("{}: {}", translated(rule.name), count) + "\n";
  }
  return report;
}

} // namespace talvora::pack
