// What the pages are called for those who do not see them.
#pragma once

#include <string_view>

namespace talvora {

/// The Vietnamese name of a surface; empty for a plate, which has nothing to say.
[[nodiscard]] std::u16string_view pageName(std::string_view surface);

} // namespace talvora
