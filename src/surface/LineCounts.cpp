#include "surface/LineCounts.h"

#include <algorithm>

namespace talvora {

void LineCounts::changed(int first, int last, int added) {
  const auto from = static_cast<std::size_t>(first);
  if (from + 1 < ahead_.size()) ahead_.resize(from + 1);
  if (from >= lines_.size()) return;
  const auto to = std::min(static_cast<std::size_t>(last) + 1, lines_.size());
  // Counts behind the change keep their paragraphs; where there are none, nothing has to be kept.
  const bool reachesEnd = to == lines_.size();
  const auto at =
      lines_.erase(lines_.begin() + first, lines_.begin() + static_cast<std::ptrdiff_t>(to));
  const int uncounted = last + 1 - first + added;
  if (!reachesEnd) lines_.insert(at, static_cast<std::size_t>(uncounted), 0);
}

void LineCounts::forget() {
  lines_ = {};
  ahead_ = {0};
}

} // namespace talvora
