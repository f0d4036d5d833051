#include "desktop/FormMouse.h"

#include "desktop/KeyCodes.h"

#include <QMouseEvent>
#include <QWheelEvent>

#include <cmath>
#include <optional>

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

MouseHeld heldOf(const QMouseEvent& event) {
  if (event.buttons() == Qt::NoButton) return MouseHeld::None;
  return event.buttons().testFlag(Qt::LeftButton) ? MouseHeld::Left : MouseHeld::Other;
}

} // namespace

SurfacePoint FormMouse::pointOf(QPointF pixels) const {
  return {static_cast<int>(std::floor(pixels.x() / scale_)),
          static_cast<int>(std::floor(pixels.y() / scale_))};
}

SurfacePoint FormMouse::take(QPointF pixels) {
  const SurfacePoint at = pointOf(pixels);
  input_.pointerCame(at);
  pointerCame(at);
  return at;
}

void FormMouse::press(const QMouseEvent& event) {
  const SurfacePoint at = take(event.position());
  const auto button = buttonOf(event);
  if (!button) return;
  bridge_.deliver([&] { input_.press(*button, shiftOf(event.modifiers()), at); });
}

void FormMouse::release(const QMouseEvent& event) {
  const SurfacePoint at = take(event.position());
  const auto button = buttonOf(event);
  if (!button) return;
  bridge_.deliver([&] { input_.release(*button, shiftOf(event.modifiers()), at); });
}

void FormMouse::doubleClick(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) {
    press(event);
    return;
  }
  const SurfacePoint at = take(event.position());
  bridge_.deliver([&] { input_.doubleClick(shiftOf(event.modifiers()), at); });
}

void FormMouse::move(const QMouseEvent& event) {
  // Qt also tells of moves that lead nowhere.
  if (pointOf(event.position()) == input_.pointer()) return;
  const SurfacePoint at = take(event.position());
  bridge_.deliver([&] { input_.move(at, shiftOf(event.modifiers()), heldOf(event)); });
}

void FormMouse::wheel(const QWheelEvent& event) {
  const SurfacePoint at = take(event.position());
  const double notches = static_cast<double>(event.angleDelta().y()) / WheelNotch;
  const int twips = static_cast<int>(std::lround(-notches * TwipsPerNotch));
  if (twips == 0) return;
  bridge_.deliver([&] { input_.turnWheel(twips, at); });
}

} // namespace talvora
