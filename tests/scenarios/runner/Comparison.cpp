#include "Comparison.h"

namespace talvora::scenario {

namespace {

std::optional<Difference> compareAt(const std::string& place, const Json& expected,
                                    const Json& got);

std::optional<Difference> compareObjects(const std::string& place, const Json& expected,
                                         const Json& got) {
  for (const auto& [name, value] : expected.items()) {
    const std::string field = place.empty() ? name : place + "." + name;
    const auto found = got.find(name);
    if (found == got.end()) return Difference{field, value.dump(), "no such field"};
    if (auto difference = compareAt(field, value, *found)) return difference;
  }
  return std::nullopt;
}

std::optional<Difference> compareArrays(const std::string& place, const Json& expected,
                                        const Json& got) {
  for (std::size_t each = 0; each < expected.size() && each < got.size(); ++each) {
    const std::string element = place + "[" + std::to_string(each) + "]";
    if (auto difference = compareAt(element, expected[each], got[each])) return difference;
  }
  if (expected.size() == got.size()) return std::nullopt;
  return Difference{place, std::to_string(expected.size()) + " elements",
                    std::to_string(got.size()) + " elements: " + got.dump()};
}

std::optional<Difference> compareAt(const std::string& place, const Json& expected,
                                    const Json& got) {
  if (expected.is_object() && got.is_object()) return compareObjects(place, expected, got);
  if (expected.is_array() && got.is_array()) return compareArrays(place, expected, got);
  if (expected == got) return std::nullopt;
  return Difference{place, expected.dump(), got.dump()};
}

} // namespace

std::optional<Difference> compare(const Json& expected, const Json& got) {
  return compareAt({}, expected, got);
}

std::optional<Difference> compareLog(const Json& expected, const Json& entries) {
  std::size_t next = 0;
  for (std::size_t each = 0; each < expected.size(); ++each) {
    while (next < entries.size() && compare(expected[each], entries[next]))
      ++next;
    if (next == entries.size()) {
      return Difference{"entries, expected number " + std::to_string(each + 1),
                        expected[each].dump(), entries.dump()};
    }
    ++next;
  }
  return std::nullopt;
}

} // namespace talvora::scenario
