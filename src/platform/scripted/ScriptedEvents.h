// An event loop with nothing pending. It interrupts whatever waits by letting events run, so that
// an animation without end stops at once unless a script asked to see some of it.
#pragma once

#include "platform/EventLoop.h"
#include "platform/scripted/ScriptedDesk.h"

#include <cstdint>

namespace talvora {

class ScriptedEvents final : public EventLoop {
 public:
  explicit ScriptedEvents(const ScriptedNarrator& narrator) : narrator_(narrator) {}

  Flow letEventsRun() override {
    return narrator_.framesShown() < framesUntil_ ? Flow::Continue : Flow::Interrupt;
  }
  Flow letEventsRunUntilNextFrame() override { return letEventsRun(); }

  /// Lets loops go on until so many more animation pictures were shown.
  void allowFrames(int count) noexcept { framesUntil_ = narrator_.framesShown() + count; }
  /// Interrupts from now on.
  void interrupt() noexcept { framesUntil_ = 0; }

 private:
  const ScriptedNarrator& narrator_;
  std::int64_t framesUntil_ = 0;
};

} // namespace talvora
