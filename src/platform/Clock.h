// A clock tells the time and makes the program wait.
#pragma once

#include "platform/Flow.h"

#include <cstdint>

namespace talvora {

class Clock {
 public:
  virtual ~Clock() = default;

  /// Milliseconds since some fixed moment; never goes back.
  [[nodiscard]] virtual std::int64_t nowMs() const = 0;
  /// Blocks the program, not the desktop: the window stays painted, and input that arrives
  /// meanwhile is held back and delivered afterwards. Interrupt, before the time is over, when the
  /// learner or the system wants the program closed: whatever waits has to come to its end, and
  /// every further wait is over at once until the wish has been delivered.
  [[nodiscard]] virtual Flow Sleep(int ms) = 0;
};

} // namespace talvora
