// The sections whose contents are still to come: their buttons open the empty surface, and Esc
// leads back to the button.
#pragma once

#include "shell/Shell.h"
#include "surface/Controls.h"
#include "surface/State.h"

#include <functional>

namespace talvora {

class LaterSections {
 public:
  LaterSections(Controls& controls, SharedState& state, Shell& shell);

  /// Opens the section of a menu button.
  void open(int button);

  /// Gives the focus to a menu button; set by the program.
  std::function<void(int number)> focusButton = [](int) {};

 private:
  void wire(Surface& surface);
  [[nodiscard]] Surface& surfaceOf(int button);

  Controls& controls_;
  SharedState& state_;
  Shell& shell_;
  int opened_ = 0;
};

} // namespace talvora
