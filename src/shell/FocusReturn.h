// Gives the focus and the caret back to the surface that the learner was working on when a popup
// closes. The sections register what that means for their surfaces.
#pragma once

#include "surface/Controls.h"
#include "surface/State.h"

#include <functional>
#include <vector>

namespace talvora {

class FocusReturn {
 public:
  FocusReturn(Controls& controls, const CurrentWord& word);

  /// The first visible surface of the chain whose condition holds gets its caret and the focus. A
  /// page whose selection stands gets neither; it inherits the focus from what is hidden over it.
  void TraLaiBeMat();

  /// What a surface of the chain does instead of taking the shared caret.
  void onReturnTo(const Surface& surface, std::function<void()> action);

 private:
  struct Row {
    Surface* surface;
    std::function<bool()> holds;
    std::function<void()> action;
  };

  void takeCaret(Surface& surface, int caret);

  std::vector<Row> rows_;
};

} // namespace talvora
