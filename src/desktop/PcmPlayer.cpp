#include "desktop/PcmPlayer.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t PieceSamples = 512;
/// How long a device that is full is left alone.
constexpr std::chrono::milliseconds FullDevicePause(5);
/// The most that a device may lag behind the clock, in parts of a second.
constexpr std::size_t TailPartOfSecond = 10;

} // namespace

void PlayClock::add(Moment now, std::size_t samples, int rate) {
  const std::chrono::duration<double> length(static_cast<double>(samples) / rate);
  end_ = std::max(now, end_) + std::chrono::duration_cast<Moment::duration>(length);
}

PcmPlayer::PcmPlayer(MakeDevice makeDevice) : makeDevice_(std::move(makeDevice)) {
  if (makeDevice_) thread_ = std::jthread([this](const std::stop_token& ending) { run(ending); });
}

void PcmPlayer::play(Samples samples, int rate) {
  if (samples.empty() || rate <= 0) return;
  const std::lock_guard lock(mutex_);
  clock_.add(Clock::now(), samples.size(), rate);
  if (!makeDevice_) return;
  chunks_.push_back({std::move(samples), rate});
  changed_.notify_one();
}

bool PcmPlayer::onlyTailIsLeft() const {
  if (clock_.isPlaying(Clock::now())) return false;
  if (chunks_.empty()) return true;
  const Chunk& last = chunks_.front();
  return chunks_.size() == 1 &&
         (last.samples.size() - fed_) * TailPartOfSecond <= static_cast<std::size_t>(last.rate);
}

void PcmPlayer::stop() {
  const std::lock_guard lock(mutex_);
  if (onlyTailIsLeft()) return;
  clock_.stop(Clock::now());
  chunks_.clear();
  fed_ = 0;
  ++stops_;
  silencing_ = true;
  changed_.notify_one();
}

bool PcmPlayer::isPlaying() const {
  const std::lock_guard lock(mutex_);
  return clock_.isPlaying(Clock::now());
}

void PcmPlayer::run(const std::stop_token& ending) {
  std::unique_ptr<PcmDevice> device;
  std::unique_lock lock(mutex_);
  while (!ending.stop_requested()) {
    if (!changed_.wait(lock, ending, [this] { return silencing_ || !chunks_.empty(); })) continue;
    if (std::exchange(silencing_, false)) {
      lock.unlock();
      if (device) device->silence();
      lock.lock();
    } else if (device) {
      feed(*device, lock, ending);
    } else {
      lock.unlock();
      device = makeDevice_();
      lock.lock();
    }
  }
}

void PcmPlayer::feed(PcmDevice& device, std::unique_lock<std::mutex>& lock,
                     const std::stop_token& ending) {
  const Chunk& oldest = chunks_.front();
  const std::size_t length = std::min(PieceSamples, oldest.samples.size() - fed_);
  const auto first = oldest.samples.begin() + static_cast<std::ptrdiff_t>(fed_);
  const Samples piece(first, first + static_cast<std::ptrdiff_t>(length));
  const int rate = oldest.rate;
  const std::uint64_t stopsBefore = stops_;

  lock.unlock();
  const std::size_t taken = device.write(piece, rate);
  lock.lock();

  if (stops_ != stopsBefore) return;
  fed_ += taken;
  if (fed_ == chunks_.front().samples.size()) {
    chunks_.pop_front();
    fed_ = 0;
  } else if (taken == 0) {
    changed_.wait_for(lock, ending, FullDevicePause, [this] { return silencing_; });
  }
}

} // namespace talvora
