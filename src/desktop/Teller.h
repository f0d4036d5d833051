// What assistive technology is told while it listens: the keyboard's place, what changes in a text,
// what comes up beside it.
#pragma once

#include "surface/Surface.h"

#include <QString>
#include <QWidget>

#include <cstdint>

namespace talvora {

/// Tells that a view has got the keyboard.
void tellFocus(QWidget& view);

/// What is said aloud when it comes up, though it never gets the keyboard: an entry, an
/// explanation, a message, a score. It shows nothing.
class Announcer final : public QWidget {
 public:
  using QWidget::QWidget;

  void tell(const QString& text);
};

/// Tells what changes in a surface, as of its view. As long as nobody listens it costs nothing.
class TextTeller {
 public:
  TextTeller(QWidget& view, const Surface& surface) : view_(view), surface_(surface) {}

  /// Tells what has changed since the last call.
  void tell();

 private:
  void tellText();

  QWidget& view_;
  const Surface& surface_;
  std::uint64_t revision_ = 0;
  QString text_; ///< as it was told last
  int caret_ = 0;
  int selected_ = 0;
};

} // namespace talvora
