#include "core/Router.h"

#include "core/Message.h"

#include <functional>

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

Router::Router(Program& program, WebInput& input, Inbox& inbox, const LineLayout& layout)
    : program_(program), input_(input), inbox_(inbox),
      mouseKeys_(program.form(), program.input(),
                 [](const std::function<void()>& deed) { deed(); }),
      barMouse_(program.form(), layout) {
  mouseKeys_.movePointer = [this](PixelPoint at) { input_.pointerCame(at); };
}

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
    if (event.which == 0) barMouse_.release();
    if (barMouse_.held() != nullptr) {
      barMouse_.drag(pointerOf(event));
    } else {
      form.move(pointerOf(event), event.shift, heldOf(event.which));
    }
    break;
  case EventKind::Press:
    press(event);
    break;
  case EventKind::Release:
    if (barMouse_.held() == nullptr) form.release(buttonOf(event), event.shift, pointerOf(event));
    barMouse_.release();
    break;
  case EventKind::Wheel:
    form.turnWheel(event.which, pointerOf(event));
    break;
  case EventKind::KeyDown:
    pressKey(event);
    break;
  case EventKind::KeyUp:
    if (!mouseKeys_.release(event.x)) form.releaseKey(event.x, event.shift);
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
  case EventKind::Carry:
    program_.keep();
    tellPage({{"do", "kept"}});
    break;
  case EventKind::Answer:
    break;
  }
}

void Router::pressKey(const Event& event) {
  if (mouseKeys_.press(event.x, event.shift, event.extra != 0)) return;
  // A stroke that was held back is news to the loops that poll only now.
  inbox_.keys.latch(event.x);
  program_.input().pressKey(event.x, event.shift, static_cast<char>(event.y));
}

void Router::press(const Event& event) {
  const SurfacePoint at = pointerOf(event);
  if (barMouse_.press(at)) return;
  if (event.extra != 0 && event.which != RightButton) {
    program_.input().doubleClick(event.shift, at);
  } else {
    program_.input().press(buttonOf(event), event.shift, at);
  }
}

void Router::deliver(const WebInput::Sent& sent) {
  if (const auto* event = std::get_if<SyntheticEvent>(&sent)) {
    if (const auto* stroke = std::get_if<SyntheticKey>(event)) inbox_.keys.take(*stroke);
    program_.input().deliver(*event, mouseKeys_.shiftDown(inbox_.keys));
  } else {
    const PixelPoint at = std::get<WebInput::Move>(sent).at;
    program_.input().deliverMove(program_.form().virtualScreen().toForm(at),
                                 mouseKeys_.shiftDown(inbox_.keys));
  }
}

} // namespace talvora::web
