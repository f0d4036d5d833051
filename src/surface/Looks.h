// How pages look: their colours and their indent, named once.
#pragma once

#include "platform/TextStyle.h"

namespace talvora::look {

inline constexpr Colour Black = 0;
inline constexpr Colour White = 0xFFFFFF;
inline constexpr Colour Red = 255;       ///< links, and what was answered wrong
inline constexpr Colour Blue = 0xFF0000; ///< what was chosen or answered right
inline constexpr Colour Body = 0x750000;
inline constexpr Colour Heading = 0x393971;
/// Options that are out, and lines that open nothing: the system's colour of titles at rest.
inline constexpr Colour Greyed = 0x80000003;
/// The paper of the popup, the look-up list and explanations: a system colour, too.
inline constexpr Colour Box = 0x80000013;
inline constexpr Colour ListPaper = 0x80000000; ///< of your vocabulary
/// A message or a sentence stands in light letters on a dark panel.
inline constexpr Colour DarkPanel = 0x750000;
inline constexpr Colour PanelText = 0xFFFFC0;
inline constexpr Colour Curtain = 0x400000;

/// The left indent of a page's body, in twips.
inline constexpr double BodyIndent = 285.1654;

} // namespace talvora::look

/// The dictionary's popup, and an entry of the Vietnamese side in the hint bar.
namespace talvora::look::popup {

inline constexpr Colour Paper = Box;
inline constexpr Colour Plate = Red; ///< of what explains, too
inline constexpr Colour Text = Black;
inline constexpr Colour Head = Red;   ///< the word looked up
inline constexpr Colour Class = Blue; ///< a word class; the base of a form
inline constexpr Colour Example = Red;
inline constexpr Colour MessagePaper = DarkPanel;
inline constexpr Colour MessageText = PanelText;

} // namespace talvora::look::popup
