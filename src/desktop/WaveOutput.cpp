#include "desktop/WaveOutput.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <utility>

namespace talvora {

namespace {

std::int64_t frameAt(int ms, int rate) {
  return std::int64_t{ms} * rate / 1000;
}

Samples mixed(const Samples& frames, int channels) {
  if (channels == 1) return frames;
  Samples single;
  single.reserve(frames.size() / static_cast<std::size_t>(channels));
  for (auto frame = frames.begin(); frame != frames.end(); frame += channels) {
    single.push_back(
        static_cast<std::int16_t>(std::accumulate(frame, frame + channels, 0) / channels));
  }
  return single;
}

} // namespace

void WaveOutput::Open(const std::string& path) {
  Close();
  file_ = SndfileHandle(path);
}

void WaveOutput::Close() {
  player_.stop();
  file_ = SndfileHandle();
}

void WaveOutput::Play(int from, int to) {
  player_.stop();
  player_.play(read(from, to), file_.samplerate());
}

Samples WaveOutput::read(int from, int to) {
  if (!file_ || file_.error() != SF_ERR_NO_ERROR) return {};
  const std::int64_t first = std::max<std::int64_t>(frameAt(from, file_.samplerate()), 0);
  const std::int64_t last = std::min<std::int64_t>(frameAt(to, file_.samplerate()), file_.frames());
  if (first >= last || file_.seek(first, SEEK_SET) != first) return {};
  const auto channels = static_cast<std::size_t>(file_.channels());
  Samples frames(static_cast<std::size_t>(last - first) * channels);
  const sf_count_t count = file_.readf(frames.data(), last - first);
  frames.resize(static_cast<std::size_t>(std::max<sf_count_t>(count, 0)) * channels);
  return mixed(frames, file_.channels());
}

} // namespace talvora
