// An answer shown in the place of what the learner wrote, and taken back.
#pragma once

#include "exercises/ExerciseControls.h"
#include "exercises/ItemKinds.h"
#include "exercises/ItemState.h"
#include "surface/Surface.h"

namespace talvora {

class ModelAnswer {
 public:
  ModelAnswer(ExerciseControls& controls, ItemState& item, const ItemKinds& kinds)
      : controls_(controls), item_(item), kinds_(kinds) {}

  /// Shows the model answer of the blank at position p, from 1, in bold.
  void HienDapAn(int p, Colour colour, Surface& surface);
  /// Ends the display: the old text comes back.
  void KhoiPhucChu(Surface& surface);
  /// Ends it so that the model answer stays in its blank.
  void keepInBlank(Surface& surface);
  /// Remembers a stretch of a surface and shows it bold.
  void emphasise(Surface& surface, int caret, int length, Colour colour);
  /// Takes the bold of a clicked phrase back.
  void RoChonSai(Surface& surface);
  /// Ends whatever is shown on a surface, as its kind of item does.
  void restore(Surface& surface);

 private:
  ExerciseControls& controls_;
  ItemState& item_;
  const ItemKinds& kinds_;
};

} // namespace talvora
