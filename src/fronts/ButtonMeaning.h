// What the menu's English captions mean, for tooltips and screen readers.
#pragma once

#include "surface/Button.h"

#include <string_view>

namespace talvora {

/// One line in Vietnamese on what a menu button opens.
[[nodiscard]] std::u16string_view meaningOf(const Button& button);

/// The right column is captioned in English.
[[nodiscard]] bool hasEnglishCaption(const Button& button);

} // namespace talvora
