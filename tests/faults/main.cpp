// talvora-faults: lets every call on a file fail in turn, in every way, and kills the program
// around every call, on each of several journeys. After the next start the learner has the state of
// a moment of the journey, whole; and what was not stored without a word was not lost.

#include "Journey.h"
#include "State.h"

#include "driver/Driver.h"
#include "tests/support/FaultyFiles.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Trial.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace talvora::faults {

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds Patience(120);

struct Arguments {
  std::string pack;
  std::string only;
  int every = 1;
};

/// What is done to one call of a life.
struct Fault {
  enum class Kind { Once, FromThenOn, KillBefore, KillAfter, KillWithin };

  Kind kind = Kind::Once;
  std::errc error = std::errc::io_error;
  std::string name;

  [[nodiscard]] bool kills() const noexcept {
    return kind != Kind::Once && kind != Kind::FromThenOn;
  }
};

std::vector<Fault> allFaults() {
  using Kind = Fault::Kind;
  std::vector<Fault> faults = {{Kind::KillBefore, {}, "kill before"},
                               {Kind::KillAfter, {}, "kill after"},
                               {Kind::KillWithin, {}, "kill within a write"}};
  for (const auto& [error, name] : {std::pair{std::errc::no_space_on_device, "no space"},
                                    std::pair{std::errc::io_error, "broken disk"},
                                    std::pair{std::errc::read_only_file_system, "read-only"},
                                    std::pair{std::errc::permission_denied, "no permission"},
                                    std::pair{std::errc::interrupted, "broken off"}}) {
    faults.push_back({Kind::Once, error, std::string(name) + " once"});
    faults.push_back({Kind::FromThenOn, error, std::string(name) + " from then on"});
  }
  return faults;
}

/// How far a life came when it was killed.
std::string textOfStep(std::size_t step) {
  return "step " + std::to_string(step);
}

/// One life in a process of its own. `kill` ends it behind the last step instead of its end.
class Lived {
 public:
  Lived(const Folders& folders, test::FaultyFiles& files)
      : driver_(ScriptedOptions{}, folders, LearnerLock(files, folders.learner), files) {}

  /// Gives what the learner was told: why the program ended, or "told" after a message.
  std::string through(const Steps& steps) {
    std::string told;
    for (step_ = 0; step_ < steps.size(); ++step_) {
      const Json reply = Json::parse(driver_.answer(steps[step_].dump()));
      if (reply.contains("failure")) return reply["failure"];
      // Without its marker a first run is made anew, and whoever sees that knows.
      if (reply.value("ended", "") == "first-run") return "told";
    }
    const Json log = Json::parse(driver_.answer(R"({"do":"log"})"));
    for (const Json& entry : log["entries"]) {
      if (entry["what"] == "message") told = "told";
    }
    return told;
  }
  [[nodiscard]] std::size_t step() const noexcept { return step_; }

 private:
  Driver driver_;
  std::size_t step_ = 0;
};

std::string listOf(const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words)
    list += (list.empty() ? "" : ", ") + word;
  return list;
}

/// A copy that is gone with its owner.
class CopiedFolder {
 public:
  explicit CopiedFolder(const fs::path& folder) {
    fs::copy(folder, path(), fs::copy_options::recursive);
  }
  [[nodiscard]] const fs::path& path() const noexcept { return copy_.path(); }

 private:
  test::TemporaryFolder copy_;
};

class Trials {
 public:
  Trials(const Arguments& arguments, Journey journey)
      : arguments_(arguments), journey_(std::move(journey)) {
    prepare();
    states_.push_back(stateOf(prepared_.path()));
    for (std::size_t count = 1; count <= journey_.steps.size(); ++count)
      states_.push_back(stateBehind(count));
  }

  /// Gives how many trials broke something.
  int run() {
    const int calls = countCalls();
    int number = 0;
    for (const Fault& fault : allFaults()) {
      for (int call = 1; call <= calls; ++call) {
        if ((number++ + call) % arguments_.every == 0 && isWanted(fault, call)) tryOne(fault, call);
      }
    }
    std::cout << journey_.name << ": " << calls << " calls, " << tried_ << " trials, " << broken_
              << " broke something" << std::endl;
    return broken_;
  }

