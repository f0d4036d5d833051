#include "surface/Partitioning.h"

#include <stdexcept>
#include <utility>

namespace talvora {

int Partitioning::partOf(int position) const noexcept {
  int from = 0;
  int to = count();
  while (from < to) {
    const int middle = from + (to - from) / 2;
    if (start(middle) <= position) {
      from = middle + 1;
    } else {
      to = middle;
    }
  }
  return from - 1;
}

void Partitioning::assign(std::vector<int> starts, int length) {
  starts_.assign(std::move(starts));
  length_ = length;
}

void Partitioning::insert(int part, int position) {
  moveSplit(part);
  starts_.insertAtSplit(position);
}

void Partitioning::erase(int first, int last) {
  moveSplit(first);
  starts_.eraseBehindSplit(last - first);
}

void Partitioning::moveBehind(int part, int distance) {
  moveSplit(part + 1);
  length_ += distance;
}

void Partitioning::moveSplit(int part) {
  starts_.moveSplit(part, [this](int place) { return length_ - place; });
}

void Partitioning::Check() const {
  if (length_ < 0) throw std::logic_error("a partitioning's length is below 0");
  for (int part = 0; part < count(); ++part) {
    if (part == 0 && start(part) != 0) throw std::logic_error("the first part does not start at 0");
    if (part > 0 && start(part) <= start(part - 1)) throw std::logic_error("parts do not ascend");
    if (start(part) > length_) throw std::logic_error("a part starts behind the end");
  }
}

} // namespace talvora
