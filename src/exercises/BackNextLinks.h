// The links "<Back>" and "<Next>" at the foot of a drill's page, and where they stand.
#pragma once

#include "surface/Surface.h"
#include "surface/Variables.h"

namespace talvora {

/// Carets ahead of and behind the two links.
struct BackNextLinks {
  int DauBack = 0;
  int CuoiBack = 0;
  int DauNext = 0;
  int CuoiNext = 0;

  /// Whether a position, from 1, belongs to a link.
  [[nodiscard]] bool holdBack(int p) const noexcept { return p > DauBack && p <= CuoiBack; }
  [[nodiscard]] bool holdNext(int p) const noexcept { return p >= DauNext && p <= CuoiNext; }

  void declare(Variables& variables) const;
};

/// Writes the links at the caret, red, with four blanks of a colour between them.
[[nodiscard]] BackNextLinks writeLinks(Surface& surface, Colour gap);
/// Appends the links to a page as a centred line of their own; the caret comes to stand between
/// them, and text written there has the colour that it had before.
[[nodiscard]] BackNextLinks ThemBackNext(Surface& surface);

} // namespace talvora
