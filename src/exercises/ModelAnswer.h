// An answer shown in the place of what the learner wrote, and taken back.
#pragma once

#include "exercises/ItemState.h"
#include "surface/Controls.h"
#include "surface/Surface.h"

namespace talvora {

class ModelAnswer {
 public:
  ModelAnswer(Controls& controls, ItemState& item) : controls_(controls), item_(item) {}

  /// Shows the model answer of the blank at position p, from 1, in bold.
  void HienDapAn(int p, Colour colour, Surface& surface);
  /// Ends the display: a fill-in keeps the model answer in its blank, elsewhere the old text comes
  /// back.
  void KhoiPhucChu(Surface& surface);
  /// Remembers a stretch of a surface and shows it bold.
  void emphasise(Surface& surface, int caret, int length, Colour colour);
  /// Takes the bold of a clicked phrase back.
  void RoChonSai();
  /// Ends whatever is shown on an item's surface.
  void restore(Surface& surface);

 private:
  Controls& controls_;
  ItemState& item_;
};

} // namespace talvora
