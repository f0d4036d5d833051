// A wave player without sound: takes the time that a stretch would take.
#pragma once

#include "platform/WavePlayer.h"

#include <QElapsedTimer>

#include <algorithm>
#include <string>

namespace talvora {

class SilentWave final : public WavePlayer {
 public:
  SilentWave() { clock_.start(); }

  void Open(const std::string&) override { Stop(); }
  void Close() override { Stop(); }
  void Play(int from, int to) override { endsAt_ = clock_.elapsed() + std::max(to - from, 0); }
  void Stop() override { endsAt_ = 0; }
  [[nodiscard]] int Mode() const override { return clock_.elapsed() < endsAt_ ? Playing : Stopped; }

 private:
  QElapsedTimer clock_;
  qint64 endsAt_ = 0; ///< ms of the clock
};

} // namespace talvora
