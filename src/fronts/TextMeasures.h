// How a page's text stands in its surface, whatever breaks it into lines: measures in twips, and
// the characters that stand in for what a face would show otherwise.
#pragma once

namespace talvora {

inline constexpr int TextMargin = 120;       ///< at either edge of a surface
inline constexpr int ScrollMarkRoom = 120;   ///< more at the right, which the scroll mark needs
inline constexpr int BulletIndent = 360;     ///< from the bullet's place to the text
inline constexpr double BulletRadius = 0.13; ///< in heights of a line
inline constexpr int TabCharacters = 4;

inline constexpr char16_t NoWidth = u'\u200B';    ///< a line may break here
inline constexpr char16_t JoinsWords = u'\u2060'; ///< nothing to see, and no line breaks here
/// Nothing to see either, in a face that has it, so that no other face adds its height to the line.
inline constexpr char16_t NothingToSee = u'\u200D';

} // namespace talvora
