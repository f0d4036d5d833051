// The colours of the screen: what the program's colour numbers look like, and the tones that the
// front adds by itself.
#pragma once

#include "platform/TextStyle.h"

#include <QColor>

namespace talvora {

/// The look of a colour of the program, 0xBBGGRR or a system colour. Pure red is shown deeper than
/// it is, since text in it could not be read well on white.
[[nodiscard]] QColor colourOf(Colour colour);

namespace palette {

inline constexpr QRgb Shadow = 0xFF1E3440; ///< painted translucent
inline constexpr QRgb Letterbox = 0xFF16282F;
inline constexpr QRgb FocusRing = 0xFF1F5F8B;
inline constexpr QRgb Selection = 0xFFD6E8F7; ///< behind text in its own colour
inline constexpr QRgb SelectionEdge = 0xFF9CC4E6;
inline constexpr QRgb DarkSelection = 0x50FFFFFF; ///< the same on a dark back colour
inline constexpr QRgb Caret = 0xFF1B2A33;
inline constexpr QRgb ScrollBar = 0x806E8591;

} // namespace palette

} // namespace talvora
