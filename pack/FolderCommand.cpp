// talvora-pack folder: what a learner owns, from one machine to another, and to a browser and back.
#include "pack/Command.h"
#include "pack/FolderFile.h"
#include "pack/FolderSearch.h"
#include "pack/Message.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <string>

namespace talvora::pack {

namespace {

class FolderCommand final : public Command {
 public:
  explicit FolderCommand(CLI::App& application);
  [[nodiscard]] bool given() const override { return command_->parsed(); }
  [[nodiscard]] int run() override;

 private:
  CLI::App* command_ = nullptr;
  CLI::App* exporting_ = nullptr;
  std::string file_;
  std::string folder_; ///< empty where nobody said
};

FolderCommand::FolderCommand(CLI::App& application) {
  command_ = application.add_subcommand(
      "folder", said("all that a learner owns as one file, for another machine or a browser"));
  command_->require_subcommand(1);
  const auto add = [&](const char* name, const std::string& what) {
    CLI::App* const command = command_->add_subcommand(name, what);
    command->add_option("FILE", file_, said("the file, an archive (.zip)"))->required();
    command->add_option("--learner", folder_,
                        said("the learner's folder; without it the one that the program uses"));
    return command;
  };
  exporting_ = add("export", said("write words, settings, copies and texts into the file"));
  add("import", said("put what the file holds in place of what is there; the words that were there "
                     "are kept as a copy"));
}

int FolderCommand::run() {
  const LearnersList list{placesFor("", folder_).learner};
  return static_cast<int>(exporting_->parsed() ? exportFolder(list, file_, std::cout)
                                               : importFolder(list, file_, std::cout));
}

} // namespace

std::unique_ptr<Command> folderCommand(CLI::App& application) {
  return std::make_unique<FolderCommand>(application);
}

} // namespace talvora::pack
