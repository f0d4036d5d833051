// How a surface comes onto the screen and leaves it, with the white card behind it.
#pragma once

#include "platform/Clock.h"
#include "shell/Controls.h"
#include "shell/HintBar.h"
#include "shell/UpwardCalls.h"
#include "surface/Form.h"
#include "surface/State.h"

namespace talvora {

class Transitions {
 public:
  Transitions(Form& form, const Measures& measures, HintBar& hints, const UpwardCalls& upward,
              Clock& clock)
      : form_(form), measures_(measures), hints_(hints), upward_(upward), clock_(clock) {}

  /// Sizes a surface and brings it in, with the frame behind it and the focus to it.
  void MoRan(Surface& surface, Frame& frame);
  /// Takes a surface and its frame off the screen.
  void DongRan(Surface& surface, Frame& frame);

  void declare(Variables& variables) const;

 private:
  /// The mode in which a surface stands at its place at once.
  [[nodiscard]] bool standsAtOnce() const noexcept { return measures_.slidesAtOnce(); }
  [[nodiscard]] int openingStep() const;
  [[nodiscard]] int closingStep() const;
  /// Milliseconds slept after each step.
  [[nodiscard]] int TreTruot() const noexcept;
  void slideIn(Surface& surface, int targetLeft, int targetTop);
  void slideOut(Surface& surface);
  Flow pause();

  Form& form_;
  const Measures& measures_;
  HintBar& hints_;
  const UpwardCalls& upward_;
  Clock& clock_;
};

} // namespace talvora
