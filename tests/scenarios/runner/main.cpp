// Runs one scenario file through talvora-driver, on a fresh copy of a pack.

#include "DriverProcess.h"
#include "Scenario.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace talvora::scenario;
using talvora::test::TemporaryFolder;

void fill(const TemporaryFolder& folder, const fs::path& pack, const Scenario& scenario) {
  fs::copy(pack, folder.path(), fs::copy_options::recursive);
  for (const std::string& name : scenario.without) {
    if (!fs::remove(folder.path() / name)) throw ScenarioFailure(name + ": not in the pack");
  }
  const fs::path marker = folder.path() / "Yes1";
  if (scenario.firstRun) {
    fs::remove(marker);
  } else {
    std::ofstream(marker).flush();
  }
}

void finish(DriverProcess& process, const fs::path& file) {
  const int code = process.finish();
  if (code != 0) {
    throw ScenarioFailure(file.string() + ": the driver ended with " + std::to_string(code));
  }
}

std::string ask(DriverProcess& process, const Step& step, const fs::path& file) {
  try {
    return process.ask(step.command.dump());
  } catch (const std::exception& error) {
    throw ScenarioFailure(file.string() + ":" + std::to_string(step.line) + ": " + error.what());
  }
}

void run(const std::string& driver, const fs::path& packs, const fs::path& file) {
  const TemporaryFolder folder;
  const Scenario scenario = readScenario(file, folder.path());
  fill(folder, packs / scenario.pack, scenario);
  std::vector<std::string> options = {"--dir", folder.path().string()};
  options.insert(options.end(), scenario.options.begin(), scenario.options.end());
  auto process = std::make_unique<DriverProcess>(driver, options);
  for (const Step& step : scenario.steps) {
    if (step.restart) {
      finish(*process, file);
      process = std::make_unique<DriverProcess>(driver, options);
    } else {
      checkReply(file, step, ask(*process, step, file));
    }
  }
  finish(*process, file);
}

} // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (arguments.size() != 3) {
    std::cerr << "usage: talvora-scenario DRIVER PACKS FILE\n"
                 "Runs FILE through the program DRIVER, on a copy of a folder below PACKS.\n";
    return 2;
  }
  try {
    run(arguments[0], arguments[1], arguments[2]);
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << '\n';
    return 1;
  }
  return 0;
}
