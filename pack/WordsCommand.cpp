#include "pack/WordsCommand.h"

#include "pack/FolderSearch.h"
#include "pack/LearnersList.h"
#include "pack/words/WordsExport.h"
#include "pack/words/WordsImport.h"

#include <CLI/CLI.hpp>

#include <chrono>
#include <iostream>
#include <string>
#include <unistd.h>

namespace talvora::pack {

namespace {

/// A count on a terminal's last line; a log or a script is spared it.
void showCount(std::size_t done, std::size_t all) {
  if (::isatty(STDERR_FILENO) == 0) return;
  std::cerr << "\rđang đọc từ " << done << "/" << all << (done == all ? "\n" : "") << std::flush;
}

std::int64_t secondsNow() {
  const auto since = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::seconds>(since).count();
}

int tellUnknownForm(const std::string& file) {
  std::cerr << file << ": tên tệp phải kết thúc bằng .csv, .tsv, .txt hoặc .apkg\n";
  return static_cast<int>(ListResult::Impossible);
}

} // namespace

struct WordsCommand::Parts {
  CLI::App* words = nullptr;
  CLI::App* list = nullptr;
  CLI::App* backups = nullptr;
  CLI::App* restore = nullptr;
  CLI::App* exporting = nullptr;
  CLI::App* importing = nullptr;
  std::string folder; ///< empty where nobody said
  std::string pack;   ///< the same
  std::string file;
  std::string sounds;
  bool silent = false;
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
    command->add_option("--learner", p.folder,
                        "the learner's folder; without it the one that the program uses");
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
  p.exporting = add("export", "write the words for a spreadsheet (.csv), for a flash-card program "
                              "(.tsv, .txt), or as a deck with sound (.apkg)");
  p.exporting->add_option("FILE", p.file, "the file to write; its ending says the form")
      ->required();
  p.exporting->add_option("--pack", p.pack,
                          "the course; without it the one that the program would open");
  p.exporting->add_flag("--silent", p.silent, "a deck without sound, which takes no time");
  p.exporting->add_option("--sounds", p.sounds, "a folder for the sounds of a table");
  p.importing = add("import", "add the words of a list, one a line or as a table with headings; "
                              "what is there stays as it is");
  p.importing->add_option("FILE", p.file, "the list")->required();
  p.importing->add_option("--pack", p.pack, "the course whose sentences the words take");
}

WordsCommand::~WordsCommand() = default;

bool WordsCommand::given() const {
  return parts_->words->parsed();
}

int WordsCommand::run() const {
  const Parts& p = *parts_;
  const bool needsPack = p.exporting->parsed() || p.importing->parsed();
  const LearnersPlaces places = placesFor(needsPack ? p.pack : "", p.folder);
  const LearnersList list{places.learner};
  const auto code = [](ListResult result) { return static_cast<int>(result); };
  if (p.exporting->parsed()) {
    const auto form = exportFormOf(p.file);
    if (!form) return tellUnknownForm(p.file);
    ExportWish wish{p.file, *form, places.pack, !p.silent, std::nullopt, secondsNow()};
    if (!p.sounds.empty()) wish.sounds = p.sounds;
    return code(exportWords(list, wish, std::cout, showCount));
  }
  if (p.importing->parsed()) return code(importWords(list, p.file, places.pack, std::cout));
  if (p.list->parsed()) return code(listWords(list, std::cout));
  if (p.backups->parsed()) return code(listBackups(list, std::cout));
  if (p.restore->parsed()) {
    return code(restoreWords(list, p.copy, p.yes ? Doing::Do : Doing::Show, std::cout));
  }
  return code(checkWords(list, p.pack.empty() ? std::nullopt : std::optional(p.pack),
                         p.mend ? Doing::Do : Doing::Show, std::cout));
}

} // namespace talvora::pack
