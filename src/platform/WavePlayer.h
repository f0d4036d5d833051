// A wave player plays stretches of one open recording.
#pragma once

#include <string>

namespace talvora {

class WavePlayer {
 public:
  /// What `Mode` answers, in the numbers that the program compares.
  static constexpr int Stopped = 525;
  static constexpr int Playing = 526;

  virtual ~WavePlayer() = default;

  /// Opens a wave file in place of the one that was open.
  virtual void Open(const std::string& path) = 0;
  virtual void Close() = 0;
  /// Plays from one mark to another, in milliseconds, and returns at once.
  virtual void Play(int from, int to) = 0;
  virtual void Stop() = 0;
  /// `Playing` or `Stopped`.
  [[nodiscard]] virtual int Mode() const = 0;
};

} // namespace talvora
