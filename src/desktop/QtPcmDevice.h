// The sound device of the desktop, through Qt Multimedia.
#pragma once

#include "desktop/PcmPlayer.h"

#include <QAudioSink>
#include <QEventLoop>

#include <chrono>
#include <memory>

namespace talvora {

/// The default device as it is when a sound begins. A device that is missing or fails swallows what
/// it is given for a while and is then looked for again.
class QtPcmDevice final : public PcmDevice {
 public:
  std::size_t write(std::span<const std::int16_t> samples, int rate) override;
  void silence() override { close(); }

 private:
  using Clock = std::chrono::steady_clock;

  /// Makes the sink ready for a rate; false when no device serves.
  bool ready(int rate);
  void open(int rate);
  void close();
  [[nodiscard]] bool hasFailed() const;

  // Lets the sink keep timers on a thread that Qt has not started, and takes in what the sound
  // server told since the last sound.
  QEventLoop events_;
  std::unique_ptr<QAudioSink> sink_;
  QIODevice* input_ = nullptr; ///< where the running sink takes samples; the sink owns it
  int rate_ = 0;
  Clock::time_point deafUntil_{};
};

} // namespace talvora

/// What the library of the device is loaded for.
extern "C" [[gnu::visibility("default")]] void
talvoraMakeSoundDevice(std::unique_ptr<talvora::PcmDevice>& device);
