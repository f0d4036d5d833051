// A sound device that only counts, for tests of what makes sound.
#pragma once

#include "desktop/PcmPlayer.h"

#include <algorithm>
#include <chrono>
#include <mutex>
#include <span>
#include <thread>

namespace talvora {

inline constexpr int HeardRate = 16000;

/// What the devices of a test were given.
class Heard {
 public:
  void add(std::span<const std::int16_t> samples, int rate) {
    const std::lock_guard lock(mutex_);
    samples_.insert(samples_.end(), samples.begin(), samples.end());
    rate_ = rate;
    ++writes_;
  }
  void silence() {
    const std::lock_guard lock(mutex_);
    ++silences_;
  }
  [[nodiscard]] Samples samples() const {
    const std::lock_guard lock(mutex_);
    return samples_;
  }
  [[nodiscard]] std::size_t count() const { return samples().size(); }
  [[nodiscard]] int silences() const {
    const std::lock_guard lock(mutex_);
    return silences_;
  }
  /// How often a device was given samples, whether it took any or none.
  [[nodiscard]] int writes() const {
    const std::lock_guard lock(mutex_);
    return writes_;
  }
  [[nodiscard]] int rate() const {
    const std::lock_guard lock(mutex_);
    return rate_;
  }

 private:
  mutable std::mutex mutex_;
  Samples samples_;
  int silences_ = 0;
  int writes_ = 0;
  int rate_ = 0;
};

class CountingDevice final : public PcmDevice {
 public:
  CountingDevice(Heard& heard, std::size_t room) : heard_(heard), room_(room) {}

  std::size_t write(std::span<const std::int16_t> samples, int rate) override {
    const auto taken = std::min(samples.size(), room_);
    heard_.add(samples.first(taken), rate);
    return taken;
  }
  void silence() override { heard_.silence(); }

 private:
  Heard& heard_;
  std::size_t room_;
};

inline PcmPlayer::MakeDevice counting(Heard& heard, std::size_t room = HeardRate) {
  return [&heard, room] { return std::make_unique<CountingDevice>(heard, room); };
}

/// Waits until something is so; false when it does not become so.
template <class Condition>
bool comesTrue(Condition condition) {
  // Far beyond what any machine needs; only a hang gets there.
  constexpr std::chrono::seconds Patience(60);
  const auto until = std::chrono::steady_clock::now() + Patience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > until) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

} // namespace talvora