 private:
  [[nodiscard]] std::string nameOf(const Fault& fault, int call) const {
    return journey_.name + ", " + fault.name + " at call " + std::to_string(call);
  }
  [[nodiscard]] bool isWanted(const Fault& fault, int call) const {
    return nameOf(fault, call).find(arguments_.only) != std::string::npos;
  }
  [[nodiscard]] Folders foldersOf(const fs::path& learner) const {
    return {fs::absolute(arguments_.pack).string(), learner.string()};
  }

  /// A life that goes well; the process ends behind it without the end of the program.
  void liveWell(const fs::path& learner, const Steps& steps) const {
    const auto outcome = test::tryInChild(
        [&]() -> std::string {
          test::FaultyFiles files;
          Lived life(foldersOf(learner), files);
          const std::string failure = life.through(steps);
          test::killTrial(failure);
        },
        Patience);
    const bool went = outcome.kind == test::Outcome::Kind::Killed &&
                      (outcome.told.empty() || outcome.told == "told");
    if (!went) throw std::runtime_error(journey_.name + ": " + outcome.told);
  }

  void prepare() const {
    std::ofstream(prepared_.path() / "Yes1");
    for (const Steps& life : journey_.before)
      liveWell(prepared_.path(), life);
    if (journey_.then) journey_.then(prepared_.path().string());
  }

  [[nodiscard]] State stateOf(const fs::path& learner) const {
    const CopiedFolder copy(learner);
    return stateAfterRestart(fs::absolute(arguments_.pack).string(), copy.path().string());
  }

  [[nodiscard]] State stateBehind(std::size_t count) const {
    const CopiedFolder learner(prepared_.path());
    liveWell(learner.path(), Steps(journey_.steps.begin(),
                                   journey_.steps.begin() + static_cast<std::ptrdiff_t>(count)));
    return stateOf(learner.path());
  }

  [[nodiscard]] int countCalls() const {
    const CopiedFolder learner(prepared_.path());
    const auto outcome = test::tryInChild(
        [&] {
          test::FaultyFiles files;
          files.looksCount = true;
          Lived life(foldersOf(learner.path()), files);
          static_cast<void>(life.through(journey_.steps));
          return std::to_string(files.calls);
        },
        Patience);
    return std::atoi(outcome.told.c_str());
  }

  void tryOne(const Fault& fault, int call) {
    const CopiedFolder learner(prepared_.path());
    const auto outcome =
        test::tryInChild([&] { return liveWith(fault, call, learner.path()); }, Patience);
    ++tried_;
    std::string wrong;
    try {
      wrong = wrongWith(outcome, fault, learner.path());
    } catch (const std::exception& trouble) {
      wrong = std::string("the next start: ") + trouble.what();
    }
    if (wrong.empty()) return;
    ++broken_;
    std::cout << nameOf(fault, call) << " (" << nameOfCall(call) << "): " << wrong << std::endl;
  }

  std::string liveWith(const Fault& fault, int call, const fs::path& learner) const {
    test::FaultyFiles files;
    files.looksCount = true;
    std::optional<Lived> life;
    const auto killAt = [&](int number) {
      if (number == call) test::killTrial(textOfStep(life ? life->step() : 0));
    };
    switch (fault.kind) {
    case Fault::Kind::Once:
    case Fault::Kind::FromThenOn:
      files.error = fault.error;
      files.failFrom = call;
      files.failTo = fault.kind == Fault::Kind::Once ? call : 1 << 30;
      break;
    case Fault::Kind::KillBefore:
      files.before = killAt;
      break;
    case Fault::Kind::KillAfter:
      files.after = killAt;
      break;
    case Fault::Kind::KillWithin:
      files.within = killAt;
      break;
    }
    life.emplace(foldersOf(learner), files);
    return life->through(journey_.steps);
  }

