// Brings what the page tells to the form.
#pragma once

#include "core/WebMachine.h"
#include "fronts/MouseKeys.h"
#include "fronts/ScrollBar.h"
#include "program/Program.h"

#include <optional>

namespace talvora::web {

class Router {
 public:
  Router(Program& program, WebInput& input, Inbox& inbox, const LineLayout& layout);

  /// What an event of the pointer or the keys does to the program.
  void deliver(const Event& event);
  /// The same of what the program has sent itself.
  void deliver(const WebInput::Sent& sent);

 private:
  /// The thumb of a scroll bar that the pointer holds.
  struct Held {
    Surface* surface;
    double grip; ///< twips from the thumb's upper edge to the pointer
  };

  /// Takes note of where the pointer is.
  SurfacePoint pointerOf(const Event& event);
  void press(const Event& event);
  void pressKey(const Event& event);
  /// True when the press was on a scroll bar, which then has dealt with it.
  bool pressBar(SurfacePoint at);
  void drag(SurfacePoint at);
  [[nodiscard]] ScrollBar::Extent extentOf(const Surface& surface, ScrollBar& bar) const;
  [[nodiscard]] int shiftDown() const;

  Program& program_;
  WebInput& input_;
  Inbox& inbox_;
  const LineLayout& layout_;
  MouseKeys mouseKeys_;
  std::optional<Held> held_;
};

} // namespace talvora::web
