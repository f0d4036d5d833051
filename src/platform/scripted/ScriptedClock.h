// A clock in virtual time: sleeping takes no real time.
#pragma once

#include "platform/Clock.h"
#include "platform/scripted/ScriptedLog.h"
#include "platform/scripted/VirtualTime.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace talvora {

class ScriptedClock final : public Clock {
 public:
  ScriptedClock(VirtualTime& time, ScriptedLog& log) : time_(time), log_(log) {}

  [[nodiscard]] std::int64_t nowMs() const override { return time_.nowMs(); }
  /// Logs the sleep with the moment at which it began.
  [[nodiscard]] Flow Sleep(int ms) override {
    log_.add("sleep", {{"ms", logNumber(ms)}});
    const std::int64_t left = closeAt_ - time_.nowMs();
    time_.pass(std::min<std::int64_t>(ms, std::max<std::int64_t>(left, 0)));
    return closingIsWanted() ? Flow::Interrupt : Flow::Continue;
  }

  /// From `after` milliseconds on from now somebody wants the program closed.
  void wantClosing(std::int64_t after) noexcept { closeAt_ = time_.nowMs() + after; }
  [[nodiscard]] bool closingIsWanted() const noexcept { return time_.nowMs() >= closeAt_; }
  /// True when the wish was there; it is heard, and there no more.
  [[nodiscard]] bool takeWish() noexcept {
    return closingIsWanted() && std::exchange(closeAt_, Never) != Never;
  }

 private:
  static constexpr std::int64_t Never = std::numeric_limits<std::int64_t>::max();

  VirtualTime& time_;
  ScriptedLog& log_;
  std::int64_t closeAt_ = Never;
};

} // namespace talvora
