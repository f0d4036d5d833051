// The shell as the sections use it: one of each of its modules.
#pragma once

#include "platform/Platform.h"
#include "shell/Curtain.h"
#include "shell/FocusReturn.h"
#include "shell/Gestures.h"
#include "shell/HintBar.h"
#include "shell/Hover.h"
#include "shell/MENU.h"
#include "shell/Messages.h"
#include "shell/Pages.h"
#include "shell/ScreenSetup.h"
#include "shell/Steering.h"
#include "shell/Transitions.h"
#include "shell/UpwardCalls.h"
#include "shell/WordPick.h"

namespace talvora {

struct Shell {
  Shell(Platform& platform, Form& form, Controls& controls, SharedState& state)
      : pages(form), setup(form, controls, pages, state.measures),
        steering(platform.input, state.measures),
        menu(form, controls, state.measures, steering, platform.random),
        hover(form, controls, state.places, steering, platform.events, platform.narrator),
        hints(form, controls, pages, state.measures, steering),
        transitions(form, state.measures, hints, upward, platform.clock),
        curtain(form, controls, state.measures, steering, platform.clock, platform.narrator),
        messages(form, controls, pages, state.measures, upward, platform.clock, platform.boxes,
                 platform.narrator),
        gestures(controls, pages, state.measures, state.atHand, hints, upward, platform.clipboard),
        focusReturn(state.word), wordPick(state.atHand) {}

  /// Throws std::logic_error where the sections have left a surface or a rank to nobody.
  void check() const {
    pages.check();
    gestures.check();
    focusReturn.check();
  }

  void declare(Variables& variables) const {
    steering.declare(variables);
    menu.declare(variables);
    hover.declare(variables);
    hints.declare(variables);
    transitions.declare(variables);
    gestures.declare(variables);
  }

  UpwardCalls upward;
  Pages pages;
  ScreenSetup setup;
  Steering steering;
  MENU menu;
  Hover hover;
  HintBar hints;
  Transitions transitions;
  Curtain curtain;
  Messages messages;
  Gestures gestures;
  FocusReturn focusReturn;
  WordPick wordPick;
};

} // namespace talvora
