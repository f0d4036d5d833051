// Numbers inside names.
#pragma once

#include <string_view>

namespace talvora {

/// The digits of a text taken from the right, each multiplied by rising powers of ten; other
/// characters are skipped: "but7" gives 7, "but12" gives 12, an empty text gives 0. Digits past the
/// range of a 32-bit number are left out.
[[nodiscard]] int SoTrongTen(std::string_view name);

} // namespace talvora
