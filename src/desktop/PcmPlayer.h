// A player of raw samples: its own thread feeds a sound device, and its own clock says how long the
// sound lasts, so that the program keeps its timing also without a device.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <thread>
#include <vector>

namespace talvora {

/// Signed 16-bit samples of one channel.
using Samples = std::vector<std::int16_t>;

/// A sound device as a player sees it. It is made with the first sound, so that a program that
/// stays silent never asks for one, and is made, used and destroyed on the player's thread:
/// whatever a device or its server does, nobody else waits for it.
class PcmDevice {
 public:
  virtual ~PcmDevice() = default;

  /// Takes as many samples, of so many a second, as it has room for now, and returns how many.
  virtual std::size_t write(std::span<const std::int16_t> samples, int rate) = 0;
  /// Drops at once what was taken and has not sounded yet.
  virtual void silence() = 0;
};

/// Tells how long sounds that follow each other last.
class PlayClock {
 public:
  using Moment = std::chrono::steady_clock::time_point;

  /// A sound starts behind the one before, or now when all is silent.
  void add(Moment now, std::size_t samples, int rate);
  void stop(Moment now) { end_ = now; }
  [[nodiscard]] bool isPlaying(Moment now) const { return now < end_; }

 private:
  Moment end_{};
};

class PcmPlayer {
 public:
  /// Makes the device; never null.
  using MakeDevice = std::function<std::unique_ptr<PcmDevice>()>;

  /// Without a way to make a device the sound is only timed.
  explicit PcmPlayer(MakeDevice makeDevice);
  PcmPlayer(const PcmPlayer&) = delete;
  PcmPlayer& operator=(const PcmPlayer&) = delete;
  ~PcmPlayer() = default;

  /// Plays behind what is playing, and returns at once. `rate` is in samples a second.
  void play(Samples samples, int rate);
  /// Silences at once. Of a sound that is over by the clock the device may keep its last moment,
  /// by which it lags behind.
  void stop();
  [[nodiscard]] bool isPlaying() const;

 private:
  struct Chunk {
    Samples samples;
    int rate;
  };

  void run(const std::stop_token& ending);
  /// Gives the device a piece of the oldest chunk; the lock is open while the device works.
  void feed(PcmDevice& device, std::unique_lock<std::mutex>& lock, const std::stop_token& ending);
  [[nodiscard]] bool onlyTailIsLeft() const;

  MakeDevice makeDevice_;
  mutable std::mutex mutex_;
  std::condition_variable_any changed_;
  PlayClock clock_;
  std::deque<Chunk> chunks_;
  std::size_t fed_ = 0; ///< samples of the oldest chunk that the device has
  std::uint64_t stops_ = 0;
  bool silencing_ = false;
  std::jthread thread_; // The last member: it ends before what it uses.
};

} // namespace talvora
