// Dictionaries of a line an entry: a word, a tab, what is said of it.
#pragma once

#include "pack/import/ImportedDictionary.h"

#include <string_view>

namespace talvora::pack {

/// Reads the lines; in an entry "\n" stands for a line's end. Empty lines and those that begin with
/// "#" are passed over.
[[nodiscard]] ImportedDictionary readTabbed(std::string_view text, const std::string& file,
                                            Problems& problems);

} // namespace talvora::pack
