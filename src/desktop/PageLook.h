// What tells some pages apart from a plain text: a list has a current line instead of a caret, and
// what a page says by a colour alone is said by a sign, too.
#pragma once

#include "desktop/TextShaper.h"
#include "surface/Surface.h"

class QPainter;

namespace talvora {

struct PageLook {
  /// What a run in pure blue stands for, beside its colour.
  enum class BlueSign { None, Tick, Underline };

  bool isList = false;    ///< keys act on the whole line
  bool showsCaret = true; ///< keys act at the caret
  BlueSign blueSign = BlueSign::None;

  /// Paints the signs of a paragraph; the painter's origin is the paragraph's, its unit the twip.
  void paintMarks(QPainter& painter, const ShapedParagraph& paragraph) const;
};

[[nodiscard]] PageLook lookOf(const Surface& surface);

} // namespace talvora
