// talvora-pack text: texts of a learner's own.
#include "pack/Command.h"
#include "pack/FolderSearch.h"
#include "pack/Message.h"
#include "pack/texts/OwnTexts.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <string>
#include <vector>

namespace talvora::pack {

namespace {

class TextCommand final : public Command {
 public:
  explicit TextCommand(CLI::App& application);
  [[nodiscard]] bool given() const override { return command_->parsed(); }
  [[nodiscard]] int run() override;

 private:
  CLI::App* command_ = nullptr;
  CLI::App* add_ = nullptr;
  CLI::App* list_ = nullptr;
  CLI::App* remove_ = nullptr;
  std::vector<std::string> files_;
  std::vector<int> numbers_;
  std::string folder_; ///< empty where nobody said
};

TextCommand::TextCommand(CLI::App& application) {
  command_ = application.add_subcommand(
      "text", said("texts of your own, at the end of the list of reading texts"));
  command_->require_subcommand(1);
  const auto addCommand = [&](const char* name, const std::string& what) {
    CLI::App* const command = command_->add_subcommand(name, what);
    command->add_option("--learner", folder_,
                        said("the learner's folder; without it the one that the program uses"));
    return command;
  };
  add_ = addCommand("add", said("add texts; one that is long becomes several"));
  add_->add_option("FILE", files_,
                   said("plain text, a book (.epub) or subtitles (.srt), in English and UTF-8; in "
                        "a plain text a line that begins with \"= \" translates the line above it"))
      ->required();
  list_ = addCommand("list", said("tell the texts with their numbers"));
  remove_ = addCommand("remove", said("take texts away; words keep their sentences"));
  remove_->add_option("NUMBER", numbers_, said("as \"list\" tells them"))->required();
  addCommand("refresh", said("take over what was changed in the folder \"texts\""));
}

int TextCommand::run() {
  const std::string learner = placesFor("", folder_).learner;
  const auto code = [](ListResult result) { return static_cast<int>(result); };
  if (add_->parsed()) return code(addTexts(learner, {files_.begin(), files_.end()}, std::cout));
  if (list_->parsed()) return code(listTexts(learner, std::cout));
  if (remove_->parsed()) return code(removeTexts(learner, numbers_, std::cout));
  return code(refreshTexts(learner, std::cout));
}

} // namespace

std::unique_ptr<Command> textCommand(CLI::App& application) {
  return std::make_unique<TextCommand>(application);
}

} // namespace talvora::pack
