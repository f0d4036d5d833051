#include "pack/texts/TextCommand.h"

#include "pack/FolderSearch.h"
#include "pack/texts/OwnTexts.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <string>
#include <vector>

namespace talvora::pack {

struct TextCommand::Parts {
  CLI::App* command = nullptr;
  CLI::App* add = nullptr;
  CLI::App* list = nullptr;
  CLI::App* remove = nullptr;
  std::vector<std::string> files;
  std::vector<int> numbers;
  std::string folder; ///< empty where nobody said
};

TextCommand::TextCommand(CLI::App& application) : parts_(std::make_unique<Parts>()) {
  Parts& p = *parts_;
  p.command = application.add_subcommand(
      "text", "texts of your own, at the end of the list of reading texts");
  p.command->require_subcommand(1);
  const auto addCommand = [&](const char* name, const char* what) {
    CLI::App* const command = p.command->add_subcommand(name, what);
    command->add_option("--learner", p.folder,
                        "the learner's folder; without it the one that the program uses");
    return command;
  };
  p.add = addCommand("add", "add texts; one that is long becomes several");
  p.add
      ->add_option("FILE", p.files,
                   "plain text, a book (.epub) or subtitles (.srt), in English and UTF-8; in a "
                   "plain text a line that begins with \"= \" translates the line above it")
      ->required();
  p.list = addCommand("list", "tell the texts with their numbers");
  p.remove = addCommand("remove", "take texts away; words keep their sentences");
  p.remove->add_option("NUMBER", p.numbers, "as \"list\" tells them")->required();
  addCommand("refresh", "take over what was changed in the folder \"texts\"");
}

TextCommand::~TextCommand() = default;

bool TextCommand::given() const {
  return parts_->command->parsed();
}

int TextCommand::run() const {
  const Parts& p = *parts_;
  const std::string learner = placesFor("", p.folder).learner;
  const auto code = [](ListResult result) { return static_cast<int>(result); };
  if (p.add->parsed()) return code(addTexts(learner, {p.files.begin(), p.files.end()}, std::cout));
  if (p.list->parsed()) return code(listTexts(learner, std::cout));
  if (p.remove->parsed()) return code(removeTexts(learner, p.numbers, std::cout));
  return code(refreshTexts(learner, std::cout));
}

} // namespace talvora::pack
