// Files of exercise items as a teacher writes them.
#pragma once

#include "pack/Item.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// Parses a file of items; what is wrong is reported.
[[nodiscard]] std::vector<Item> parseItems(std::string_view text, const std::string& file,
                                           ItemPlace place, BlankHelp help, Problems& problems);

/// The source of items, as `parseItems` reads it.
[[nodiscard]] std::string writeItems(const std::vector<Item>& items, ItemPlace place);

} // namespace talvora::pack
