#include "desktop/InputGate.h"

#include "desktop/DeedEvent.h"
#include "desktop/KeyCodes.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace talvora {

namespace {

bool isInput(QEvent::Type type) {
  if (type == DeedEvent::type()) return true;
  switch (type) {
  case QEvent::KeyPress:
  case QEvent::KeyRelease:
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonRelease:
  case QEvent::MouseButtonDblClick:
  case QEvent::MouseMove:
  case QEvent::Wheel:
    return true;
  default:
    return false;
  }
}

} // namespace

void InputGate::open() {
  if (--shut_ > 0) return;
  // From the event loop, since the handler that slept goes on first.
  QMetaObject::invokeMethod(
      this, [this] { opened(); }, Qt::QueuedConnection);
  letHeldThrough();
}

void InputGate::beginPump() {
  ++pumps_;
  moveLetThrough_ = false;
}

void InputGate::endPump() {
  --pumps_;
  moveLetThrough_ = false;
  if (shut_ == 0) letHeldThrough();
}

void InputGate::letHeldThrough() {
  std::vector<Held> held = std::exchange(held_, {});
  for (Held& each : held) {
    if (each.receiver) QCoreApplication::postEvent(each.receiver, each.event.release());
  }
}

bool InputGate::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationStateChange ||
      event->type() == QEvent::WindowDeactivate) {
    keys_.releaseAll();
    return false;
  }
  if (!isInput(event->type())) return false;
  sinceInput_.restart();
  // A window passes its events on to its widgets; the key table takes each stroke once, as the
  // window gets it.
  if (qobject_cast<QWindow*>(watched) != nullptr) {
    watchKeys(*event);
    return false;
  }
  if (qobject_cast<QWidget*>(watched) == nullptr) return false;
  if (!mustWait(*watched, *event)) {
    if (event->type() == QEvent::MouseMove) moveLetThrough_ = true;
    return false;
  }
  hold(watched, *event);
  return true;
}

void InputGate::watchKeys(const QEvent& event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease) return;
  const auto& stroke = static_cast<const QKeyEvent&>(event);
  if (stroke.isAutoRepeat()) return;
  if (stroke.type() == QEvent::KeyPress) {
    keys_.press(keyCodeOf(stroke));
  } else {
    keys_.release(keyCodeOf(stroke));
    if (shut_ == 0 && !keys_.arrowDown()) letHeldThrough();
  }
}

bool InputGate::mustWait(const QObject& watched, const QEvent& event) const {
  if (awake_ != nullptr && (&watched == awake_ || watched.parent() == awake_)) return false;
  if (shut_ > 0) return true;
  if (event.type() != QEvent::MouseMove) return false;
  return (pumps_ > 0 && moveLetThrough_) || (holdMoves_ && keys_.arrowDown());
}

void InputGate::hold(QObject* watched, const QEvent& event) {
  // A key that is held down while the program sleeps counts once.
  if (event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).isAutoRepeat()) {
    return;
  }
  // Only the last of several moves counts, and held moves do not pile up.
  if (event.type() == QEvent::MouseMove && !held_.empty() &&
      held_.back().event->type() == QEvent::MouseMove) {
    held_.pop_back();
  }
  held_.push_back({watched, std::unique_ptr<QEvent>(event.clone())});
}

} // namespace talvora
