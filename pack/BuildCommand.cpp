// talvora-pack build: a pack out of sources.
#include "formats/PackFiles.h"
#include "pack/Command.h"
#include "pack/KeptWords.h"
#include "pack/Lexicon.h"
#include "pack/Recordings.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>

namespace talvora::pack {

namespace {

/// Words that kept their places need no telling.
void tellOf(const Carried& carried) {
  const int anew = carried.inTheirText + carried.nearest + carried.inAnotherText + carried.alike;
  if (anew + carried.gone == 0) return;
  std::cerr << "words of the learner: " << carried.inTheirText << " found in their texts, "
            << carried.nearest << " in a changed sentence, " << carried.inAnotherText
            << " in another text, " << carried.alike << " in one like it, " << carried.gone
            << " kept as text only\n";
}

class BuildCommand final : public Command {
 public:
  explicit BuildCommand(CLI::App& application)
      : command_(*application.add_subcommand(
            "build", "compile SOURCE into the folder OUT, and speak the listening "
                     "scripts (texts 400 to 408) into OUT/sound where they are new "
                     "or have changed")) {
    addSourceOptions(command_, options_);
    command_.add_option("OUT", out_, "folder of the pack")->required();
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
    std::cerr << "talvora-pack was built without speech: the recordings will be silent, and the "
                 "words of our own will have no pronunciation\n";
  }
  options_.earlierPack = out_;
  const auto files = compile(options_, problems, showStep);
  if (!problems.none()) return tell(problems);
  KeptWords words(out_.string());
  for (const PackFile& file : files) {
    showStep(file.name);
    std::filesystem::create_directories((out_ / file.name).parent_path());
    if (const auto failure = store(file, out_)) return failWith(*failure);
    if (file.name == packfile::Marks) removeUnmarkedRecordings(out_, file.bytes);
  }
  if (const auto carried = words.carry()) tellOf(*carried);
  return 0;
}

} // namespace

std::unique_ptr<Command> buildCommand(CLI::App& application) {
  return std::make_unique<BuildCommand>(application);
}

} // namespace talvora::pack
