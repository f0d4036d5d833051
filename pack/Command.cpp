#include "pack/Command.h"

#include "pack/Message.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <unistd.h>

namespace talvora::pack {

void showStep(std::string_view step) {
  if (::isatty(STDERR_FILENO) != 0) std::cerr << step << "...\n";
}

int tell(const Problems& problems) {
  for (const Problem& problem : problems.all())
    std::cerr << describe(problem) << "\n";
  return problems.none() ? 0 : contentErrors;
}

int failWith(const std::string& message) {
  std::cerr << message << "\n";
  return usageOrDiskErrors;
}

void addSourceOptions(CLI::App& command, Options& options) {
  command.add_option("SOURCE", options.source, said("folder of the content sources"))->required();
  command.add_option("--wordnet", options.wordNet, said("folder of the WordNet database"))
      ->capture_default_str();
  command
      .add_option("--wordnet-licence", options.wordNetLicence,
                  said("licence of WordNet, which goes with the pack"))
      ->capture_default_str();
  command.add_option("--word-list", options.wordLists, said("English word lists, one word a line"));
  command.add_option("--words", options.smallWordList,
                     said("a small word list of at most that many lines: our own entries and their "
                          "forms, without WordNet and the word lists"));
}

} // namespace talvora::pack
