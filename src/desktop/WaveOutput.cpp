#include "desktop/WaveOutput.h"

#include <algorithm>

namespace talvora {

namespace {

/// Silence in place of a recording that nothing can read.
class SilentRecording final : public Recording {
 public:
  [[nodiscard]] int rate() const override { return Rate; }
  [[nodiscard]] Samples read(int from, int to) override {
    const int ms = std::clamp(to - from, 0, LongestMs);
    return Samples(static_cast<std::size_t>(ms) * Rate / 1000);
  }

 private:
  static constexpr int Rate = 8000;
  static constexpr int LongestMs = 600'000;
};

} // namespace

void WaveOutput::Open(const std::string& path) {
  Close();
  recording_ = openRecording_(path);
  if (!recording_) recording_ = std::make_unique<SilentRecording>();
}

void WaveOutput::Close() {
  player_.stop();
  recording_.reset();
}

void WaveOutput::Play(int from, int to) {
  player_.stop();
  if (recording_) player_.play(recording_->read(from, to), recording_->rate());
}

} // namespace talvora
