// What the program is started with. Read before anything needs a display.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace talvora {

struct CommandLine {
  std::string pack;              ///< empty when nobody asked for one
  std::string learner;           ///< the same
  std::string trace;             ///< a file, or empty
  bool goOn = false;             ///< to the menu, when the first run has set up
  std::vector<std::string> rest; ///< what may be the toolkit's
  /// The program is over with this exit code: help, the version or a mistake was told.
  std::optional<int> over;
};

[[nodiscard]] CommandLine readCommandLine(int argc, char** argv, const std::string& version);

} // namespace talvora
