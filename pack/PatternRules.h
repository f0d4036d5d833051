// What the patterns of an entry must not say: what its phrases say, and what its senses deny.
#pragma once

#include "pack/Entry.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// The patterns of a sense, as commas part them.
[[nodiscard]] std::vector<std::string> patternsOf(const Sense& sense);

/// Patterns that stand among the phrases of the entry again, with a meaning of their own there.
[[nodiscard]] std::vector<std::string> patternsAmongPhrases(const EntryBlock& block);

/// What a pattern or the example of a noun's sense counts though it cannot be counted: "a strong
/// will", "advices". The article of "a blood test" belongs to the word behind the noun.
[[nodiscard]] std::vector<std::string> countedUncountables(std::string_view head,
                                                           const Sense& sense);

} // namespace talvora::pack
