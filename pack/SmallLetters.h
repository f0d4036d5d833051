// Small letters of UTF-8 text.
#pragma once

#include <string>
#include <string_view>

namespace talvora::pack {

/// The text with its Latin capitals as small letters, the Vietnamese ones too; it ends at a byte
/// that is no UTF-8.
[[nodiscard]] std::string smallUtf8(std::string_view text);

} // namespace talvora::pack
