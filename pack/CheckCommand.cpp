// talvora-pack check: what is wrong with sources.
#include "pack/Check.h"
#include "pack/Command.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <map>
#include <set>
#include <vector>

namespace talvora::pack {

namespace {

std::map<std::string, ContentKind> namedKinds() {
  std::map<std::string, ContentKind> kinds;
  for (const ContentKindName& each : ContentKindNames)
    kinds.emplace(each.name, each.kind);
  return kinds;
}

class CheckCommand final : public Command {
 public:
  explicit CheckCommand(CLI::App& application)
      : command_(*application.add_subcommand("check", "check SOURCE and write nothing")) {
    addSourceOptions(command_, options_);
    command_.add_option("--only", only_, "check these kinds alone, which takes a second or two")
        ->transform(CLI::CheckedTransformer(namedKinds()));
    command_.add_flag("--warnings", listed_, "name the places of the warnings");
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
    std::cerr << "note: " << note << "\n";
  if (problems.none()) std::cout << report.counted << ", no errors\n";
  return tell(problems);
}

} // namespace

std::unique_ptr<Command> checkCommand(CLI::App& application) {
  return std::make_unique<CheckCommand>(application);
}

} // namespace talvora::pack
