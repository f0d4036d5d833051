// The commands that only tell: show, status, plan, phones.
#include "pack/Command.h"
#include "pack/CommandLine.h"
#include "pack/CourseReport.h"
#include "pack/DictionaryFindings.h"
#include "pack/Heteronyms.h"
#include "pack/Message.h"
#include "pack/PhonesReport.h"
#include "pack/Planner.h"
#include "pack/Show.h"
#include "pack/Status.h"

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

namespace talvora::pack {

namespace {

class ShowCommand final : public Command {
 public:
  explicit ShowCommand(CLI::App& application)
      : command_(*application.add_subcommand(
            "show", said("show what a source holds as the learner will see it: an item, a lesson, "
                         "a text, a question to listen to, an analysed stretch, an entry of the "
                         "dictionary"))) {
    command_.add_option("PLACE", place_, said("FILE, or FILE:LINE for the part at that line"))
        ->required();
  }
  [[nodiscard]] bool given() const override { return command_.parsed(); }
  [[nodiscard]] int run() override {
    Problems problems;
    std::cout << show(shownPlaceOf(place_), problems);
    return tell(problems);
  }

 private:
  CLI::App& command_;
  std::string place_;
};

class StatusCommand final : public Command {
 public:
  explicit StatusCommand(CLI::App& application)
      : command_(*application.add_subcommand(
            "status", said("tell what SOURCE holds and still lacks: slots, scripts to record, "
                           "words, the Vietnamese side"))) {
    addSourceOptions(command_, options_);
  }
  [[nodiscard]] bool given() const override { return command_.parsed(); }
  [[nodiscard]] int run() override {
    Problems problems;
    const Content content = readContent(options_, problems, showStep);
    if (!problems.none()) return tell(problems);
    const WordList list = makeWordList(content, options_, problems);
    const auto corpora = corporaOf(content);
    const auto coverage = coverageOf(corpora, list, readNames(options_.source / NamesFile));
    const auto findings = checkDictionaryAlone(options_.source, {}, problems);
    std::cout << statusReport(content, list, coverage) << "\nDictionary\n"
              << findingsReport(findings)
              << wordRulesReport(options_.source, content, list, corpora) << "\n"
              << courseReport(content.exercises, content.lessons, list);
    return tell(problems);
  }

 private:
  CLI::App& command_;
  Options options_;
};

class PlanCommand final : public Command {
 public:
  explicit PlanCommand(CLI::App& application)
      : command_(*application.add_subcommand(
            "plan",
            said("tell what the reading texts of SOURCE do with words; for a SLOT also which "
                 "lemmas are known by then, which may be new and which are due again"))) {
    command_.add_option("SOURCE", source_, said("folder of the content sources"))->required();
    takeNumberUpTo(*command_.add_option("SLOT", slot_, said("number of a reading text")),
                   ReadingSlots);
    command_.add_flag("--known", known_, said("list the known lemmas as well"));
  }
  [[nodiscard]] bool given() const override { return command_.parsed(); }
  [[nodiscard]] int run() override {
    Problems problems;
    const Planner planner = readPlanner(source_, problems);
    std::cout << (slot_ == 0 ? overview(planner)
                             : sheet(planner, slot_, known_ ? Detail::Full : Detail::Short));
    return tell(problems);
  }

 private:
  CLI::App& command_;
  std::filesystem::path source_;
  int slot_ = 0; ///< 0 stands for all of them
  bool known_ = false;
};

class PhonesCommand final : public Command {
 public:
  explicit PhonesCommand(CLI::App& application)
      : command_(*application.add_subcommand(
            "phones", said("tell how the head words of SOURCE are said, or the WORDs alone"))) {
    command_.add_option("SOURCE", source_, said("folder of the content sources"))->required();
    command_.add_option("WORD", words_, said("words to tell of"));
    command_.add_flag("--sentences", sentences_,
                      said("tell how the words of several pronunciations are said in the texts' "
                           "sentences"));
  }
  [[nodiscard]] bool given() const override { return command_.parsed(); }
  [[nodiscard]] int run() override {
    Problems problems;
    std::cout << (sentences_ ? heteronymReport(source_, problems)
                             : phonesReport(source_, words_, problems));
    return tell(problems);
  }

 private:
  CLI::App& command_;
  std::filesystem::path source_;
  std::vector<std::string> words_;
  bool sentences_ = false;
};

} // namespace

std::unique_ptr<Command> showCommand(CLI::App& application) {
  return std::make_unique<ShowCommand>(application);
}

std::unique_ptr<Command> statusCommand(CLI::App& application) {
  return std::make_unique<StatusCommand>(application);
}

std::unique_ptr<Command> planCommand(CLI::App& application) {
  return std::make_unique<PlanCommand>(application);
}

std::unique_ptr<Command> phonesCommand(CLI::App& application) {
  return std::make_unique<PhonesCommand>(application);
}

} // namespace talvora::pack
