#include "driver/Learner.h"

#include "platform/FatalFailure.h"
#include "platform/Files.h"
#include "surface/Button.h"
#include "surface/Surface.h"

#include <cmath>
#include <exception>
#include <stdexcept>
#include <utility>

namespace talvora {

namespace {

constexpr int TwipsPerPixel = 15;
// A program that answers its own clicks with clicks for ever fails.
constexpr int MostSynthetic = 1000;
// A loop that waits for the learner is given up after so much virtual time.
constexpr std::int64_t PatienceMs = std::int64_t{30} * 60 * 1000;

int floorDivided(int value, int by) {
  return static_cast<int>(std::floor(static_cast<double>(value) / by));
}

SurfacePoint relativeTo(const Control& control, SurfacePoint formPoint) {
  return {formPoint.x - control.Left(), formPoint.y - control.Top()};
}

SurfacePoint middleOf(const Control& control) {
  return {control.Left() + control.Width() / 2, control.Top() + control.Height() / 2};
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

} // namespace

// -- Deeds.

void Learner::perform(const std::function<void()>& deed) {
  machine_.input.giveUpAt(machine_.time.nowMs() + PatienceMs);
  try {
    deed();
    deliver([this] { deliverPointerMove(); });
    // The wish that ended a wait is delivered when whatever waited is done.
    if (machine_.clock.takeWish()) deliver([this] { program_.closeWindow(); });
    tellOfShrunkFile();
  } catch (const FatalFailure& failure) {
    fail(failure.what());
  } catch (const std::exception& defect) {
    fail(std::string("a defect: ") + defect.what());
  }
}

void Learner::tellOfShrunkFile() {
  const std::string file = takeShrunkFile();
  if (!file.empty()) throw FatalFailure(shrunkFileProblem(file));
}

void Learner::start() {
  perform([this] { deliver([this] { program_.Main(); }); });
}

void Learner::fail(const std::string& reason) {
  failure_ = reason;
  program_.fail();
}

void Learner::close() {
  perform([this] { deliver([this] { program_.closeWindow(); }); });
}

void Learner::wait(int ms) {
  perform([&] {
    machine_.time.pass(ms);
    deliver([] {});
  });
}

void Learner::click(Button& button) {
  perform([&] {
    pointAtMiddle(button);
    deliver([&] { button.SetFocus(); });
    deliver([&] {
      if (button.Click) button.Click();
    });
  });
}

void Learner::hover(Button& button, int frames) {
  perform([&] {
    machine_.events.allowFrames(frames);
    pointAtMiddle(button);
  });
  machine_.events.interrupt();
}

void Learner::pointAtMiddle(const Button& button) {
  placePointer(middleOf(button));
  deliver([&] {
    if (button.MouseMove) button.MouseMove();
  });
}

// -- What lies over what.

const Control* Learner::coverAt(const Control& control, SurfacePoint formPoint) const {
  const Control* const met = program_.form().controlAt(formPoint);
  return met == &control ? nullptr : met;
}

const Control* Learner::coverOf(const Button& button) const {
  return coverAt(button, middleOf(button));
}

const Control* Learner::coverOf(const Surface& surface, int caret) const {
  SurfacePoint point = surface.pointOf(caret);
  // What is out of view is scrolled into the middle first.
  if (point.y < 0 || point.y >= surface.Height()) point.y = surface.Height() / 2;
  return coverAt(surface, {surface.Left() + point.x, surface.Top() + point.y});
}

// -- The mouse on a surface.

SurfacePoint Learner::mouse(Surface& surface, const MouseGesture& gesture) {
  SurfacePoint point;
  perform([&] {
    point = pointAtCharacter(surface, gesture.at);
    deliver([&] { surface.moveMouse(gesture.shift, point); });
    // The program may have scrolled or hidden the surface when the pointer came.
    if (!surface.Visible()) return;
    point = pointAtCharacter(surface, gesture.at);
    press(surface, gesture, point);
    if (gesture.to && surface.Visible()) {
      point = pointAtCharacter(surface, *gesture.to);
      deliver([&] { surface.dragMouse(gesture.shift, point); });
    }
    deliver([&] { surface.releaseMouse(gesture.button, gesture.shift, point); });
    if (gesture.clicks == Clicks::Once || !surface.Visible()) return;
    deliver([&] { surface.doubleClick(gesture.shift, point); });
    deliver([&] { surface.releaseMouse(gesture.button, gesture.shift, point); });
  });
  return point;
}

void Learner::press(Surface& surface, const MouseGesture& gesture, SurfacePoint point) {
  deliver([&] { surface.SetFocus(); });
  deliver([&] {
    surface.pressMouse(gesture.button, gesture.shift, point);
    // Whatever the handler did to the text in between, a left click puts the caret where it was
    // aimed.
    if (gesture.button == MouseButton::Left && surface.SelStart() != gesture.at) {
      surface.SelStart(gesture.at);
    }
  });
}

SurfacePoint Learner::pointAtCharacter(Surface& surface, int caret) {
  SurfacePoint point = surface.pointOf(caret);
  if (point.y < 0 || point.y >= surface.Height()) {
    surface.scrollBy(point.y - surface.Height() / 2);
    point = surface.pointOf(caret);
  }
  placePointer({surface.Left() + point.x, surface.Top() + point.y});
  return point;
}

void Learner::move(Surface& surface, SurfacePoint at) {
  perform([&] {
    const SurfacePoint formPoint{surface.Left() + at.x, surface.Top() + at.y};
    placePointer(formPoint);
    deliver([&] { moveOver(&surface, formPoint); });
  });
}

// -- Keys.

void Learner::strike(const ScriptedKey& key, int shift, Stroke stroke, Control* on) {
  perform([&] {
    if (on != nullptr) deliver([&] { on->SetFocus(); });
    if (stroke != Stroke::Up) deliver([&] { pressKey(key, shift); });
    if (stroke != Stroke::Down) deliver([&] { releaseKey(key, shift); });
  });
}

void Learner::type(const std::vector<ScriptedKey>& keys, Control* on) {
  for (const ScriptedKey& key : keys) {
    strike(key, shift::None, Stroke::Whole, std::exchange(on, nullptr));
  }
}

void Learner::pressKey(const ScriptedKey& key, int shift) {
  machine_.input.keyDown(key.code);
  const int state = shift | machine_.input.shiftState() | ownBit(key.code);
  // A key gives no character while Ctrl is down.
  const bool silent = (state & shift::Ctrl) != 0;
  program_.form().pressKey(key.code, state, silent ? '\0' : key.character);
}

void Learner::releaseKey(const ScriptedKey& key, int shift) {
  machine_.input.keyUp(key.code);
  const int state = (shift | machine_.input.shiftState()) & ~ownBit(key.code);
  program_.form().releaseKey(key.code, state);
}

// -- What the program sends itself.

void Learner::deliver(const std::function<void()>& event) {
  if (!program_.running()) return;
  event();
  deliverSynthetic();
}

void Learner::deliverSynthetic() {
  int count = 0;
  for (auto event = machine_.input.takeSynthetic(); event; event = machine_.input.takeSynthetic()) {
    if (!program_.running()) continue;
    if (++count > MostSynthetic) throw std::runtime_error("clicks and strokes without end");
    std::visit([this](const auto& sent) { deliverSynthetic(sent); }, *event);
  }
}

void Learner::deliverSynthetic(const SyntheticClick& click) {
  const SurfacePoint formPoint = formPointOf(click.at);
  Control* const under = program_.form().controlAt(formPoint);
  if (auto* surface = dynamic_cast<Surface*>(under)) {
    const SurfacePoint at = relativeTo(*surface, formPoint);
    surface->SetFocus();
    surface->pressMouse(click.button, machine_.input.shiftState(), at);
    surface->releaseMouse(click.button, machine_.input.shiftState(), at);
  } else if (auto* button = dynamic_cast<Button*>(under)) {
    if (click.button != MouseButton::Left) return;
    button->SetFocus();
    if (button->Click) button->Click();
  }
}

void Learner::deliverSynthetic(const SyntheticKey& stroke) {
  const ScriptedKey key = keyNamed(keyName(stroke.code)).value_or(ScriptedKey{stroke.code, 0});
  if (stroke.motion == KeyMotion::Down) {
    pressKey(key, shift::None);
  } else {
    releaseKey(key, shift::None);
  }
}

// A desktop tells whatever is under the pointer when the program has moved it there.
void Learner::deliverPointerMove() {
  if (!machine_.input.takePointerMoved()) return;
  const SurfacePoint formPoint = formPointOf(machine_.input.cursorPos());
  Control* const steered = program_.steeredButton();
  moveOver(steered == nullptr ? program_.form().controlAt(formPoint) : steered, formPoint);
}

void Learner::moveOver(Control* control, SurfacePoint formPoint) {
  if (auto* surface = dynamic_cast<Surface*>(control)) {
    surface->moveMouse(machine_.input.shiftState(), relativeTo(*surface, formPoint));
  } else if (auto* button = dynamic_cast<Button*>(control)) {
    if (button->MouseMove) button->MouseMove();
  }
}

// -- Places. The form lies below the caption strip.

int Learner::captionHeight() const {
  return machine_.screen.pixelHeight() * TwipsPerPixel - program_.form().Height();
}

void Learner::placePointer(SurfacePoint formPoint) {
  placedPixel_ = {floorDivided(formPoint.x, TwipsPerPixel),
                  floorDivided(formPoint.y + captionHeight(), TwipsPerPixel)};
  placedPoint_ = formPoint;
  machine_.input.placePointer(placedPixel_);
}

SurfacePoint Learner::formPointOf(PixelPoint pixel) const {
  if (pixel == placedPixel_) return placedPoint_;
  return {pixel.x * TwipsPerPixel, pixel.y * TwipsPerPixel - captionHeight()};
}

} // namespace talvora
