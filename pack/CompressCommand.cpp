// talvora-pack compress: a pack that travels carries its recordings in half the room.
#include "pack/Command.h"
#include "pack/CommandLine.h"
#include "pack/CompressRecordings.h"
#include "pack/Message.h"

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
      "compress", said("put the recordings of the pack PACK into FLAC, half the size, to be sent "
                       "or installed; the program reads both"));
  takeFolder(*compress_->add_option("PACK", pack_, said("folder of the pack"))->required());
}

int CompressCommand::run() {
  const Compressed result = compressRecordings(pack_);
  std::cout << said("{} recordings: {} KB became {} KB", result.recordings, result.before / 1024,
                    result.after / 1024)
            << "\n";
  return 0;
}

} // namespace

std::unique_ptr<Command> compressCommand(CLI::App& application) {
  return std::make_unique<CompressCommand>(application);
}

} // namespace talvora::pack
