// What is promised of the program whatever a learner does: each looks at something that the driver
// tells, and gives the promise that is broken there, or nothing.
#pragma once

#include "driver/Json.h"

#include <optional>
#include <string>

namespace talvora::walk {

/// A promise that was broken: its name, and how.
struct Breach {
  std::string promise;
  std::string how;
};

[[nodiscard]] std::optional<Breach> replyBreach(const Json& reply);
/// `control` is what has the keyboard; null for nothing.
[[nodiscard]] std::optional<Breach> focusBreach(const Json& control, bool onMenu);
[[nodiscard]] std::optional<Breach> controlBreach(const Json& control);
/// Of a button while the menu stands.
[[nodiscard]] std::optional<Breach> menuButtonBreach(const Json& button);
[[nodiscard]] std::optional<Breach> logBreach(const Json& entry);
/// The list of the learner's words in memory, and how many there are said to be.
[[nodiscard]] std::optional<Breach> wordsBreach(const Json& count, const Json& words);

} // namespace talvora::walk
