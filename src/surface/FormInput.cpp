#include "surface/FormInput.h"

#include "text/Bytes.h"

#include <utility>
#include <variant>

namespace talvora {

namespace {

SurfacePoint inside(const Control& control, SurfacePoint at) {
  return {at.x - control.Left(), at.y - control.Top()};
}

/// The bit of the Shift argument that a key is itself.
int ownBit(int keyCode) {
  switch (keyCode) {
  case key::Shift:
    return shift::Shift;
  case key::Ctrl:
    return shift::Ctrl;
  case key::Alt:
    return shift::Alt;
  default:
    return shift::None;
  }
}

/// The character of a key that the program strikes; 0 for a key without.
char characterOf(int keyCode) {
  switch (keyCode) {
  case key::Esc:
  case key::Enter:
  case key::Space:
  case key::Tab:
  case key::Backspace:
    return chr(keyCode);
  default:
    return '\0';
  }
}

} // namespace

// -- The pointer.

Control* FormInput::meantAt(SurfacePoint at) const {
  Control* const steered = form_.steeredFrom(at);
  return steered != nullptr ? steered : form_.controlAt(at);
}

Control* FormInput::pressedControl() const noexcept {
  // A control may hand the keyboard on when it is pressed, as the popup does, and still gets the
  // release. When the keyboard passes on later, the press has ended elsewhere.
  const bool passedOn = !pressing_ && form_.focusMoves() != movesWhenPressed_;
  return passedOn ? nullptr : pressed_;
}

void FormInput::move(SurfacePoint at, int shift, MouseHeld held) {
  pointer_ = at;
  // A button that is not down any more was let go where nobody told the front.
  if (held == MouseHeld::None) endPress();
  if (Control* const pressed = pressedControl()) {
    if (held == MouseHeld::Left) pressed->dragMouse(shift, inside(*pressed, at));
  } else {
    deliverMove(at, shift);
  }
}

template <class Deed>
void FormInput::deliverPress(Control& control, Deed deed) {
  pressed_ = &control;
  pressing_ = true;
  deed();
  pressing_ = false;
  movesWhenPressed_ = form_.focusMoves();
}

void FormInput::press(MouseButton button, int shift, SurfacePoint at) {
  pointer_ = at;
  endPress();
  Control* const under = hovered();
  if (under == nullptr) return;
  deliverPress(*under, [&] {
    under->SetFocus();
    under->pressMouse(button, shift, inside(*under, at));
  });
}

void FormInput::doubleClick(int shift, SurfacePoint at) {
  pointer_ = at;
  endPress();
  Control* const under = hovered();
  if (under == nullptr) return;
  deliverPress(*under, [&] { under->doubleClick(shift, inside(*under, at)); });
}

void FormInput::release(MouseButton button, int shift, SurfacePoint at) {
  pointer_ = at;
  Control* const pressed = pressedControl();
  endPress();
  if (pressed == nullptr) return;
  const bool clicked = button == MouseButton::Left && hovered() == pressed;
  pressed->releaseMouse(button, shift, inside(*pressed, at));
  if (clicked) pressed->clickMouse();
}

void FormInput::turnWheel(int twips, SurfacePoint at) {
  pointer_ = at;
  Control* const under = hovered();
  if (under != nullptr && twips != 0) under->scrollBy(twips);
}

// -- Keys.

void FormInput::pressKey(int keyCode, int shift, char character) {
  form_.pressKey(keyCode, shift | ownBit(keyCode), character);
}

void FormInput::releaseKey(int keyCode, int shift) {
  form_.releaseKey(keyCode, shift & ~ownBit(keyCode));
}

// -- What the program sends itself.

void FormInput::deliver(const SyntheticEvent& event, int shift) {
  if (const auto* sent = std::get_if<SyntheticClick>(&event)) {
    click(*sent, shift);
    return;
  }
  const auto& stroke = std::get<SyntheticKey>(event);
  if (stroke.motion == KeyMotion::Down) {
    const bool silent = (shift & shift::Ctrl) != 0;
    pressKey(stroke.code, shift, silent ? '\0' : characterOf(stroke.code));
  } else {
    releaseKey(stroke.code, shift);
  }
}

void FormInput::deliverMove(SurfacePoint at, int shift) {
  if (form_.steeredFrom(at) == nullptr) form_.endSteering();
  Control* const meant = meantAt(at);
  if (meant != nullptr) meant->moveMouse(shift, inside(*meant, at));
}

void FormInput::click(const SyntheticClick& click, int shift) {
  const VirtualScreen screen = form_.virtualScreen();
  // Pixels are coarser than the places to which a pointer is brought.
  const SurfacePoint at = screen.toPixel(pointer_) == click.at ? pointer_ : screen.toForm(click.at);
  Control* const under = form_.controlAt(at);
  if (under == nullptr) return;
  under->SetFocus();
  under->pressMouse(click.button, shift, inside(*under, at));
  under->releaseMouse(click.button, shift, inside(*under, at));
  if (click.button == MouseButton::Left) under->clickMouse();
}

} // namespace talvora
