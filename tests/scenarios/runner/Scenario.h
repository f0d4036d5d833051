// A scenario file: commands for the driver, one JSON object a line, each with what is expected of
// its reply.
#pragma once

#include "Comparison.h"

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace talvora::scenario {

/// One command. What is not expected otherwise must be understood.
struct Step {
  int line = 0;         ///< in the file, from 1
  bool restart = false; ///< no command: the driver ends and is started again in the same folder
  Json command;
  Json expected;    ///< fields of the reply
  Json expectedLog; ///< entries that must come in this order, others between them; null for none
};

struct Scenario {
  std::string pack = "small";       ///< folder below the packs
  std::vector<std::string> options; ///< of the driver
  bool firstRun = false;            ///< the marker of a finished first run is missing
  std::vector<std::string> without; ///< files of the pack that are missing
  std::vector<Step> steps;
};

/// A line that cannot be read, or a reply that differs. The text names file, line and field.
class ScenarioFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads a file. A first line without "do" sets "pack", "options", "firstRun" and "without"; lines
/// that are empty are skipped; {"restart":true} is a line of its own. "$DIR" in a text stands for
/// the folder that the scenario runs in.
[[nodiscard]] Scenario readScenario(const std::filesystem::path& file,
                                    const std::filesystem::path& runFolder);

/// Compares a reply with what a step expects; throws ScenarioFailure at the first difference.
void checkReply(const std::filesystem::path& file, const Step& step, const std::string& reply);

} // namespace talvora::scenario
