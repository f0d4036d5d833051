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
inline constexpr QRgb ScrollBar = 0xFF6E8591;
inline constexpr QRgb ScrollTrough = 0x306E8591;

// The caption strip.
inline constexpr QRgb Strip = 0xFF1F3A4D;
inline constexpr QRgb StripText = 0xFFF4F1E8;
inline constexpr QRgb StripAmber = 0xFFFFC857; ///< what is news
inline constexpr QRgb StripHot = 0xFF35566C;   ///< under the pointer
inline constexpr QRgb StripCloseHot = 0xFFB33A2E;

// The line of a list on which the keys act.
inline constexpr QRgb CurrentLine = 0xFFD6E8F7;
inline constexpr QRgb CurrentLineEdge = 0xFF1F5F8B;

inline constexpr QRgb BoxText = 0xFF122E44;
inline constexpr QRgb HintEdge = 0xFF7F9FB6;

} // namespace palette

/// How well two colours are told apart, from 1 to 21.
[[nodiscard]] double contrastOf(const QColor& one, const QColor& other);

/// The colour itself where it can be read on a back colour, at 4.5 to 1; else the nearest tone of
/// it that can.
[[nodiscard]] QColor readableOn(const QColor& text, const QColor& back);

} // namespace talvora
