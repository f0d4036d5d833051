// Dictionaries in the form of the dictionary server dictd.
#pragma once

#include "pack/import/ImportedDictionary.h"

#include <string_view>

namespace talvora::pack {

/// Reads an index, a head word, its offset and its length a line, the numbers in the base 64 of
/// that form; and the unpacked articles.
[[nodiscard]] ImportedDictionary readDictd(std::string_view index, std::string_view articles,
                                           const std::string& indexName, Problems& problems);

} // namespace talvora::pack
