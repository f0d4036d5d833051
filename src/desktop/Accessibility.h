// What assistive technology gets to know: surfaces as texts, menu buttons as buttons.
#pragma once

#include <QString>

#include <cstdint>

namespace talvora {

class ControlView;
class SurfaceView;

/// Makes surfaces and buttons known to Qt's accessibility; any number of calls count as one.
void installAccessibility();

/// Tells that a control has got the keyboard.
void tellFocus(ControlView& view);

/// Tells what changes in a surface. As long as nobody listens it costs nothing.
class TextTeller {
 public:
  explicit TextTeller(SurfaceView& view) : view_(view) {}

  /// Tells what has changed since the last call.
  void tell();

 private:
  void tellText();

  SurfaceView& view_;
  std::uint64_t revision_ = 0;
  QString text_; ///< as it was told last
  int caret_ = 0;
  int selected_ = 0;
};

} // namespace talvora
