// The wave player of the desktop: stretches of a recording.
#pragma once

#include "desktop/PcmPlayer.h"
#include "desktop/Recording.h"
#include "platform/WavePlayer.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace talvora {

/// A file that cannot be read counts as not open: nothing plays then. Where there is nothing to
/// read files with, a stretch takes its time silently.
class WaveOutput final : public WavePlayer {
 public:
  /// Opens a file; null when there is nothing to read it with.
  using OpenRecording = std::function<std::unique_ptr<Recording>(const std::string& path)>;

  WaveOutput(PcmPlayer::MakeDevice makeDevice, OpenRecording openRecording)
      : openRecording_(std::move(openRecording)), player_(std::move(makeDevice)) {}

  void Open(const std::string& path) override;
  void Close() override;
  void Play(int from, int to) override;
  void Stop() override { player_.stop(); }
  [[nodiscard]] int Mode() const override { return player_.isPlaying() ? Playing : Stopped; }

 private:
  OpenRecording openRecording_;
  std::unique_ptr<Recording> recording_; ///< null when none is open
  PcmPlayer player_;
};

} // namespace talvora
