// How words are said, for whoever reviews it.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <vector>

namespace talvora::pack {

/// A line for each class of a head word that is said in its own way: the word, its class, the
/// notation and the phones, parted by tabs, in UTF-8. Without words, every head word of the
/// sources; a word that is none is given as a noun.
[[nodiscard]] std::string phonesReport(const std::filesystem::path& source,
                                       const std::vector<std::string>& words, Problems& problems);

} // namespace talvora::pack
