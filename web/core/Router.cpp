#include "core/Router.h"

#include "surface/Button.h"
#include "surface/Surface.h"

#include <cmath>
#include <utility>

namespace talvora::web {

namespace {

constexpr int TwipsPerPixel = 15;
/// The bits of the two buttons in `Event::which` of a press.
constexpr int RightButton = 2;

int floorDivided(int value, int by) {
  return static_cast<int>(std::floor(static_cast<double>(value) / by));
}

SurfacePoint inside(const Control& control, SurfacePoint point) {
  return {point.x - control.Left(), point.y - control.Top()};
}

MouseButton buttonOf(const Event& event) {
  return event.which == RightButton ? MouseButton::Right : MouseButton::Left;
}

/// A modifier's own stroke carries its bit while it goes down, and no more when it comes up.
int ownBit(int keyCode) {
  return keyCode == key::Ctrl ? shift::Ctrl : keyCode == key::Shift ? shift::Shift : 0;
}

} // namespace

SurfacePoint Router::formPoint(int x, int y) const {
  return {x, y - (screen_.pixelHeight() * TwipsPerPixel - program_.form().Height())};
}

SurfacePoint Router::formPoint(PixelPoint pixel) const {
  return formPoint(pixel.x * TwipsPerPixel, pixel.y * TwipsPerPixel);
}

void Router::deliver(const Event& event) {
  const SurfacePoint at = formPoint(event.x, event.y);
  const bool pointer = event.kind == EventKind::Move || event.kind == EventKind::Press ||
                       event.kind == EventKind::Release || event.kind == EventKind::Wheel;
  if (pointer) {
    input_.pointerCame(
        {floorDivided(event.x, TwipsPerPixel), floorDivided(event.y, TwipsPerPixel)});
  }
  Form& form = program_.form();
  switch (event.kind) {
  case EventKind::Move:
    move(at, event.which, event.shift);
    break;
  case EventKind::Press:
    press(at, event);
    break;
  case EventKind::Release:
    release(at, event);
    break;
  case EventKind::Wheel:
    wheel(at, event.which);
    break;
  case EventKind::KeyDown:
    // A stroke that was held back is news to the loops that poll only now.
    inbox_.keys.latch(event.x);
    form.pressKey(event.x, event.shift | ownBit(event.x), static_cast<char>(event.y));
    break;
  case EventKind::KeyUp:
    form.releaseKey(event.x, event.shift & ~ownBit(event.x));
    break;
  case EventKind::Close:
    inbox_.closeDelivered();
    program_.closeWindow();
    break;
  case EventKind::Hidden:
    program_.keep();
    break;
  case EventKind::Answer:
  case EventKind::Blur:
    break;
  }
}

// -- The pointer.

void Router::press(SurfacePoint at, const Event& event) {
  pressed_ = program_.form().controlAt(at);
  if (auto* surface = dynamic_cast<Surface*>(pressed_)) {
    if (event.extra != 0 && event.which != RightButton) {
      surface->doubleClick(event.shift, inside(*surface, at));
      return;
    }
    surface->SetFocus();
    surface->pressMouse(buttonOf(event), event.shift, inside(*surface, at));
  } else if (dynamic_cast<Button*>(pressed_) != nullptr) {
    pressed_->SetFocus();
  }
}

void Router::release(SurfacePoint at, const Event& event) {
  Control* const pressed = std::exchange(pressed_, nullptr);
  if (auto* surface = dynamic_cast<Surface*>(pressed)) {
    surface->releaseMouse(buttonOf(event), event.shift, inside(*surface, at));
  } else if (auto* button = dynamic_cast<Button*>(pressed)) {
    const bool clicked = event.which != RightButton && program_.form().controlAt(at) == button;
    if (clicked && button->Click) button->Click();
  }
}

void Router::move(SurfacePoint at, int buttons, int shift) {
  // A button that is not down any more was let go where nobody told the page.
  if (buttons == 0) pressed_ = nullptr;
  if (pressed_ == nullptr) {
    moveTo(at, shift);
  } else if (auto* surface = dynamic_cast<Surface*>(pressed_)) {
    if ((buttons & 1) != 0) surface->dragMouse(shift, inside(*surface, at));
  }
}

void Router::moveTo(SurfacePoint at, int shift) {
  Control* const steered = program_.steeredButton();
  Control* const under = steered == nullptr ? program_.form().controlAt(at) : steered;
  if (auto* surface = dynamic_cast<Surface*>(under)) {
    surface->moveMouse(shift, inside(*surface, at));
  } else if (auto* button = dynamic_cast<Button*>(under)) {
    if (button->MouseMove) button->MouseMove();
  }
}

void Router::wheel(SurfacePoint at, int twips) {
  if (auto* surface = dynamic_cast<Surface*>(program_.form().controlAt(at))) {
    surface->scrollBy(twips);
  }
}

// -- What the program sends itself.

void Router::deliver(const WebInput::Sent& sent) {
  Form& form = program_.form();
  const int shift = inbox_.keys.isDown(key::Shift) ? shift::Shift : 0;
  if (const auto* click = std::get_if<WebInput::Click>(&sent)) {
    Event event;
    event.which = click->button == MouseButton::Right ? RightButton : 1;
    event.shift = shift;
    const SurfacePoint at = formPoint(click->at);
    press(at, event);
    release(at, event);
  } else if (const auto* stroke = std::get_if<WebInput::Stroke>(&sent)) {
    if (stroke->motion == KeyMotion::Down) {
      inbox_.keys.press(stroke->keyCode);
      form.pressKey(stroke->keyCode, shift, '\0');
    } else {
      inbox_.keys.release(stroke->keyCode);
      form.releaseKey(stroke->keyCode, 0);
    }
  } else {
    moveTo(formPoint(std::get<WebInput::Move>(sent).at), 0);
  }
}

} // namespace talvora::web
