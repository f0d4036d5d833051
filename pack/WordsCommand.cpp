// talvora-pack words: what a learner has collected, and the ways out and in.
#include "pack/Command.h"
#include "pack/CommandLine.h"
#include "pack/FolderSearch.h"
#include "pack/LearnersList.h"
#include "pack/Message.h"
#include "pack/words/WordsExport.h"
#include "pack/words/WordsImport.h"

#include <chrono>
#include <iostream>
#include <map>
#include <string>
#include <unistd.h>

namespace talvora::pack {

namespace {

/// A count on a terminal's last line; a log or a script is spared it.
void showCount(std::size_t done, std::size_t all) {
  if (::isatty(STDERR_FILENO) == 0) return;
  std::cerr << "\r" << said("reading words aloud, {} of {}", done, all) << (done == all ? "\n" : "")
            << std::flush;
}

std::int64_t secondsNow() {
  const auto since = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::seconds>(since).count();
}

int tellUnknownForm(const std::string& file) {
  std::cerr << said("{}: the file's name must end in .csv, .tsv, .txt or .apkg", file) << "\n";
  return static_cast<int>(ListResult::Impossible);
}

std::map<std::string, Aloud> namedAloud() {
  std::map<std::string, Aloud> names;
  for (const AloudName& each : AloudNames)
    names.emplace(each.name, each.aloud);
  return names;
}

class WordsCommand final : public Command {
 public:
  explicit WordsCommand(CLI::App& application);
  [[nodiscard]] bool given() const override { return words_->parsed(); }
  [[nodiscard]] int run() override;

 private:
  CLI::App* words_ = nullptr;
  CLI::App* list_ = nullptr;
  CLI::App* backups_ = nullptr;
  CLI::App* restore_ = nullptr;
  CLI::App* exporting_ = nullptr;
  CLI::App* importing_ = nullptr;
  std::string folder_; ///< empty where nobody said
  std::string pack_;   ///< the same
  std::string file_;
  std::string sounds_;
  Aloud aloud_ = Aloud::Both;
  bool silent_ = false;
  std::string copy_;
  bool yes_ = false;
  bool mend_ = false;
};

WordsCommand::WordsCommand(CLI::App& application) {
  words_ = application.add_subcommand("words", said("the words that a learner has collected"));
  words_->require_subcommand(1);
  const auto add = [&](const char* name, const std::string& what) {
    CLI::App* const command = words_->add_subcommand(name, what);
    command->add_option("--learner", folder_,
                        said("the learner's folder; without it the one that the program uses"));
    return command;
  };
  list_ = add("list", said("tell every word with its text and its sentence"));
  backups_ = add("backups", said("tell the dated copies of the list"));
  restore_ = add("restore", said("bring back what a copy has and the list has not"));
  restore_->add_option("COPY", copy_, said("name of the copy; the newest that has such words"));
  restore_->add_flag("--yes", yes_, said("do it; without this it is only shown"));
  CLI::App* const check = add("check", said("tell what is odd in the list"));
  check->add_option("--pack", pack_, said("also look whether the sentences are in this pack"));
  check->add_flag("--mend", mend_, said("mend it; without this it is only told"));
  exporting_ = add("export", said("write the words for a spreadsheet (.csv), for a flash-card "
                                  "program (.tsv, .txt), or as a deck with sound (.apkg)"));
  exporting_->add_option("FILE", file_, said("the file to write; its ending says the form"))
      ->required();
  exporting_->add_option("--pack", pack_,
                         said("the course; without it the one that the program would open"));
  takeOneOf(*exporting_->add_option("--audio", aloud_,
                                    said("what is read aloud: none, word, sentence or both")),
            namedAloud());
  exporting_->add_flag("--silent", silent_, said("the same as --audio none, which takes no time"));
  exporting_->add_option("--sounds", sounds_, said("a folder for the sounds of a table"));
  importing_ = add("import", said("add the words of a list, one a line or as a table with "
                                  "headings; what is there stays as it is"));
  importing_->add_option("FILE", file_, said("the list"))->required();
  importing_->add_option("--pack", pack_, said("the course whose sentences the words take"));
}

int WordsCommand::run() {
  const bool needsPack = exporting_->parsed() || importing_->parsed();
  const LearnersPlaces places = placesFor(needsPack ? pack_ : "", folder_);
  const LearnersList list{places.learner};
  const auto code = [](ListResult result) { return static_cast<int>(result); };
  if (exporting_->parsed()) {
    const auto form = exportFormOf(file_);
    if (!form) return tellUnknownForm(file_);
    ExportWish wish{file_,        *form,       places.pack, silent_ ? Aloud::Nothing : aloud_,
                    std::nullopt, secondsNow()};
    if (!sounds_.empty()) wish.sounds = sounds_;
    return code(exportWords(list, wish, std::cout, showCount));
  }
  if (importing_->parsed()) return code(importWords(list, file_, places.pack, std::cout));
  if (list_->parsed()) return code(listWords(list, std::cout));
  if (backups_->parsed()) return code(listBackups(list, std::cout));
  if (restore_->parsed()) {
    return code(restoreWords(list, copy_, yes_ ? Doing::Do : Doing::Show, std::cout));
  }
  return code(checkWords(list, pack_.empty() ? std::nullopt : std::optional(pack_),
                         mend_ ? Doing::Do : Doing::Show, std::cout));
}

} // namespace

std::unique_ptr<Command> wordsCommand(CLI::App& application) {
  return std::make_unique<WordsCommand>(application);
}

} // namespace talvora::pack
