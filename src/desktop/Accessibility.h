// What assistive technology gets to know: surfaces as texts, menu buttons as buttons.
#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>

namespace talvora {

class ControlView;
class Surface;
class SurfaceView;

/// Makes surfaces and buttons known to Qt's accessibility; any number of calls count as one.
void installAccessibility();

/// Tells that a control has got the keyboard.
void tellFocus(ControlView& view);

/// What is said aloud when it comes up, though it never gets the keyboard: an entry, an
/// explanation, a message, a score. It shows nothing.
class Announcer final : public QWidget {
 public:
  using QWidget::QWidget;

  void tell(const QString& text);
};

/// What is told of a surface that came up; a long text is told in part.
[[nodiscard]] QString announcementOf(const Surface& surface);

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
