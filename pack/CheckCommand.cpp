// talvora-pack check: what is wrong with sources.
#include "pack/Check.h"
#include "pack/Command.h"
#include "pack/CommandLine.h"
#include "pack/FolderSearch.h"
#include "pack/Message.h"
#include "pack/import/MergedCourse.h"

#include <iostream>
#include <map>
#include <set>
#include <vector>

namespace talvora::pack {

namespace {

/// The course that is opened may be newer than the learner's dictionary.
void tellOfMerged() {
  const LearnersPlaces places = placesFor("", "");
  if (!places.pack.empty() && isMergedWithAnother(places.learner, places.pack))
    std::cerr << said("note: {}", mergedWithAnother()) << "\n";
}

std::map<std::string, ContentKind> namedKinds() {
  std::map<std::string, ContentKind> kinds;
  for (const ContentKindName& each : ContentKindNames)
    kinds.emplace(each.name, each.kind);
  return kinds;
}

class CheckCommand final : public Command {
 public:
  explicit CheckCommand(CLI::App& application)
      : command_(*application.add_subcommand("check", said("check SOURCE and write nothing"))) {
    addSourceOptions(command_, options_);
    takeOneOf(*command_.add_option("--only", only_,
                                   said("check these kinds alone, which takes a second or two")),
              namedKinds());
    command_.add_flag("--warnings", listed_, said("name the places of the warnings"));
  }
  [[nodiscard]] bool given() const override { return command_.parsed(); }
  [[nodiscard]] int run() override;

 private:
  CLI::App& command_;
  Options options_;
  std::vector<ContentKind> only_;
  bool listed_ = false;
};

int CheckCommand::run() {
  const std::set<ContentKind> only(only_.begin(), only_.end());
  const Warnings warnings = listed_ ? Warnings::Listed : Warnings::Counted;
  Problems problems;
  const CheckReport report = checkContent(options_, only, warnings, problems, showStep);
  std::cout << report.warnings;
  for (const std::string& note : report.notes)
    std::cerr << said("note: {}", note) << "\n";
  tellOfMerged();
  if (problems.none()) std::cout << said("{}, no errors", report.counted) << "\n";
  return tell(problems);
}

} // namespace

std::unique_ptr<Command> checkCommand(CLI::App& application) {
  return std::make_unique<CheckCommand>(application);
}

} // namespace talvora::pack
