// How a stretch of text and a paragraph look. Plain values that surfaces keep and layouts read.
#pragma once

#include <cstdint>
#include <string>

namespace talvora {

/// A colour 0xBBGGRR (255 is red), or a system colour's own number (0x80000003 and so on).
using Colour = std::uint32_t;

/// A font as the program names it; the front decides which face stands for the name.
struct FontSpec {
  std::string name = "x1";
  double size = 8; ///< in points; a point is 20 twips
  bool bold = false;

  friend bool operator==(const FontSpec&, const FontSpec&) = default;
};

/// The look of one character.
struct CharStyle {
  FontSpec font;
  bool italic = false;
  bool underline = false;
  bool protectedText = false; ///< the learner's keys do not change it
  Colour color = 0;

  friend bool operator==(const CharStyle&, const CharStyle&) = default;
};

/// Alignment of a paragraph, with the numbers that the program uses for it.
enum class Alignment : std::uint8_t { Left = 0, Right = 1, Centred = 2 };

/// The look of one paragraph.
struct ParagraphStyle {
  Alignment align = Alignment::Left;
  double indent = 0; ///< left indent in twips; the body of a text page has 285.1654
  bool bullet = false;

  friend bool operator==(const ParagraphStyle&, const ParagraphStyle&) = default;
};

} // namespace talvora
