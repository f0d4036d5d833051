// Brings what the learner does to the form: the one place of the front that knows how.
#pragma once

#include "core/WebMachine.h"
#include "program/Program.h"

namespace talvora::web {

class Router {
 public:
  Router(Program& program, const Screen& screen, WebInput& input, Inbox& inbox)
      : program_(program), screen_(screen), input_(input), inbox_(inbox) {}

  /// What an event of the pointer or the keys does to the program.
  void deliver(const Event& event);
  /// The same of what the program has sent itself.
  void deliver(const WebInput::Sent& sent);

 private:
  /// The form lies below the caption strip of the virtual screen.
  [[nodiscard]] SurfacePoint formPoint(int x, int y) const;
  [[nodiscard]] SurfacePoint formPoint(PixelPoint pixel) const;
  void move(SurfacePoint at, int buttons, int shift);
  void moveTo(SurfacePoint at, int shift);
  void press(SurfacePoint at, const Event& event);
  void release(SurfacePoint at, const Event& event);
  void wheel(SurfacePoint at, int twips);

  Program& program_;
  const Screen& screen_;
  WebInput& input_;
  Inbox& inbox_;
  Control* pressed_ = nullptr;
};

} // namespace talvora::web
