// talvora-pack compress: a pack that travels carries its recordings in half the room.
#include "pack/Command.h"
#include "pack/CompressRecordings.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>

namespace talvora::pack {

namespace {

class CompressCommand final : public Command {
 public:
  explicit CompressCommand(CLI::App& application);
  [[nodiscard]] bool given() const override { return compress_->parsed(); }
  [[nodiscard]] int run() override;

 private:
  CLI::App* compress_ = nullptr;
  std::filesystem::path pack_;
};

CompressCommand::CompressCommand(CLI::App& application) {
  compress_ = application.add_subcommand(
      "compress", "put the recordings of the pack PACK into FLAC, half the size, to be sent or "
                  "installed; the program reads both");
  compress_->add_option("PACK", pack_, "folder of the pack")
      ->required()
      ->check(CLI::ExistingDirectory);
}

int CompressCommand::run() {
  const Compressed result = compressRecordings(pack_);
  std::cout << result.recordings << " recordings: " << result.before / 1024 << " KB became "
            << result.after / 1024 << " KB\n";
  return 0;
}

} // namespace

std::unique_ptr<Command> compressCommand(CLI::App& application) {
  return std::make_unique<CompressCommand>(application);
}

} // namespace talvora::pack
