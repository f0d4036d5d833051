#include "pack/import/ImportCommand.h"

#include "pack/FolderSearch.h"
#include "pack/import/DictionaryImport.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace talvora::pack {

namespace {

/// Tells the steps on a terminal; a log or a script is spared them.
void showStep(std::string_view step) {
  if (::isatty(STDERR_FILENO) != 0) std::cerr << step << "...\n";
}

} // namespace

struct ImportCommand::Parts {
  CLI::App* command = nullptr;
  std::vector<std::string> dictionaries;
  std::string pack;   ///< empty where nobody said
  std::string folder; ///< the same
  bool importedFirst = false;
  bool remove = false;
};

ImportCommand::ImportCommand(CLI::App& application) : parts_(std::make_unique<Parts>()) {
  Parts& p = *parts_;
  p.command = application.add_subcommand(
      "import", "take dictionaries of your own into the learner's folder: StarDict (.ifo), dictd "
                "(.index), or a word, a tab and its entry a line (.tsv, .txt, .tab); without any, "
                "tell which are there");
  p.command->add_option("DICTIONARY", p.dictionaries,
                        "the dictionaries, in the order in which they are shown; those of an "
                        "earlier import go");
  p.command->add_flag("--imported-first", p.importedFirst,
                      "show them ahead of the course's own senses; else they come behind");
  p.command->add_flag("--remove", p.remove, "go back to the course's own dictionary");
  p.command->add_option("--pack", p.pack,
                        "the course; without it the one that the program would open");
  p.command->add_option("--learner", p.folder,
                        "the learner's folder; without it the one that the program uses");
}

ImportCommand::~ImportCommand() = default;

bool ImportCommand::given() const {
  return parts_->command->parsed();
}

int ImportCommand::run() const {
  const Parts& p = *parts_;
  const LearnersPlaces places = placesFor(p.pack, p.folder);
  const auto code = [](ListResult result) { return static_cast<int>(result); };
  if (p.remove) return code(removeImported(places.learner, std::cout));
  if (p.dictionaries.empty()) return code(showImported(places.learner, std::cout));
  if (places.pack.empty()) {
    std::cout << "Không tìm thấy bộ bài học; hãy chỉ thư mục của nó bằng --pack.\n";
    return code(ListResult::Impossible);
  }
  const ImportWish wish{{p.dictionaries.begin(), p.dictionaries.end()},
                        p.importedFirst ? MergeOrder::ImportedFirst : MergeOrder::OwnFirst,
                        places.pack,
                        places.learner};
  return code(importDictionaries(wish, std::cout, showStep));
}

} // namespace talvora::pack
