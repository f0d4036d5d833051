// What a learner might do next, by chance: mostly what makes sense where they are, now and then
// anything at all. The same seed and the same program give the same steps.
#pragma once

#include "Life.h"

#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::walk {

class Chance {
 public:
  explicit Chance(std::uint64_t seed) : random_(seed) {}

  [[nodiscard]] Setting setting();
  [[nodiscard]] Json nextStep(Life& life);

 private:
  /// A number below a limit, which is at least 1.
  int below(int limit);
  bool oneOf(int chances) { return below(chances) == 0; }
  template <class Choices>
  auto pick(const Choices& choices) {
    return *(std::begin(choices) + below(static_cast<int>(std::size(choices))));
  }

  std::string buttonName();
  std::string visibleSurface(Life& life);
  Json onMenu();
  Json onPage(Life& life);
  Json keyStep();
  Json mouseStep(Life& life);
  Json mouseStepOn(const std::string& surface, Life& life);
  Json moveStep(Life& life);
  Json machineStep();
  Json anyStep(Life& life);
  std::string noise();

  std::mt19937_64 random_;
};

} // namespace talvora::walk
