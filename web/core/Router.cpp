#include "core/Router.h"

namespace talvora::web {

namespace {

/// The bit of the right button in `Event::which`.
constexpr int RightButton = 2;

MouseButton buttonOf(const Event& event) {
  return event.which == RightButton ? MouseButton::Right : MouseButton::Left;
}

MouseHeld heldOf(int buttons) {
  if (buttons == 0) return MouseHeld::None;
  return (buttons & 1) != 0 ? MouseHeld::Left : MouseHeld::Other;
}

} // namespace

SurfacePoint Router::pointerOf(const Event& event) {
  const SurfacePoint at{event.x, event.y - program_.form().captionHeight()};
  program_.input().pointerCame(at);
  input_.pointerCame(program_.form().virtualScreen().toPixel(at));
  return at;
}

void Router::deliver(const Event& event) {
  FormInput& form = program_.input();
  switch (event.kind) {
  case EventKind::Move:
    form.move(pointerOf(event), event.shift, heldOf(event.which));
    break;
  case EventKind::Press:
    press(event);
    break;
  case EventKind::Release:
    form.release(buttonOf(event), event.shift, pointerOf(event));
    break;
  case EventKind::Wheel:
    form.turnWheel(event.which, pointerOf(event));
    break;
  case EventKind::KeyDown:
    // A stroke that was held back is news to the loops that poll only now.
    inbox_.keys.latch(event.x);
    form.pressKey(event.x, event.shift, static_cast<char>(event.y));
    break;
  case EventKind::KeyUp:
    form.releaseKey(event.x, event.shift);
    break;
  case EventKind::Close:
    inbox_.closeDelivered();
    program_.closeWindow();
    break;
  case EventKind::Hidden:
    program_.keep();
    break;
  case EventKind::Blur:
    form.endPress();
    break;
  case EventKind::Answer:
    break;
  }
}

void Router::press(const Event& event) {
  const SurfacePoint at = pointerOf(event);
  if (event.extra != 0 && event.which != RightButton) {
    program_.input().doubleClick(event.shift, at);
  } else {
    program_.input().press(buttonOf(event), event.shift, at);
  }
}

int Router::shiftDown() const {
  const auto bit = [this](int keyCode, int own) {
    return inbox_.keys.isDown(keyCode) ? own : shift::None;
  };
  return bit(key::Shift, shift::Shift) | bit(key::Ctrl, shift::Ctrl) | bit(key::Alt, shift::Alt);
}

void Router::deliver(const WebInput::Sent& sent) {
  if (const auto* event = std::get_if<SyntheticEvent>(&sent)) {
    if (const auto* stroke = std::get_if<SyntheticKey>(event)) inbox_.keys.take(*stroke);
    program_.input().deliver(*event, shiftDown());
  } else {
    const PixelPoint at = std::get<WebInput::Move>(sent).at;
    program_.input().deliverMove(program_.form().virtualScreen().toForm(at), shiftDown());
  }
}

} // namespace talvora::web
