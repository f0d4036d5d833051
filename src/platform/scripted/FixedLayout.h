// Line layout by the fixed text measures. A line is as wide as the surface less four characters of
// its default font, two at either edge, and less the paragraph's indent.
#pragma once

#include "platform/LineLayout.h"

namespace talvora {

/// Lines break behind blanks, which hang over the edge; a word that is longer than a line is broken
/// where it reaches the edge. A tab is four characters wide. A line is as high as its largest font.
class FixedLayout final : public LineLayout {
 public:
  [[nodiscard]] ParagraphShape layOut(const ParagraphView& paragraph) const override;
  [[nodiscard]] CaretPlace placeOf(const ParagraphView& paragraph, int offset) const override;
  /// A point in the exact middle of a character belongs to the caret ahead of it.
  [[nodiscard]] int offsetAt(const ParagraphView& paragraph, int x, int y) const override;
};

} // namespace talvora
