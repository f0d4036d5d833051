// Rounding as the layout arithmetic wants it.
#pragma once

#include <cmath>

namespace talvora {

/// Rounds to the nearest integer, a half to the even one.
[[nodiscard]] inline int Round(double value) {
  const double below = std::floor(value);
  const double part = value - below;
  const auto whole = static_cast<long long>(below);
  if (part < 0.5) return static_cast<int>(whole);
  if (part > 0.5) return static_cast<int>(whole + 1);
  return static_cast<int>(whole % 2 == 0 ? whole : whole + 1);
}

} // namespace talvora
