// A partitioning cuts a text into parts: paragraphs, or runs of equal style.
#pragma once

#include "surface/SplitVector.h"

#include <vector>

namespace talvora {

/// Ascending starts of parts, and the length of the whole. Starts behind the last change are kept
/// as distances from the end, so a text that grows or shrinks there moves none of them.
class Partitioning {
 public:
  /// Number of parts.
  [[nodiscard]] int count() const noexcept { return starts_.size(); }
  [[nodiscard]] int length() const noexcept { return length_; }
  /// Where a part starts; the length for the part behind the last.
  [[nodiscard]] int start(int part) const noexcept {
    if (part >= starts_.size()) return length_;
    return part < starts_.split() ? starts_[part] : length_ - starts_[part];
  }
  /// The last part that starts at or ahead of a position; -1 when there is none.
  [[nodiscard]] int partOf(int position) const noexcept;

  void assign(std::vector<int> starts, int length);
  /// Makes `position` the start of a new part of that number.
  void insert(int part, int position);
  /// Drops the starts of the parts from `first` up to but not including `last`.
  void erase(int first, int last);
  /// Moves all starts behind a part, and the end, by a distance; -1 moves every part.
  void moveBehind(int part, int distance);

  /// Throws std::logic_error unless the starts ascend, the first is 0 and none lies behind the end.
  void Check() const;

 private:
  void moveSplit(int part);

  SplitVector<int> starts_;
  int length_ = 0;
};

} // namespace talvora
