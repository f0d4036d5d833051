// talvora-pack dump: a pack back into sources.
#include "pack/Command.h"
#include "pack/Dump.h"
#include "pack/Message.h"

#include <CLI/CLI.hpp>

#include <filesystem>

namespace talvora::pack {

namespace {

class DumpCommand final : public Command {
 public:
  explicit DumpCommand(CLI::App& application)
      : command_(*application.add_subcommand("dump", said("decode the pack PACK into sources"))) {
    command_.add_option("PACK", pack_, said("folder of the pack"))->required();
    command_.add_option("OUT", out_, said("folder for the sources"))->required();
  }
  [[nodiscard]] bool given() const override { return command_.parsed(); }
  [[nodiscard]] int run() override;

 private:
  CLI::App& command_;
  std::filesystem::path pack_;
  std::filesystem::path out_;
};

int DumpCommand::run() {
  Problems problems;
  const auto sources = dump(pack_, problems);
  for (const SourceText& source : sources) {
    const auto folder = (out_ / source.name).parent_path();
    std::filesystem::create_directories(folder);
    const auto name = std::filesystem::path(source.name).filename().string();
    if (const auto failure = store({name, source.text}, folder))
      return failWith(translatedFileProblem(*failure));
  }
  return tell(problems);
}

} // namespace

std::unique_ptr<Command> dumpCommand(CLI::App& application) {
  return std::make_unique<DumpCommand>(application);
}

} // namespace talvora::pack
