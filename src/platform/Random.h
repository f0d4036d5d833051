// The program's one source of random numbers.
#pragma once

#include <cstdint>

namespace talvora {

/// A stream of random numbers. A given seed gives the same numbers on every machine.
class Random {
 public:
  explicit Random(std::uint64_t seed) : stream_(seed), state_(seed) {}

  /// Starts a new sequence. The seed is drawn from the stream that the run began with, so that two
  /// seedings in the same tick of the clock still differ.
  void seedFromClock();
  /// The next number, from 0 up to but not including 1.
  double Rnd();
  /// Int(limit x Rnd + 1): a whole number from 1 to `limit`.
  int upTo(int limit);

 private:
  std::uint64_t stream_;
  std::uint64_t state_;
};

} // namespace talvora
