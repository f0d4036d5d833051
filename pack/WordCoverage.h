// How much of the course's English a click explains in Vietnamese.
#pragma once

#include "pack/Corpora.h"
#include "pack/Problems.h"
#include "pack/WordList.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace talvora::pack {

/// The source of the names that need no entry, in a content tree.
inline constexpr std::string_view NamesFile = "names.txt";

/// One running word in so many may go without a Vietnamese sense of its own, in each corpus.
inline constexpr std::size_t WordsAMissing = 200;

/// Words in small letters.
using Names = std::unordered_set<std::string>;

/// The names of a source, one a line, and the pieces of words ("tion") that lessons speak of; none
/// when it is not there.
[[nodiscard]] Names readNames(const std::filesystem::path& path);

/// The word that the program's look-up finds for a clicked word: the exact form, the form after the
/// suffix rules, then ever shorter ones.
[[nodiscard]] std::optional<std::size_t> lookUp(const WordList& list, const std::string& word);

/// Whether a click on a word shows a Vietnamese sense of this word: one that is found only with
/// some of its letters cut off is another word, unless a hyphen or an apostrophe parts the two.
[[nodiscard]] bool isExplained(const WordList& list, const std::string& word);

/// What became of the words of a corpus.
struct Coverage {
  std::string_view corpus;
  std::size_t words = 0; ///< running words that the program looks up and that are no listed names
  std::size_t missing = 0;
  std::map<std::string, std::size_t> missingWords; ///< in small letters, with how often each stands

  [[nodiscard]] bool isEnough() const noexcept { return missing * WordsAMissing <= words; }
};

/// A word that has a capital wherever it stands, and no entry.
struct UnknownName {
  std::string_view corpus; ///< where it stands first
  std::string word;
};

struct CoverageReport {
  std::vector<Coverage> corpora;
  std::vector<UnknownName> names;
  std::vector<std::string> needless; ///< listed names that have an entry
};

[[nodiscard]] CoverageReport coverageOf(const std::vector<Corpus>& corpora, const WordList& list,
                                        const Names& names);

/// A line for each corpus, and the words that are missing in it; as UTF-8.
[[nodiscard]] std::string coverageLines(const CoverageReport& report);

/// Reports each corpus with too many missing words, each unknown name, and each listed name that
/// has an entry: listed, it would not be counted.
void checkCoverage(const CoverageReport& report, Problems& problems);

} // namespace talvora::pack
