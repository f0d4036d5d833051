// Brings what the page tells to the form.
#pragma once

#include "core/WebMachine.h"
#include "fronts/BarMouse.h"
#include "fronts/MouseKeys.h"
#include "program/Program.h"

namespace talvora::web {

class Router {
 public:
  Router(Program& program, WebInput& input, Inbox& inbox, const LineLayout& layout);

  /// What an event of the pointer or the keys does to the program.
  void deliver(const Event& event);
  /// The same of what the program has sent itself.
  void deliver(const WebInput::Sent& sent);

 private:
  /// Takes note of where the pointer is.
  SurfacePoint pointerOf(const Event& event);
  void press(const Event& event);
  void pressKey(const Event& event);

  Program& program_;
  WebInput& input_;
  Inbox& inbox_;
  MouseKeys mouseKeys_;
  BarMouse barMouse_;
};

} // namespace talvora::web
