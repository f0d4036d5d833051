// The names of the headings of items.
#pragma once

#include "pack/Item.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// The code of a heading's name; empty when there is none of that name.
[[nodiscard]] std::optional<int> headingCode(std::string_view name, ItemPlace place);
/// The names that may be used, in the order of their codes.
[[nodiscard]] std::vector<std::string> headingNames(ItemPlace place);
/// The name of a heading code; "none" for a code without one.
[[nodiscard]] std::string headingName(int code, ItemPlace place);

} // namespace talvora::pack
