// talvora-pack build: a pack out of sources.
#include "formats/PackFiles.h"
#include "pack/Command.h"
#include "pack/FolderSearch.h"
#include "pack/KeptWords.h"
#include "pack/Lexicon.h"
#include "pack/Message.h"
#include "pack/Recordings.h"
#include "pack/import/MergedCourse.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>

namespace talvora::pack {

namespace {

/// Words that kept their places need no telling.
void tellOf(const Carried& carried) {
  const int anew = carried.inTheirText + carried.nearest + carried.inAnotherText + carried.alike;
  if (anew + carried.gone == 0) return;
  std::cerr << said("words of the learner: {} found in their texts, {} in a changed sentence, {} "
                    "in another text, {} in one like it, {} kept as text only",
                    carried.inTheirText, carried.nearest, carried.inAnotherText, carried.alike,
                    carried.gone)
            << "\n";
}

class BuildCommand final : public Command {
 public:
  explicit BuildCommand(CLI::App& application)
      : command_(*application.add_subcommand(
            "build",
            said("compile SOURCE into the folder OUT, and speak the listening scripts (texts 400 "
                 "to 408) into OUT/sound where they are new or have changed"))) {
    addSourceOptions(command_, options_);
    command_.add_option("OUT", out_, said("folder of the pack"))->required();
  }
  [[nodiscard]] bool given() const override { return command_.parsed(); }
  [[nodiscard]] int run() override;

 private:
  CLI::App& command_;
  Options options_;
  std::filesystem::path out_;
};

int BuildCommand::run() {
  Problems problems;
  if (!hasLexicon()) {
    std::cerr << said("talvora-pack was built without speech: the recordings will be silent, and "
                      "the words of our own will have no pronunciation")
              << "\n";
  }
  options_.earlierPack = out_;
  const auto files = compile(options_, problems, showStep);
  if (!problems.none()) return tell(problems);
  KeptWords words(out_.string());
  for (const PackFile& file : files) {
    showStep(file.name);
    std::filesystem::create_directories((out_ / file.name).parent_path());
    if (const auto failure = store(file, out_)) return failWith(translatedFileProblem(*failure));
    if (file.name == packfile::Marks) removeUnmarkedRecordings(out_, file.bytes);
  }
  if (const auto carried = words.carry()) tellOf(*carried);
  if (isMergedWithAnother(placesFor(out_.string(), "").learner, out_))
    std::cerr << mergedWithAnother() << "\n";
  return 0;
}

} // namespace

std::unique_ptr<Command> buildCommand(CLI::App& application) {
  return std::make_unique<BuildCommand>(application);
}

} // namespace talvora::pack
