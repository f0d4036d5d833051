// What is wrong with the content sources: collected, so that one run tells everything.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace talvora::pack {

/// A place in a source; lines and columns count from 1, columns in characters. Line 0 means the
/// file as a whole.
struct Where {
  std::string file;
  int line = 0;
  int column = 0;
};

/// One thing that is wrong, and where.
struct Problem {
  Where where;
  std::string message;
};

/// "file:line:column: message", without the numbers for a file as a whole.
[[nodiscard]] inline std::string describe(const Problem& problem) {
  std::string text = problem.where.file;
  if (problem.where.line > 0) {
    text += ":" + std::to_string(problem.where.line) + ":" + std::to_string(problem.where.column);
  }
  return text + ": " + problem.message;
}

class Problems {
 public:
  void add(Where where, std::string message) {
    all_.push_back({std::move(where), std::move(message)});
  }
  [[nodiscard]] bool none() const noexcept { return all_.empty(); }
  [[nodiscard]] const std::vector<Problem>& all() const noexcept { return all_; }

 private:
  std::vector<Problem> all_;
};

} // namespace talvora::pack
