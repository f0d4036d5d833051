// Compares a key with the normal form of a line without making a string of it.
#pragma once

#include <compare>
#include <string_view>

namespace talvora {

/// How a key stands to `ChuanHoaTu(line)`, by character codes.
[[nodiscard]] std::strong_ordering compareWithForm(std::string_view key,
                                                   std::string_view line) noexcept;

} // namespace talvora
