// What tells some pages apart from a plain text: a list has a current line instead of a caret, and
// what a page says by a colour alone is said by a sign, too.
#pragma once

#include "platform/LineLayout.h"
#include "surface/Form.h"
#include "surface/Surface.h"

namespace talvora {

struct PageTraits {
  /// What a run in pure blue stands for, beside its colour.
  enum class BlueSign { None, Tick, Underline };

  bool isList = false;    ///< keys act on the whole line
  bool showsCaret = true; ///< keys act at the caret
  BlueSign blueSign = BlueSign::None;
};

[[nodiscard]] PageTraits traitsOf(const Surface& surface);

/// What is painted in a paragraph beside its text. Offsets are the paragraph's.
struct ParagraphMarks {
  bool current = false; ///< the line of a list on which the keys act
  int from = 0;         ///< what is selected, from here
  int to = 0;           ///< to behind here
  int caret = -1;       ///< -1 when no caret is to be seen in it

  friend bool operator==(const ParagraphMarks&, const ParagraphMarks&) = default;
};

[[nodiscard]] ParagraphMarks marksOf(const Surface& surface, const Form& form, int paragraph);

/// The upper edge of the line that a surface's lower edge cuts, of a paragraph whose upper edge
/// stands at `top`; the lower edge where it cuts none. In twips.
[[nodiscard]] int cutOf(const ParagraphShape& shape, int top, int lowerEdge);

} // namespace talvora
