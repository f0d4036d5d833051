#include "Minimiser.h"

#include <algorithm>
#include <cstddef>

namespace talvora::walk {

namespace {

Steps without(const Steps& steps, std::size_t from, std::size_t count) {
  Steps rest(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(from));
  rest.insert(rest.end(),
              steps.begin() + static_cast<std::ptrdiff_t>(std::min(from + count, steps.size())),
              steps.end());
  return rest;
}

} // namespace

// Halves are left out first, then ever smaller pieces, until no single step can be spared.
Steps minimised(Steps steps, const std::function<bool(const Steps&)>& stillBreaks, int mostTries) {
  std::size_t piece = std::max<std::size_t>(steps.size() / 2, 1);
  while (!steps.empty() && mostTries > 0) {
    bool shorter = false;
    // From the end, since what comes late is rarely what it takes to get there.
    for (std::size_t end = steps.size(); end > 0 && mostTries > 0;) {
      const std::size_t from = end > piece ? end - piece : 0;
      --mostTries;
      const Steps rest = without(steps, from, end - from);
      if (stillBreaks(rest)) {
        steps = rest;
        shorter = true;
      }
      end = from;
    }
    if (piece == 1 && !shorter) break;
    if (piece > 1) piece = std::max<std::size_t>(std::min(piece / 2, steps.size()), 1);
  }
  return steps;
}

} // namespace talvora::walk
