// A course's dictionary with dictionaries that somebody brings, as one.
#pragma once

#include "pack/PackDictionary.h"
#include "pack/PackFile.h"
#include "pack/import/ImportedDictionary.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace talvora::pack {

/// Whose part of an entry stands first where both have the word.
enum class MergeOrder { OwnFirst, ImportedFirst };

/// What became of the entries that were brought.
struct MergeReport {
  std::size_t joined = 0;               ///< words that the course has too
  std::size_t added = 0;                ///< words that it has not
  std::size_t noRoom = 0;               ///< words for which the list had no room left
  std::size_t notEnglish = 0;           ///< heads that no search of the list could find
  std::size_t cut = 0;                  ///< entries of which only the beginning was taken
  std::size_t displaced = 0;            ///< lines of the course that made room
  std::map<char32_t, std::size_t> lost; ///< letters that the font lacks, and how often
};

struct MergedDictionary {
  std::vector<PackFile> files; ///< datatu.txt, data.mtd and data.avt
  MergeReport report;
};

/// Merges in the order of the dictionaries. The list has `mostWords` lines at most: new words take
/// the places of lines that the program finds without them, which are possessives, then plurals of
/// nouns of several words; the longest go first.
/// Where there is no room for all, single and short words are taken first.
[[nodiscard]] MergedDictionary merge(const PackDictionary& own,
                                     const std::vector<ImportedDictionary>& brought,
                                     MergeOrder order, std::size_t mostWords);

} // namespace talvora::pack
