// What a learner owns, as it is found on the disk when nothing fails any more.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace talvora::faults {

struct State {
  std::vector<std::string> words;     ///< with their places, sorted
  std::vector<std::int32_t> settings; ///< without what differs from start to start
  std::string lists;

  friend bool operator==(const State&, const State&) = default;
};

/// Starts the program on the folder, lets it mend what there is to mend, and ends it. Gives what
/// the learner owns then. What is wrong about the folder itself is thrown as std::runtime_error:
/// the program does not start, or something is left over.
[[nodiscard]] State stateAfterRestart(const std::string& pack, const std::string& learner);

} // namespace talvora::faults
