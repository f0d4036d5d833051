#include "pack/CompressRecordings.h"

#include "pack/Message.h"
#include "pack/PackFile.h"
#include "pack/SourceFile.h"
#include "pack/WaveFile.h"

#include <optional>
#include <stdexcept>
#include <string>

namespace talvora::pack {

namespace {

void compressOne(const std::filesystem::path& recording, Compressed& result) {
  const auto wave = readWhole(recording);
  if (!wave) throw std::runtime_error(said("{}: cannot be read", recording.string()));
  const auto flac = flacFileOf(*wave);
  if (!flac || flac->size() >= wave->size()) return;
  const PackFile file{recording.filename().string(), *flac};
  if (const auto failure = store(file, recording.parent_path())) throw std::runtime_error(*failure);
  ++result.recordings;
  result.before += wave->size();
  result.after += flac->size();
}

} // namespace

Compressed compressRecordings(const std::filesystem::path& pack) {
  const auto folder = pack / "sound";
  if (!std::filesystem::is_directory(folder))
    throw std::runtime_error(said("{}: no recordings are here", folder.string()));
  Compressed result;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".wav") compressOne(entry.path(), result);
  }
  return result;
}

} // namespace talvora::pack
