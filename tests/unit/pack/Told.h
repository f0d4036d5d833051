// What the compiler told of a source, as a teacher reads it.
#pragma once

#include "pack/Problems.h"

#include <string>
#include <vector>

namespace talvora::pack {

/// A line for each problem.
[[nodiscard]] inline std::vector<std::string> told(const Problems& problems) {
  std::vector<std::string> lines;
  for (const Problem& problem : problems.all())
    lines.push_back(describe(problem));
  return lines;
}

} // namespace talvora::pack
