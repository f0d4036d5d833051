// What a good dictionary asks of its sources beyond what the compiler can do without.
#pragma once

#include "pack/DictionarySource.h"
#include "pack/Problems.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace talvora::pack {

/// A rule of the dictionary. Those of the first kind are errors; of the others the count is told,
/// until the sources meet them.
enum class DictionaryRule : std::uint8_t {
  EntryTooLong,
  PhraseWithoutHead,
  GlossTooLong,
  FormsUnlikeLesson,
  LevelWithoutExample,
  ExampleWordWithoutEntry,
  UnknownSyllable,
  EnglishWordUnknown
};

struct DictionaryRuleName {
  DictionaryRule rule;
  bool error;
  std::string_view name; ///< of what breaks it, in the plural
};

inline constexpr std::array<DictionaryRuleName, 8> DictionaryRules = {{
    {DictionaryRule::EntryTooLong, true, "entries of more than 450 letters"},
    {DictionaryRule::PhraseWithoutHead, true, "phrases without their head word"},
    {DictionaryRule::GlossTooLong, false, "first glosses of more than 24 letters"},
    {DictionaryRule::FormsUnlikeLesson, false, "verbs whose forms differ from the lesson's table"},
    {DictionaryRule::LevelWithoutExample, false, "classes of A1 to B1 heads without an example"},
    {DictionaryRule::ExampleWordWithoutEntry, false, "words of examples without an entry"},
    {DictionaryRule::UnknownSyllable, false, "Vietnamese syllables that no word list has"},
    {DictionaryRule::EnglishWordUnknown, false, "English words that no word list has"},
}};

/// A place where a source breaks a rule.
struct Finding {
  DictionaryRule rule;
  Problem problem;
};

/// Words in small letters; empty where a list is not installed, and its rule then says nothing.
using WordSet = std::unordered_set<std::string>;

/// What the entries are held against.
struct DictionaryMeasures {
  WordSet entries;    ///< normal forms that have a line in the word list
  WordSet vietnamese; ///< syllables, in UTF-8
  WordSet english;
  std::vector<std::vector<std::string>> irregularVerbs; ///< base, past, participle
};

/// The verbs that a lesson's text lists as "go - went - gone".
[[nodiscard]] std::vector<std::vector<std::string>> verbsOfLesson(std::string_view text);

/// The words of a list, one a line, in small letters; what follows a slash belongs to its tool.
[[nodiscard]] WordSet wordSetOf(const std::filesystem::path& path);

[[nodiscard]] std::vector<Finding> checkDictionary(const std::vector<OwnEntry>& entries,
                                                   const DictionaryMeasures& measures);

/// A line a rule that is broken, with how often.
[[nodiscard]] std::string findingsReport(const std::vector<Finding>& findings);

} // namespace talvora::pack
