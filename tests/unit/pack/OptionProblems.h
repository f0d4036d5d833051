// What is found in the options of a listening unit.
#pragma once

#include "pack/DrillChecks.h"
#include "pack/Told.h"

#include <array>
#include <string>
#include <vector>

namespace talvora::pack {

/// The first item of a unit.
inline ListeningQuestion itemOf(const std::string& heard, const std::string& right,
                                const std::array<std::string, 3>& wrong) {
  return {1, heard, right, wrong, {"u", 1, 1}};
}

/// The notes, and behind them the problems.
inline std::vector<std::string> optionProblems(int unit, const ListeningUnit& items,
                                               const UnitVoices& voices = {}) {
  ListeningSource source;
  source.units[unit] = items;
  Problems problems;
  auto lines = checkOptions(source, voices, "l", problems);
  for (const std::string& line : told(problems))
    lines.push_back(line);
  return lines;
}

} // namespace talvora::pack
