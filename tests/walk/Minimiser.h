// Shortens a walk that breaks a promise to the steps that it takes.
#pragma once

#include "driver/Json.h"

#include <functional>
#include <vector>

namespace talvora::walk {

using Steps = std::vector<Json>;

/// The fewest steps that are found for which `stillBreaks` holds, in their order. It holds for
/// `steps`, and is asked at most so many times.
[[nodiscard]] Steps minimised(Steps steps, const std::function<bool(const Steps&)>& stillBreaks,
                              int mostTries);

} // namespace talvora::walk
