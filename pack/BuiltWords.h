// Words that a prefix or suffix has truly built from a word of ours: not every "-er" is a doer.
#pragma once

#include "pack/Derivation.h"
#include "pack/WordNet.h"

#include <optional>
#include <string>

namespace talvora::pack {

/// Whether the database bears out that a word is built in that way: it ties the two together, or
/// its definition says what the affix says. False when it has only one of them.
[[nodiscard]] bool isBornOut(const WordNet& wordNet, const WordNetWord& word,
                             const Derivation& derivation);

} // namespace talvora::pack
