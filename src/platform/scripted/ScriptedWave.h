// A wave player that plays nothing and takes its time in virtual milliseconds.
#pragma once

#include "platform/WavePlayer.h"
#include "platform/scripted/ScriptedLog.h"
#include "platform/scripted/VirtualTime.h"

#include <cstdint>

namespace talvora {

class ScriptedWave final : public WavePlayer {
 public:
  ScriptedWave(const VirtualTime& time, ScriptedLog& log) : time_(time), log_(log) {}

  void Open(const std::string& path) override;
  void Close() override;
  /// A stretch takes `to` - `from` milliseconds; with nothing open nothing plays.
  void Play(int from, int to) override;
  void Stop() override;
  [[nodiscard]] int Mode() const override;

 private:
  void record(std::string_view command, int from = 0, int to = 0);

  const VirtualTime& time_;
  ScriptedLog& log_;
  std::string path_; ///< empty when nothing is open
  std::int64_t silentFrom_ = 0;
};

} // namespace talvora
