// The files that belong to the learner, as a new one starts with them.
#pragma once

#include "pack/PackFile.h"

#include <vector>

namespace talvora::pack {

/// What a new learner starts with: data.Kcu, data.c.
[[nodiscard]] std::vector<PackFile> firstSettings();

} // namespace talvora::pack
