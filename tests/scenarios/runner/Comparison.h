// Compares what a scenario expects with what was replied: only what is named counts.
#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <string>

namespace talvora::scenario {

using Json = nlohmann::ordered_json;

/// Where a reply differs from what was expected.
struct Difference {
  std::string field; ///< "runs[2].color"; empty for the whole reply
  std::string expected;
  std::string got;
};

/// The first difference. Of an object only the fields that `expected` names are compared; an array
/// must have as many elements, and they are compared each by the same rule.
[[nodiscard]] std::optional<Difference> compare(const Json& expected, const Json& got);

/// The first of the expected log entries that is not found among `entries` behind the ones ahead of
/// it; an entry is found when it agrees in the fields that are named.
[[nodiscard]] std::optional<Difference> compareLog(const Json& expected, const Json& entries);

} // namespace talvora::scenario
