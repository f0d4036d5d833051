// The guide: how to study with the program, told by a rich text on `Rcachhoc`.
#pragma once

#include "program/ProgramControls.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/State.h"

namespace talvora {

class Guide {
 public:
  Guide(ProgramControls& controls, const SharedState& state, const Stores& stores, Shell& shell);

  /// Shows the guide behind the curtain. Throws FatalFailure when its file is missing.
  void open();

 private:
  void wireEvents();

  ProgramControls& controls_;
  const SharedState& state_;
  const Stores& stores_;
  Shell& shell_;
};

} // namespace talvora
