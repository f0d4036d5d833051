// The sound device of the desktop, through Qt Multimedia.
#pragma once

#include "desktop/PcmPlayer.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QEventLoop>

#include <memory>

namespace talvora {

/// A device that fails swallows what it is given until it is silenced, and is then tried again.
class QtPcmDevice final : public PcmDevice {
 public:
  explicit QtPcmDevice(const QAudioDevice& device) : device_(device) {}

  std::size_t write(std::span<const std::int16_t> samples, int rate) override;
  void silence() override;

 private:
  /// Makes the sink ready for a rate; false when the device does not serve.
  bool ready(int rate);
  void open(int rate);
  [[nodiscard]] bool hasFailed() const;

  // Its existence lets the sink keep timers on a thread that Qt has not started.
  QEventLoop events_;
  QAudioDevice device_;
  std::unique_ptr<QAudioSink> sink_;
  QIODevice* input_ = nullptr; ///< where the running sink takes samples; the sink owns it
  int rate_ = 0;
  bool failed_ = false;
};

} // namespace talvora
