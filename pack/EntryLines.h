// The lines of a dictionary entry, in entry notation.
#pragma once

#include "pack/Entry.h"

#include <string>
#include <vector>

namespace talvora::pack {

enum class Examples { With, Without };

/// Senses in entry notation: each on a line of its own, the class blue ahead of it. Senses that are
/// numbered share the name of their class. Without examples the patterns are left out as well.
[[nodiscard]] std::string entryLines(const std::vector<Sense>& senses, Examples examples);

/// A block in entry notation: its senses, and its phrases below those of its first class.
[[nodiscard]] std::string blockLines(const EntryBlock& block);

/// What stands behind a head word: "/gou/ (went, gone) A1". What is empty is left out.
[[nodiscard]] std::string headDetails(const EntryBlock& block);

} // namespace talvora::pack
