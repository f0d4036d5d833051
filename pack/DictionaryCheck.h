// What a good dictionary asks of its sources beyond what the compiler can do without.
#pragma once

#include "pack/DictionarySource.h"
#include "pack/Message.h"
#include "pack/Problems.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace talvora::pack {

/// A rule of the dictionary; what breaks one is an error.
enum class DictionaryRule : std::uint8_t {
  EntryTooLong,
  PhraseWithoutHead,
  GlossTooLong,
  FormsUnlikeLesson,
  LevelWithoutExample,
  ExampleWordWithoutEntry,
  UnknownSyllable,
  EnglishWordUnknown,
  TranslationDiffers,
  PatternIsPhrase,
  UncountableCounted,
  AcceptedUnused
};

struct DictionaryRuleName {
  DictionaryRule rule;
  std::string_view name; ///< of what breaks it, in the plural
};

inline constexpr std::array<DictionaryRuleName, 12> DictionaryRules = {{
    {DictionaryRule::EntryTooLong, toSay("entries of more than 450 letters")},
    {DictionaryRule::PhraseWithoutHead, toSay("phrases without their head word")},
    {DictionaryRule::GlossTooLong, toSay("first glosses of more than 24 letters")},
    {DictionaryRule::FormsUnlikeLesson, toSay("verbs whose forms differ from the lesson's table")},
    {DictionaryRule::LevelWithoutExample, toSay("classes of A1 to B1 heads without an example")},
    {DictionaryRule::ExampleWordWithoutEntry, toSay("words of examples without an entry")},
    {DictionaryRule::UnknownSyllable, toSay("Vietnamese syllables that no word list has")},
    {DictionaryRule::EnglishWordUnknown, toSay("English words that no word list has")},
    {DictionaryRule::TranslationDiffers, toSay("examples that their translations do not match")},
    {DictionaryRule::PatternIsPhrase, toSay("patterns that stand among the phrases again")},
    {DictionaryRule::UncountableCounted, toSay("uncountable senses that are counted")},
    {DictionaryRule::AcceptedUnused, toSay("accepted words that no entry needs")},
}};

/// A place where a source breaks a rule.
struct Finding {
  DictionaryRule rule;
  Problem problem;
};

/// Words in small letters; empty where a list is not installed, and its rule then says nothing.
using WordSet = std::unordered_set<std::string>;

/// The source, in a content tree, of words that are right and stand in no list.
inline constexpr std::string_view AcceptedFile = "accepted.txt";

/// Such words in small letters, and where each stands.
using AcceptedWords = std::map<std::string, Where>;

/// What the entries are held against.
struct DictionaryMeasures {
  WordSet entries;    ///< normal forms that have a line in the word list
  WordSet vietnamese; ///< syllables, in UTF-8
  WordSet english;
  AcceptedWords accepted;
  std::vector<std::vector<std::string>> irregularVerbs; ///< base, past, participle
};

/// The verbs that a lesson's text lists as "go - went - gone".
[[nodiscard]] std::vector<std::vector<std::string>> verbsOfLesson(std::string_view text);

/// The words of a list, one a line, in small letters; what follows a slash belongs to its tool.
[[nodiscard]] WordSet wordSetOf(const std::filesystem::path& path);

/// Reads the source of accepted words: one a line, comments behind "//".
[[nodiscard]] AcceptedWords acceptedIn(const std::filesystem::path& path);

[[nodiscard]] std::vector<Finding> checkDictionary(const std::vector<OwnEntry>& entries,
                                                   const DictionaryMeasures& measures);

/// A line a rule, with how often it is broken.
[[nodiscard]] std::string findingsReport(const std::vector<Finding>& findings);

} // namespace talvora::pack
