// Whether something stands in a list.
#pragma once

#include <algorithm>
#include <iterator>

namespace talvora {

template <typename List, typename Value>
[[nodiscard]] constexpr bool contains(const List& list, const Value& value) {
  return std::find(std::begin(list), std::end(list), value) != std::end(list);
}

} // namespace talvora
