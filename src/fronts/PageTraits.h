// What tells some pages apart from a plain text: a list has a current line instead of a caret, and
// what a page says by a colour alone is said by a sign, too.
#pragma once

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

} // namespace talvora
