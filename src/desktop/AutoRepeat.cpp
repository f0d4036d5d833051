#include "desktop/AutoRepeat.h"

#include <QCoreApplication>
#include <QWindow>

#include <utility>

namespace talvora {

namespace {

/// The press of a pair is on its way when the release comes.
constexpr int PatienceMs = 10;

} // namespace

AutoRepeat::AutoRepeat() {
  patience_.setSingleShot(true);
  patience_.setInterval(PatienceMs);
  QObject::connect(&patience_, &QTimer::timeout, this, [this] { passRelease(); });
}

bool AutoRepeat::eventFilter(QObject* watched, QEvent* event) {
  if (event == passed_ || qobject_cast<QWindow*>(watched) == nullptr) return false;
  switch (event->type()) {
  case QEvent::KeyRelease: {
    const auto& release = static_cast<const QKeyEvent&>(*event);
    passRelease();
    if (release.isAutoRepeat()) return false;
    keepBack(watched, release);
    return true;
  }
  case QEvent::KeyPress: {
    const auto& press = static_cast<const QKeyEvent&>(*event);
    if (!repeats(press)) {
      passRelease();
      return false;
    }
    release_.reset();
    pass(press);
    return true;
  }
  case QEvent::MouseButtonPress:
  case QEvent::FocusOut:
    passRelease();
    return false;
  default:
    return false;
  }
}

void AutoRepeat::keepBack(QObject* window, const QKeyEvent& release) {
  window_ = window;
  release_.reset(release.clone());
  patience_.start();
}

bool AutoRepeat::repeats(const QKeyEvent& press) const {
  // Strokes that the program sends itself have no moment.
  return release_ != nullptr && press.timestamp() != 0 &&
         press.timestamp() == release_->timestamp() &&
         press.nativeScanCode() == release_->nativeScanCode() && press.key() == release_->key();
}

void AutoRepeat::passRelease() {
  patience_.stop();
  if (release_ == nullptr) return;
  const std::unique_ptr<QKeyEvent> release = std::exchange(release_, nullptr);
  pass(*release);
}

void AutoRepeat::pass(const QKeyEvent& stroke) {
  if (window_ == nullptr) return;
  const bool repeated = stroke.type() == QEvent::KeyPress;
  QKeyEvent copy(stroke.type(), stroke.key(), stroke.modifiers(), stroke.nativeScanCode(),
                 stroke.nativeVirtualKey(), stroke.nativeModifiers(), stroke.text(), repeated);
  copy.setTimestamp(stroke.timestamp());
  passed_ = &copy;
  QCoreApplication::sendEvent(window_, &copy);
  passed_ = nullptr;
}

} // namespace talvora
