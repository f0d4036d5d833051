#include "driver/Hand.h"

#include <stdexcept>
#include <variant>

namespace talvora {

namespace {

// A program that answers its own clicks with clicks for ever fails.
constexpr int MostSynthetic = 1000;

SurfacePoint onForm(const Control& control, SurfacePoint at) {
  return {control.Left() + at.x, control.Top() + at.y};
}

} // namespace

// -- Events.

void Hand::deliver(const std::function<void()>& event) {
  if (!goesOn_()) return;
  event();
  deliverSent();
}

void Hand::deliverSent() {
  int count = 0;
  for (auto event = machine_.input.takeSynthetic(); event; event = machine_.input.takeSynthetic()) {
    if (!goesOn_()) continue;
    if (++count > MostSynthetic) throw std::runtime_error("clicks and strokes without end");
    send(*event);
  }
}

void Hand::send(const SyntheticEvent& event) {
  if (const auto* stroke = std::get_if<SyntheticKey>(&event)) {
    if (stroke->motion == KeyMotion::Down) {
      machine_.input.keyDown(stroke->code);
    } else {
      machine_.input.keyUp(stroke->code);
    }
  }
  input_.deliver(event, machine_.input.shiftState());
}

// -- The pointer.

void Hand::pointAt(Button& button) {
  const SurfacePoint middle{button.Width() / 2, button.Height() / 2};
  placePointer(onForm(button, middle));
  deliver([&] { button.moveMouse(machine_.input.shiftState(), middle); });
}

void Hand::click(Button& button) {
  pointAt(button);
  const SurfacePoint at = input_.pointer();
  const int shift = machine_.input.shiftState();
  deliver([&] { input_.press(MouseButton::Left, shift, at); });
  deliver([&] { input_.release(MouseButton::Left, shift, at); });
}

SurfacePoint Hand::mouse(Surface& surface, const MouseGesture& gesture) {
  SurfacePoint at = pointAtCharacter(surface, gesture.at);
  const int shift = gesture.shift;
  deliver([&] { input_.move(onForm(surface, at), shift, MouseHeld::None); });
  // The program may have scrolled or hidden the surface when the pointer came.
  if (!surface.Visible()) return at;
  at = pointAtCharacter(surface, gesture.at);
  press(surface, gesture, at);
  if (gesture.to && surface.Visible()) {
    at = pointAtCharacter(surface, *gesture.to);
    deliver([&] { input_.move(onForm(surface, at), shift, MouseHeld::Left); });
  }
  deliver([&] { input_.release(gesture.button, shift, onForm(surface, at)); });
  if (gesture.clicks == Clicks::Once || !surface.Visible()) return at;
  deliver([&] { input_.doubleClick(shift, onForm(surface, at)); });
  deliver([&] { input_.release(gesture.button, shift, onForm(surface, at)); });
  return at;
}

void Hand::press(Surface& surface, const MouseGesture& gesture, SurfacePoint at) {
  deliver([&] {
    input_.press(gesture.button, gesture.shift, onForm(surface, at));
    // Whatever the handler did to the text in between, a left click puts the caret where it was
    // aimed.
    if (gesture.button == MouseButton::Left && surface.SelStart() != gesture.at) {
      surface.SelStart(gesture.at);
    }
  });
}

SurfacePoint Hand::pointAtCharacter(Surface& surface, int caret) {
  SurfacePoint point = surface.pointOf(caret);
  if (point.y < 0 || point.y >= surface.Height()) {
    surface.scrollBy(point.y - surface.Height() / 2);
    point = surface.pointOf(caret);
  }
  placePointer(onForm(surface, point));
  return point;
}

void Hand::move(Surface& surface, SurfacePoint at) {
  placePointer(onForm(surface, at));
  deliver([&] { surface.moveMouse(machine_.input.shiftState(), at); });
}

void Hand::followPointer() {
  if (!machine_.input.takePointerMoved()) return;
  const SurfacePoint at = form_.virtualScreen().toForm(machine_.input.cursorPos());
  deliver([&] { input_.deliverMove(at, machine_.input.shiftState()); });
}

void Hand::placePointer(SurfacePoint formPoint) {
  input_.pointerCame(formPoint);
  machine_.input.placePointer(form_.virtualScreen().toPixel(formPoint));
}

// -- Keys.

void Hand::strike(const ScriptedKey& key, int shift, Stroke stroke) {
  if (stroke != Stroke::Up) deliver([&] { pressKey(key, shift); });
  if (stroke != Stroke::Down) deliver([&] { releaseKey(key, shift); });
}

void Hand::pressKey(const ScriptedKey& key, int shift) {
  machine_.input.keyDown(key.code);
  const int state = shift | machine_.input.shiftState();
  // A key gives no character while Ctrl is down.
  const bool silent = (state & shift::Ctrl) != 0;
  input_.pressKey(key.code, state, silent ? '\0' : key.character);
}

void Hand::releaseKey(const ScriptedKey& key, int shift) {
  machine_.input.keyUp(key.code);
  input_.releaseKey(key.code, shift | machine_.input.shiftState());
}

} // namespace talvora
