// talvora-walk: walks at random through the program without a window and looks after every step
// whether what is promised of it holds. A walk is many lives, each with a seed of its own. The
// steps of a life that breaks a promise are shortened, and kept in a file that can be walked again.

#include "Chance.h"
#include "Life.h"
#include "Minimiser.h"

#include "tests/support/TemporaryFolder.h"
#include "tests/support/Trial.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace talvora::walk {

namespace {

constexpr int StepsOfALife = 1000;
constexpr int StepsToTheMenu = 100; // every so many steps Esc has to lead there
constexpr int MostTries = 600;      // of the minimiser
constexpr std::chrono::seconds Patience(600);

struct Arguments {
  std::string pack;
  std::string again;
  std::string keepIn = ".";
  long events = 20'000;
  std::uint64_t seed = 1;
};

std::optional<Breach> walkAgain(const Folders& folders, const Setting& setting,
                                const Steps& steps) {
  Life life(folders, setting);
  auto breach = life.begin();
  for (auto step = steps.begin(); !breach && step != steps.end(); ++step)
    breach = life.perform(*step);
  return breach;
}

/// The name of a broken promise stands ahead of how it was broken.
constexpr std::string_view Colon = ": ";

std::string textOf(const std::optional<Breach>& breach) {
  return breach ? breach->promise + std::string(Colon) + breach->how : std::string();
}

std::optional<Breach> breachOf(const test::Outcome& outcome) {
  using Kind = test::Outcome::Kind;
  if (outcome.kind == Kind::Hung) return Breach{"no standstill", "it hangs"};
  if (outcome.kind != Kind::Returned) return Breach{"no crash", outcome.told};
  if (outcome.told.empty()) return std::nullopt;
  const std::size_t colon = outcome.told.find(Colon);
  return Breach{outcome.told.substr(0, colon), outcome.told.substr(colon + Colon.size())};
}

/// In a learner's folder that is gone afterwards, in whatever way the trial ends.
std::optional<Breach> tried(const std::string& pack,
                            const std::function<std::optional<Breach>(const Folders&)>& trial) {
  const test::TemporaryFolder learner;
  return breachOf(test::tryInChild(
      [&] {
        return textOf(trial({pack, learner.path().string()}));
      },
      Patience));
}

/// A new life; every step is in the file before it is done, since it may be the last.
std::optional<Breach> walkAnew(const Folders& folders, std::uint64_t seed, int steps,
                               const std::filesystem::path& record) {
  Chance chance(seed);
  const Setting setting = chance.setting();
  std::ofstream file(record);
  file << setting.asJson().dump() << '\n';
  Life life(folders, setting);
  auto breach = life.begin();
  for (int number = 1; !breach && number <= steps; ++number) {
    const Json step = number % StepsToTheMenu == 0 ? Json{{"menu", true}} : chance.nextStep(life);
    file << step.dump() << std::endl;
    breach = life.perform(step);
  }
  return breach;
}

/// The file of a walk: the setting, then a step a line.
std::pair<Setting, Steps> readWalk(const std::filesystem::path& path) {
  std::ifstream file(path);
  std::string line;
  if (!std::getline(file, line)) throw std::runtime_error(path.string() + ": cannot be read");
  std::pair<Setting, Steps> walk = {Setting::from(Json::parse(line)), {}};
  while (std::getline(file, line))
    walk.second.push_back(Json::parse(line));
  return walk;
}

void writeWalk(const std::filesystem::path& path, const Setting& setting, const Steps& steps) {
  std::ofstream file(path);
  file << setting.asJson().dump() << '\n';
  for (const Json& step : steps)
    file << step.dump() << '\n';
}

void tell(const std::string& which, const Breach& breach) {
  std::cout << which << " broke \"" << breach.promise << "\": " << breach.how << std::endl;
}

void keepShortened(const Arguments& arguments, std::uint64_t seed, const Breach& breach,
                   const std::filesystem::path& record) {
  const auto [setting, steps] = readWalk(record);
  const auto stillBreaks = [&, &setting = setting](const Steps& some) {
    const auto found = tried(arguments.pack, [&, &setting = setting](const Folders& folders) {
      return walkAgain(folders, setting, some);
    });
    return found && found->promise == breach.promise;
  };
  const auto kept =
      std::filesystem::path(arguments.keepIn) / ("seed-" + std::to_string(seed) + ".jsonl");
  if (!stillBreaks(steps)) {
    writeWalk(kept, setting, steps);
    std::cout << "walked again it holds; all steps are in " << kept << '\n';
    return;
  }
  const Steps few = minimised(steps, stillBreaks, MostTries);
  writeWalk(kept, setting, few);
  std::cout << steps.size() << " steps became " << few.size() << " in " << kept << '\n';
}

int walk(const Arguments& arguments) {
  const test::TemporaryFolder folder;
  const auto record = folder.path() / "steps.jsonl";
  int broken = 0;
  long lives = 0;
  for (long left = arguments.events; left > 0; left -= StepsOfALife, ++lives) {
    const std::uint64_t seed = arguments.seed + static_cast<std::uint64_t>(lives);
    const int steps = static_cast<int>(std::min<long>(left, StepsOfALife));
    const auto breach = tried(arguments.pack, [&](const Folders& folders) {
      return walkAnew(folders, seed, steps, record);
    });
    if (!breach) continue;
    ++broken;
    tell("seed " + std::to_string(seed), *breach);
    keepShortened(arguments, seed, *breach, record);
  }
  std::cout << arguments.events << " steps in " << lives << " lives, " << broken
            << " broke a promise\n";
  return broken == 0 ? 0 : 1;
}

int walkKept(const Arguments& arguments) {
  const auto [setting, steps] = readWalk(arguments.again);
  const auto breach =
      tried(arguments.pack, [&, &setting = setting, &steps = steps](const Folders& folders) {
        return walkAgain(folders, setting, steps);
      });
  if (breach) tell(arguments.again, *breach);
  return breach ? 1 : 0;
}

int run(int argc, char** argv) {
  CLI::App app("Walks at random through Talvora and looks whether what is promised of it holds.");
  Arguments arguments;
  app.add_option("--pack", arguments.pack, "The content pack")
      ->required()
      ->check(CLI::ExistingDirectory);
  app.add_option("--events", arguments.events, "How many steps")->capture_default_str();
  app.add_option("--seed", arguments.seed, "Seed of the first life")->capture_default_str();
  app.add_option("--keep-in", arguments.keepIn, "Folder for walks that broke a promise")
      ->capture_default_str();
  app.add_option("--again", arguments.again, "Walks a kept walk again instead")
      ->check(CLI::ExistingFile);
  CLI11_PARSE(app, argc, argv);
  return arguments.again.empty() ? walk(arguments) : walkKept(arguments);
}

} // namespace

} // namespace talvora::walk

int main(int argc, char** argv) {
  return talvora::test::runTrials("talvora-walk", talvora::walk::run, argc, argv);
}
