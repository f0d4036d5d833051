// The time of a scripted machine: it stands still until somebody lets it pass.
#pragma once

#include <cstdint>

namespace talvora {

class VirtualTime {
 public:
  /// Milliseconds since the machine was made.
  [[nodiscard]] std::int64_t nowMs() const noexcept { return nowMs_; }
  /// Lets time pass; a length below 0 counts as 0.
  void pass(std::int64_t ms) noexcept {
    if (ms > 0) nowMs_ += ms;
  }

 private:
  std::int64_t nowMs_ = 0;
};

} // namespace talvora