  /// What a call is, for whoever reads of a trial that broke something.
  [[nodiscard]] std::string nameOfCall(int call) const {
    const CopiedFolder learner(prepared_.path());
    const auto outcome = test::tryInChild(
        [&] {
          test::FaultyFiles files;
          files.looksCount = true;
          std::string name;
          files.counts = [&](const std::string& what, const std::string& path) {
            if (files.calls + 1 == call) name = what + " " + fs::path(path).filename().string();
            return true;
          };
          Lived life(foldersOf(learner.path()), files);
          static_cast<void>(life.through(journey_.steps));
          return name;
        },
        Patience);
    return outcome.told;
  }

  /// Empty when the learner has what they should.
  [[nodiscard]] std::string wrongWith(const test::Outcome& outcome, const Fault& fault,
                                      const fs::path& learner) const {
    using Kind = test::Outcome::Kind;
    if (outcome.kind == Kind::Hung) return "the program stands still";
    if (outcome.kind == Kind::Crashed) return "the program crashes";
    const bool killed = outcome.kind == Kind::Killed;
    const bool failed = !killed && !outcome.told.empty() && outcome.told != "told";
    if (failed && outcome.told.find('/') == std::string::npos)
      return "it ends without naming a file: " + outcome.told;
    const State state = stateOf(learner);
    const auto [from, to] = momentsOf(outcome, killed);
    if (const std::string wrong = strangeIn(state, from, to); !wrong.empty()) return wrong;
    const bool silent = fault.kind == Fault::Kind::Once && outcome.told.empty();
    if (silent && !killed && state.words != states_.back().words)
      return "words are lost without a word";
    return {};
  }

  /// The moments, the first and the last of them, whose states the learner may have.
  [[nodiscard]] std::pair<std::size_t, std::size_t> momentsOf(const test::Outcome& outcome,
                                                              bool killed) const {
    if (!killed) return {0, states_.size() - 1};
    const auto step =
        static_cast<std::size_t>(std::atoi(outcome.told.c_str() + textOfStep(0).size() - 1));
    return {step, std::min(step + 1, states_.size() - 1)};
  }

  [[nodiscard]] std::string strangeIn(const State& state, std::size_t from, std::size_t to) const {
    bool words = false;
    bool lists = false;
    std::vector<bool> settings(state.settings.size());
    for (std::size_t moment = from; moment <= to; ++moment) {
      const State& known = states_[moment];
      words = words || known.words == state.words;
      lists = lists || known.lists == state.lists;
      for (std::size_t each = 0; each < settings.size(); ++each)
        settings[each] = settings[each] || known.settings[each] == state.settings[each];
    }
    if (!words) return "the words are those of no moment: " + listOf(state.words);
    if (!lists) return "the places in the lists are those of no moment: " + state.lists;
    const auto strange = std::find(settings.begin(), settings.end(), false);
    if (strange == settings.end()) return {};
    const auto at = static_cast<std::size_t>(strange - settings.begin());
    return "setting " + std::to_string(at + 1) +
           " is that of no moment: " + std::to_string(state.settings[at]);
  }

  const Arguments& arguments_;
  Journey journey_;
  test::TemporaryFolder prepared_;
  std::vector<State> states_; ///< ahead of the first step and behind each
  int tried_ = 0;
  int broken_ = 0;
};

int run(int argc, char** argv) {
  CLI::App app("Lets every call on a file fail while Talvora runs and looks what the learner has.");
  Arguments arguments;
  app.add_option("--pack", arguments.pack, "The content pack")
      ->required()
      ->check(CLI::ExistingDirectory);
  app.add_option("--only", arguments.only,
                 "Tries only what has this in \"JOURNEY, FAULT at call N\"");
  app.add_option("--every", arguments.every, "Tries only one trial in so many")
      ->capture_default_str()
      ->check(CLI::PositiveNumber);
  CLI11_PARSE(app, argc, argv);
  int broken = 0;
  for (const Journey& journey : journeys())
    broken += Trials(arguments, journey).run();
  return broken == 0 ? 0 : 1;
}

} // namespace

} // namespace talvora::faults

int main(int argc, char** argv) {
  return talvora::test::runTrials("talvora-faults", talvora::faults::run, argc, argv);
}
