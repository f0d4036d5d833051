// A list that is cheap to change at one place: the split, where the last change was.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace talvora {

/// Values in order, held as those ahead of the split and, in reverse, those behind it. A change at
/// the split costs the change alone; moving the split costs the distance.
template <class Value>
class SplitVector {
 public:
  [[nodiscard]] int size() const noexcept {
    return static_cast<int>(ahead_.size() + behind_.size());
  }
  /// Number of values ahead of the split.
  [[nodiscard]] int split() const noexcept { return static_cast<int>(ahead_.size()); }
  /// The value of an index, which must be inside.
  [[nodiscard]] Value operator[](int index) const noexcept {
    const auto place = static_cast<std::size_t>(index);
    return place < ahead_.size() ? ahead_[place]
                                 : behind_[ahead_.size() + behind_.size() - 1 - place];
  }

  /// Takes a whole list; the split is behind its end.
  void assign(std::vector<Value> values) {
    ahead_ = std::move(values);
    behind_ = {};
  }
  /// Moves the split ahead of the value of that index. Every value that changes sides goes through
  /// `convert`.
  template <class Convert>
  void moveSplit(int index, Convert convert) {
    const auto place = static_cast<std::size_t>(index);
    while (ahead_.size() > place) {
      behind_.push_back(convert(ahead_.back()));
      ahead_.pop_back();
    }
    while (ahead_.size() < place) {
      ahead_.push_back(convert(behind_.back()));
      behind_.pop_back();
    }
  }
  void moveSplit(int index) {
    moveSplit(index, [](Value value) { return value; });
  }
  /// Adds a value at the split and steps behind it.
  void insertAtSplit(Value value) { ahead_.push_back(value); }
  /// Drops that many values behind the split.
  void eraseBehindSplit(int count) {
    behind_.resize(behind_.size() - static_cast<std::size_t>(count));
  }

 private:
  std::vector<Value> ahead_;
  std::vector<Value> behind_;
};

} // namespace talvora
