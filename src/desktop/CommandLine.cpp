#include "desktop/CommandLine.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>

namespace talvora {

namespace {

constexpr int BadUse = 2;

void makeAbsolute(std::string& path) {
  if (!path.empty()) path = std::filesystem::absolute(path).lexically_normal().string();
}

} // namespace

CommandLine readCommandLine(int argc, char** argv, const std::string& version) {
  CommandLine line;
  std::string both;
  CLI::App app("A tutor of English for speakers of Vietnamese.", "talvora");
  app.set_version_flag("--version", "talvora " + version);
  CLI::Option* const pack = app.add_option("--pack", line.pack, "Folder of the content pack");
  CLI::Option* const learner =
      app.add_option("--learner", line.learner, "The learner's own folder: words and settings");
  app.add_option("--dir", both, "One folder for both")->excludes(pack)->excludes(learner);
  app.add_flag("--go-on", line.goOn, "Go on to the menu when the first start has set up and ended");
  app.add_option("--trace", line.trace,
                 "Write a line for each change of what is shown, for a report of a fault");
  app.allow_extras();
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    line.over = app.exit(error) == 0 ? 0 : BadUse;
    return line;
  }
  if (!both.empty()) line.pack = line.learner = both;
  for (std::string* path : {&line.pack, &line.learner, &line.trace})
    makeAbsolute(*path);
  line.rest = app.remaining();
  // The toolkit's own begin with one dash.
  const auto unknown = std::find_if(line.rest.begin(), line.rest.end(),
                                    [](const std::string& word) { return word.starts_with("--"); });
  if (unknown != line.rest.end()) {
    std::cerr << "talvora: unknown argument: " << *unknown << '\n';
    line.over = BadUse;
  }
  return line;
}

} // namespace talvora
