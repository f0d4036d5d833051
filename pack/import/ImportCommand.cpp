// talvora-pack import: dictionaries of a learner's own.
#include "pack/Command.h"
#include "pack/FolderSearch.h"
#include "pack/Message.h"
#include "pack/import/DictionaryImport.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <string>
#include <vector>

namespace talvora::pack {

namespace {

class ImportCommand final : public Command {
 public:
  explicit ImportCommand(CLI::App& application);
  [[nodiscard]] bool given() const override { return command_->parsed(); }
  [[nodiscard]] int run() override;

 private:
  CLI::App* command_ = nullptr;
  std::vector<std::string> dictionaries_;
  std::string pack_;   ///< empty where nobody said
  std::string folder_; ///< the same
  bool importedFirst_ = false;
  bool remove_ = false;
};

ImportCommand::ImportCommand(CLI::App& application) {
  command_ = application.add_subcommand(
      "import", said("take dictionaries of your own into the learner's folder: StarDict (.ifo), "
                     "dictd (.index), or a word, a tab and its entry a line (.tsv, .txt, .tab); "
                     "without any, tell which are there"));
  command_->add_option(
      "DICTIONARY", dictionaries_,
      said(
          "the dictionaries, in the order in which they are shown; those of an earlier import go"));
  command_->add_flag("--imported-first", importedFirst_,
                     said("show them ahead of the course's own senses; else they come behind"));
  command_->add_flag("--remove", remove_, said("go back to the course's own dictionary"));
  command_->add_option("--pack", pack_,
                       said("the course; without it the one that the program would open"));
  command_->add_option("--learner", folder_,
                       said("the learner's folder; without it the one that the program uses"));
}

int ImportCommand::run() {
  const LearnersPlaces places = placesFor(pack_, folder_);
  const auto code = [](ListResult result) { return static_cast<int>(result); };
  if (remove_) return code(removeImported(places.learner, std::cout));
  if (dictionaries_.empty()) return code(showImported(places.learner, places.pack, std::cout));
  if (places.pack.empty()) {
    std::cout << said("No course was found; tell its folder with --pack.") << "\n";
    return code(ListResult::Impossible);
  }
  const ImportWish wish{{dictionaries_.begin(), dictionaries_.end()},
                        importedFirst_ ? MergeOrder::ImportedFirst : MergeOrder::OwnFirst,
                        places.pack,
                        places.learner};
  return code(importDictionaries(wish, std::cout, showStep));
}

} // namespace

std::unique_ptr<Command> importCommand(CLI::App& application) {
  return std::make_unique<ImportCommand>(application);
}

} // namespace talvora::pack
