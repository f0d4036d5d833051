#include "driver/Learner.h"

#include "platform/FatalFailure.h"
#include "platform/Files.h"

#include <exception>
#include <utility>

namespace talvora {

namespace {

// A loop that waits for the learner is given up after so much virtual time.
constexpr std::int64_t PatienceMs = std::int64_t{30} * 60 * 1000;

SurfacePoint middleOf(const Control& control) {
  return {control.Left() + control.Width() / 2, control.Top() + control.Height() / 2};
}

} // namespace

// -- Deeds.

void Learner::perform(const std::function<void()>& deed) {
  machine_.input.giveUpAt(machine_.time.nowMs() + PatienceMs);
  try {
    deed();
    hand_.followPointer();
    // The wish that ended a wait is delivered when whatever waited is done.
    if (machine_.clock.takeWish()) hand_.deliver([this] { program_.closeWindow(); });
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
  perform([this] { hand_.deliver([this] { program_.Main(); }); });
}

void Learner::fail(const std::string& reason) {
  failure_ = reason;
  program_.fail();
}

void Learner::close() {
  perform([this] { hand_.deliver([this] { program_.closeWindow(); }); });
}

void Learner::wait(int ms) {
  perform([&] {
    machine_.time.pass(ms);
    hand_.deliverSent();
  });
}

void Learner::click(Button& button) {
  perform([&] { hand_.click(button); });
}

void Learner::hover(Button& button, int frames) {
  perform([&] {
    machine_.events.allowFrames(frames);
    hand_.pointAt(button);
  });
  machine_.events.interrupt();
}

SurfacePoint Learner::mouse(Surface& surface, const MouseGesture& gesture) {
  SurfacePoint point;
  perform([&] { point = hand_.mouse(surface, gesture); });
  return point;
}

void Learner::move(Surface& surface, SurfacePoint at) {
  perform([&] { hand_.move(surface, at); });
}

void Learner::strike(const ScriptedKey& key, int shift, Stroke stroke, Control* on) {
  perform([&] {
    if (on != nullptr) hand_.deliver([&] { on->SetFocus(); });
    hand_.strike(key, shift, stroke);
  });
}

void Learner::type(const std::vector<ScriptedKey>& keys, Control* on) {
  for (const ScriptedKey& key : keys) {
    strike(key, shift::None, Stroke::Whole, std::exchange(on, nullptr));
  }
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

} // namespace talvora
