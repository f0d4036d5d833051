// The Vietnamese side of the dictionary: the commonest words, each with one short Vietnamese sense.
#pragma once

#include "formats/Limits.h"
#include "pack/PackFile.h"
#include "pack/WordList.h"

#include <cstddef>
#include <string>
#include <vector>

namespace talvora::pack {

/// The number of entries that the program searches.
inline constexpr std::size_t VietnameseSideCount = limit::SideEntries;

/// A meaning of more letters than this is shown without the remark at its end.
inline constexpr std::size_t LongestSideMeaning = 24;

struct SideEntry {
  std::string head;
  std::string form; ///< the normal form
  std::string text; ///< head, "~", sense, and the base in angle brackets: "went~đi <go>"
  WordKind kind = WordKind::Own;
};

/// The entries that the words of our own give, with their forms, and, as far as there is room, the
/// list's words with "un-", "-ly" and "-ness" from adjectives of one meaning, and possessives that
/// `listed` confirms. At most
/// VietnameseSideCount, sorted by their normal forms in binary order.
[[nodiscard]] std::vector<SideEntry> vietnameseSideOf(const WordList& list,
                                                      const std::vector<std::string>& listed);

/// datatuD.txt, dataD.vt and dataD.av.
[[nodiscard]] std::vector<PackFile> compileVietnameseSide(const std::vector<SideEntry>& entries);

} // namespace talvora::pack
