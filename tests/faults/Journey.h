// What a learner does while the disk fails: a way through the program, and the way that led there.
#pragma once

#include "driver/Json.h"

#include <functional>
#include <string>
#include <vector>

namespace talvora::faults {

/// A list of commands for the driver, each of them a moment at which the learner has one state.
using Steps = std::vector<Json>;

struct Journey {
  std::string name;
  std::vector<Steps> before; ///< lives that go well; without "close" at its end one is killed
  /// What somebody else does to the learner's folder then; empty for nothing.
  std::function<void(const std::string& learner)> then;
  Steps steps; ///< the life in which calls fail
};

[[nodiscard]] std::vector<Journey> journeys();

} // namespace talvora::faults
