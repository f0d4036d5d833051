// Every rule of the texts and drills that goes beyond their notation.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <vector>

namespace talvora::pack {

/// Checks a content tree that can be read. What is only counted is told in lines, which are no
/// problems.
[[nodiscard]] std::vector<std::string> checkTextsAndDrills(const std::filesystem::path& source,
                                                           Problems& problems);

} // namespace talvora::pack
