// Distances between names.
#include "pack/NearestName.h"

#include "pack/Message.h"
#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace talvora::pack {

std::size_t lettersApart(std::string_view left, std::string_view right) {
  const std::string from = lower(left);
  const std::string to = lower(right);
  std::vector<std::size_t> twoBefore;
  std::vector<std::size_t> before(to.size() + 1);
  for (std::size_t column = 0; column <= to.size(); ++column)
    before[column] = column;
  for (std::size_t row = 1; row <= from.size(); ++row) {
    std::vector<std::size_t> costs(to.size() + 1, row);
    for (std::size_t column = 1; column <= to.size(); ++column) {
      const std::size_t exchange = from[row - 1] == to[column - 1] ? 0 : 1;
      costs[column] =
          std::min({before[column] + 1, costs[column - 1] + 1, before[column - 1] + exchange});
      const bool swapped = row > 1 && column > 1 && from[row - 1] == to[column - 2] &&
                           from[row - 2] == to[column - 1];
      if (swapped) costs[column] = std::min(costs[column], twoBefore[column - 2] + 1);
    }
    twoBefore = std::exchange(before, std::move(costs));
  }
  return before.back();
}

std::optional<std::string> nearestName(std::string_view name,
                                       const std::vector<std::string>& candidates) {
  std::optional<std::string> nearest;
  std::size_t least = std::max<std::size_t>(2, name.size() / 3) + 1;
  for (const std::string& candidate : candidates) {
    const std::size_t distance = lettersApart(name, candidate);
    if (distance >= least) continue;
    least = distance;
    nearest = candidate;
  }
  return nearest;
}

std::string didYouMean(std::string_view name) {
  return said("; did you mean \"{}\"?", name);
}

std::string didYouMean(std::string_view name, const std::vector<std::string>& candidates) {
  const auto nearest = nearestName(name, candidates);
  return nearest ? didYouMean(*nearest) : "";
}

} // namespace talvora::pack
