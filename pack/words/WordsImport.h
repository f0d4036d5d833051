// Lists of words on their way into the learner's own: `talvora-pack words import`. It speaks
// Vietnamese, for it is the learner who asks.
#pragma once

#include "pack/LearnersList.h"

#include <filesystem>
#include <iosfwd>
#include <string>

namespace talvora::pack {

/// A list of more bytes than this is no list of words.
inline constexpr std::size_t LargestWordList = std::size_t{16} << 20;

/// Adds the words of a file that the list has not; nothing that is there changes. A word that comes
/// without a sentence takes the first one of the pack that holds it; without a pack (an empty text)
/// it has none. `Found` when there were lines that cannot be taken; they are told.
[[nodiscard]] ListResult importWords(const LearnersList& list, const std::filesystem::path& file,
                                     const std::string& pack, std::ostream& out);

} // namespace talvora::pack
