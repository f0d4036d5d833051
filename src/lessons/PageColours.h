// The colours and the indent that lesson pages and exercise items share.
#pragma once

#include "platform/TextStyle.h"

namespace talvora {

inline constexpr Colour BodyColour = 0x750000;
inline constexpr Colour TitleColour = 0x393971;
inline constexpr Colour PageRed = 255;
inline constexpr Colour PageBlue = 0xFF0000;
inline constexpr Colour PageWhite = 0xFFFFFF;
/// The left indent of a page's body, in twips.
inline constexpr double BodyIndent = 285.1654;

} // namespace talvora
