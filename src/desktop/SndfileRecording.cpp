#include "desktop/SndfileRecording.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <span>

namespace talvora {

namespace {

/// How much of a stretch is read at once.
constexpr std::int64_t PieceFrames = 4096;

std::int64_t frameAt(int ms, int rate) {
  return std::int64_t{ms} * rate / 1000;
}

void appendMixed(Samples& single, std::span<const std::int16_t> frames, int channels) {
  for (auto frame = frames.begin(); frame != frames.end(); frame += channels) {
    single.push_back(
        static_cast<std::int16_t>(std::accumulate(frame, frame + channels, 0) / channels));
  }
}

} // namespace

Samples SndfileRecording::read(int from, int to) {
  if (!file_ || file_.error() != SF_ERR_NO_ERROR) return {};
  const std::int64_t first = std::max<std::int64_t>(frameAt(from, file_.samplerate()), 0);
  const std::int64_t last = std::min<std::int64_t>(frameAt(to, file_.samplerate()), file_.frames());
  if (first >= last || file_.seek(first, SEEK_SET) != first) return {};
  // Room is made for what is there: a header may claim any length.
  const auto channels = static_cast<std::size_t>(file_.channels());
  Samples single;
  Samples piece(PieceFrames * channels);
  for (std::int64_t next = first; next < last;) {
    const sf_count_t count = file_.readf(piece.data(), std::min(PieceFrames, last - next));
    if (count <= 0) break;
    const std::span frames(piece.data(), static_cast<std::size_t>(count) * channels);
    appendMixed(single, frames, file_.channels());
    next += count;
  }
  return single;
}

} // namespace talvora

void talvoraOpenRecording(std::unique_ptr<talvora::Recording>& recording, const std::string& path) {
  recording = std::make_unique<talvora::SndfileRecording>(path);
}
