// A clock tells the time and makes the program wait.
#pragma once

#include <cstdint>

namespace talvora {

class Clock {
 public:
  virtual ~Clock() = default;

  /// Milliseconds since some fixed moment; never goes back.
  [[nodiscard]] virtual std::int64_t nowMs() const = 0;
  /// Blocks the program, not the desktop: the window stays painted, and input that arrives
  /// meanwhile is held back and delivered afterwards.
  virtual void Sleep(int ms) = 0;
};

} // namespace talvora
