#include "desktop/FormMouse.h"

#include "desktop/KeyCodes.h"
#include "surface/Surface.h"

#include <QMouseEvent>
#include <QWheelEvent>

#include <cmath>
#include <optional>
#include <utility>

namespace talvora {

namespace {

constexpr int WheelNotch = 120;        ///< of Qt's angle units
constexpr int TwipsPerNotch = 3 * 540; ///< about three lines

/// Empty for a button of the mouse that the program does not know.
std::optional<MouseButton> buttonOf(const QMouseEvent& event) {
  if (event.button() == Qt::LeftButton) return MouseButton::Left;
  if (event.button() == Qt::RightButton) return MouseButton::Right;
  return std::nullopt;
}

SurfacePoint inside(const Control& control, SurfacePoint point) {
  return {point.x - control.Left(), point.y - control.Top()};
}

} // namespace

SurfacePoint FormMouse::pointOf(QPointF pixels) const {
  return {static_cast<int>(std::floor(pixels.x() / scale_)),
          static_cast<int>(std::floor(pixels.y() / scale_))};
}

void FormMouse::take(SurfacePoint point) {
  pointer_ = point;
  pointerCame(point);
}

void FormMouse::press(const QMouseEvent& event) {
  take(pointOf(event.position()));
  const auto button = buttonOf(event);
  if (!button) return;
  pressed_ = hovered();
  if (auto* surface = dynamic_cast<Surface*>(pressed_)) {
    deliverPress([&] {
      surface->SetFocus();
      surface->pressMouse(*button, shiftOf(event.modifiers()), inside(*surface, pointer_));
    });
  } else if (dynamic_cast<Button*>(pressed_) != nullptr) {
    bridge_.deliver([&] { pressed_->SetFocus(); });
  }
}

void FormMouse::release(const QMouseEvent& event) {
  take(pointOf(event.position()));
  const auto button = buttonOf(event);
  if (!button) return;
  Control* const pressed = std::exchange(pressed_, nullptr);
  if (auto* surface = dynamic_cast<Surface*>(pressed)) {
    bridge_.deliver([&] {
      surface->releaseMouse(*button, shiftOf(event.modifiers()), inside(*surface, pointer_));
    });
  } else if (auto* menuButton = dynamic_cast<Button*>(pressed)) {
    const bool clicked = *button == MouseButton::Left && hovered() == menuButton;
    if (!clicked || !menuButton->Click) return;
    bridge_.deliver([&] { menuButton->Click(); });
  }
}

void FormMouse::doubleClick(const QMouseEvent& event) {
  auto* const surface = dynamic_cast<Surface*>(form_.controlAt(pointOf(event.position())));
  if (surface == nullptr || event.button() != Qt::LeftButton) {
    press(event);
    return;
  }
  take(pointOf(event.position()));
  pressed_ = surface;
  deliverPress(
      [&] { surface->doubleClick(shiftOf(event.modifiers()), inside(*surface, pointer_)); });
}

void FormMouse::deliverPress(const std::function<void()>& deed) {
  pressing_ = true;
  bridge_.deliver(deed);
  pressing_ = false;
}

void FormMouse::focusMoved() {
  // A surface may hand the keyboard on when it is pressed, as the popup does, and still gets the
  // release. A button keeps what it was given.
  const bool ownDoing = pressing_ && dynamic_cast<Surface*>(pressed_) != nullptr;
  if (!ownDoing && form_.ActiveControl() != pressed_) endPress();
}

void FormMouse::move(const QMouseEvent& event) {
  const SurfacePoint point = pointOf(event.position());
  if (point == pointer_) return;
  take(point);
  const int shift = shiftOf(event.modifiers());
  // A button that is not down any more was let go where nobody told the window.
  if (event.buttons() == Qt::NoButton) endPress();
  if (pressed_ != nullptr) {
    auto* const surface = dynamic_cast<Surface*>(pressed_);
    if (surface == nullptr || !event.buttons().testFlag(Qt::LeftButton)) return;
    bridge_.deliver([&] { surface->dragMouse(shift, inside(*surface, pointer_)); });
    return;
  }
  Control* const steered = steeredButton();
  Control* const under = steered == nullptr ? hovered() : steered;
  if (auto* surface = dynamic_cast<Surface*>(under)) {
    bridge_.deliver([&] { surface->moveMouse(shift, inside(*surface, pointer_)); });
  } else if (auto* menuButton = dynamic_cast<Button*>(under)) {
    if (!menuButton->MouseMove) return;
    bridge_.deliver([&] { menuButton->MouseMove(); });
  }
}

void FormMouse::wheel(const QWheelEvent& event) {
  take(pointOf(event.position()));
  auto* const surface = dynamic_cast<Surface*>(hovered());
  const double notches = static_cast<double>(event.angleDelta().y()) / WheelNotch;
  const int twips = static_cast<int>(std::lround(-notches * TwipsPerNotch));
  if (surface == nullptr || twips == 0) return;
  bridge_.deliver([&] { surface->scrollBy(twips); });
}

} // namespace talvora
