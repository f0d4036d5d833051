// The headings of items. The same code means different headings in a bank and in a self-made test,
// and some wordings differ by a blank; both tables stand as they are.
#pragma once

#include <string_view>

namespace talvora {

/// Where an item comes from.
enum class ItemOrigin { Bank, OwnTest };

/// The heading of a code; empty for a code without one.
[[nodiscard]] std::string_view ChonDeMuc(int code, ItemOrigin origin);

} // namespace talvora
