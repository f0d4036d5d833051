#include "platform/Random.h"

namespace talvora {

namespace {

// SplitMix64: small, well mixed, and the same on every machine.
std::uint64_t next(std::uint64_t& state) {
  state += 0x9E3779B97F4A7C15ULL;
  std::uint64_t z = state;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
  return z ^ (z >> 31);
}

} // namespace

void Random::seedFromClock() {
  state_ = next(stream_);
}

double Random::Rnd() {
  return static_cast<double>(next(state_) >> 11) * 0x1.0p-53;
}

int Random::upTo(int limit) {
  return static_cast<int>(limit * Rnd() + 1);
}

} // namespace talvora
