// A clock in virtual time: sleeping takes no real time.
#pragma once

#include "platform/Clock.h"
#include "platform/scripted/ScriptedLog.h"
#include "platform/scripted/VirtualTime.h"

namespace talvora {

class ScriptedClock final : public Clock {
 public:
  ScriptedClock(VirtualTime& time, ScriptedLog& log) : time_(time), log_(log) {}

  [[nodiscard]] std::int64_t nowMs() const override { return time_.nowMs(); }
  /// Logs the sleep with the moment at which it began.
  void Sleep(int ms) override {
    log_.add("sleep", {{"ms", logNumber(ms)}});
    time_.pass(ms);
  }

 private:
  VirtualTime& time_;
  ScriptedLog& log_;
};

} // namespace talvora
