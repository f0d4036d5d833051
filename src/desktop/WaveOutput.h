// The wave player of the desktop: stretches of a wave file, read by libsndfile.
#pragma once

#include "desktop/PcmPlayer.h"
#include "platform/WavePlayer.h"

#include <sndfile.hh>

#include <string>

namespace talvora {

/// A file that cannot be read counts as not open: nothing plays then. A stretch ends with the file.
class WaveOutput final : public WavePlayer {
 public:
  explicit WaveOutput(PcmPlayer::MakeDevice makeDevice) : player_(std::move(makeDevice)) {}

  void Open(const std::string& path) override;
  void Close() override;
  void Play(int from, int to) override;
  void Stop() override { player_.stop(); }
  [[nodiscard]] int Mode() const override { return player_.isPlaying() ? Playing : Stopped; }

 private:
  /// The samples of a stretch in milliseconds, its channels mixed to one.
  [[nodiscard]] Samples read(int from, int to);

  SndfileHandle file_;
  PcmPlayer player_;
};

} // namespace talvora
