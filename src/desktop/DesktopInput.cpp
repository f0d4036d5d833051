#include "desktop/DesktopInput.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMetaObject>

namespace talvora {

namespace {

/// Whether the platform lets a program move the pointer.
bool pointerMoves() {
  static const bool moves = [] {
    const QString name = QGuiApplication::platformName();
    return name != QLatin1String("offscreen") && name != QLatin1String("minimal") &&
           !name.startsWith(QLatin1String("wayland"));
  }();
  return moves;
}

} // namespace

void DesktopInput::SetCursorPos(PixelPoint point) {
  pointer_ = point;
  if (!pointerMoves()) {
    send(Move{point});
  } else if (toGlobal) {
    QCursor::setPos(toGlobal(point));
  }
}

PixelPoint DesktopInput::cursorPos() const {
  return pointerMoves() && fromGlobal ? fromGlobal(QCursor::pos()) : pointer_;
}

void DesktopInput::sendClick(MouseButton button) {
  send(SyntheticClick{button, cursorPos()});
}

void DesktopInput::sendKey(int keyCode, KeyMotion motion) {
  send(SyntheticKey{keyCode, motion});
}

void DesktopInput::send(Sent sent) {
  sent_.push_back(sent);
  // Queued calls come before input that the window system still holds.
  QMetaObject::invokeMethod(
      &gate_, [this] { deliverSent(); }, Qt::QueuedConnection);
}

void DesktopInput::deliverSent() {
  while (!sent_.empty() && !gate_.isShut()) {
    const Sent next = sent_.front();
    sent_.pop_front();
    if (const auto* event = std::get_if<SyntheticEvent>(&next)) {
      if (happened) happened(*event);
    } else if (moveTo) {
      moveTo(std::get<Move>(next).at);
    }
  }
}

} // namespace talvora
