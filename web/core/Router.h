// Brings what the page tells to the form.
#pragma once

#include "core/WebMachine.h"
#include "program/Program.h"

namespace talvora::web {

class Router {
 public:
  Router(Program& program, WebInput& input, Inbox& inbox)
      : program_(program), input_(input), inbox_(inbox) {}

  /// What an event of the pointer or the keys does to the program.
  void deliver(const Event& event);
  /// The same of what the program has sent itself.
  void deliver(const WebInput::Sent& sent);

 private:
  /// Takes note of where the pointer is.
  SurfacePoint pointerOf(const Event& event);
  void press(const Event& event);
  [[nodiscard]] int shiftDown() const;

  Program& program_;
  WebInput& input_;
  Inbox& inbox_;
};

} // namespace talvora::web
