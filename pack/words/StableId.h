// Names and numbers that are the same for the same text wherever and whenever they are made.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace talvora::pack {

/// Sixteen hexadecimal digits out of the text's SHA-256.
[[nodiscard]] std::string stableId(std::string_view text);
/// The first four bytes of the text's SHA-1 as a number, as flash-card programs sum up a field.
[[nodiscard]] std::uint32_t fieldSum(std::string_view text);

} // namespace talvora::pack
