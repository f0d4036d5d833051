#include "pack/WordsCommand.h"

#include "pack/LearnersList.h"

#include <CLI/CLI.hpp>

#include <cstdlib>
#include <iostream>
#include <string>

namespace talvora::pack {

namespace {

/// Where the program keeps what a learner owns when nobody says otherwise.
std::string usualFolder() {
  const auto known = [](const char* name) {
    const char* const value = std::getenv(name);
    return std::string(value == nullptr ? "" : value);
  };
  const std::string data = known("XDG_DATA_HOME");
  return (data.empty() ? known("HOME") + "/.local/share" : data) + "/talvora";
}

} // namespace

struct WordsCommand::Parts {
  CLI::App* words = nullptr;
  CLI::App* list = nullptr;
  CLI::App* backups = nullptr;
  CLI::App* restore = nullptr;
  std::string folder = usualFolder();
  std::string pack;
  std::string copy;
  bool yes = false;
  bool mend = false;
};

WordsCommand::WordsCommand(CLI::App& application) : parts_(std::make_unique<Parts>()) {
  Parts& p = *parts_;
  p.words = application.add_subcommand("words", "the words that a learner has collected");
  p.words->require_subcommand(1);
  const auto add = [&](const char* name, const char* what) {
    CLI::App* const command = p.words->add_subcommand(name, what);
    command->add_option("--learner", p.folder, "the learner's folder")->capture_default_str();
    return command;
  };
  p.list = add("list", "tell every word with its text and its sentence");
  p.backups = add("backups", "tell the dated copies of the list");
  p.restore = add("restore", "bring back what a copy has and the list has not");
  p.restore->add_option("COPY", p.copy, "name of the copy; the newest that has such words");
  p.restore->add_flag("--yes", p.yes, "do it; without this it is only shown");
  CLI::App* const check = add("check", "tell what is odd in the list");
  check->add_option("--pack", p.pack, "also look whether the sentences are in this pack");
  check->add_flag("--mend", p.mend, "mend it; without this it is only told");
}

WordsCommand::~WordsCommand() = default;

bool WordsCommand::given() const {
  return parts_->words->parsed();
}

int WordsCommand::run() const {
  const Parts& p = *parts_;
  const LearnersList list{p.folder};
  const auto code = [](ListResult result) { return static_cast<int>(result); };
  if (p.list->parsed()) return code(listWords(list, std::cout));
  if (p.backups->parsed()) return code(listBackups(list, std::cout));
  if (p.restore->parsed()) {
    return code(restoreWords(list, p.copy, p.yes ? Doing::Do : Doing::Show, std::cout));
  }
  return code(checkWords(list, p.pack.empty() ? std::nullopt : std::optional(p.pack),
                         p.mend ? Doing::Do : Doing::Show, std::cout));
}

} // namespace talvora::pack
