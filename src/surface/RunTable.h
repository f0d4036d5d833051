// Which style each character has, as runs.
#pragma once

#include "surface/Partitioning.h"
#include "surface/SplitVector.h"
#include "surface/StyleTable.h"

namespace talvora {

/// Runs cover all positions without gaps; neighbours differ; a table of no positions has no run.
class RunTable {
 public:
  [[nodiscard]] int length() const noexcept { return starts_.length(); }
  [[nodiscard]] int count() const noexcept { return starts_.count(); }
  /// Where a run starts; the length for the run behind the last.
  [[nodiscard]] int start(int run) const noexcept { return starts_.start(run); }
  [[nodiscard]] StyleId style(int run) const noexcept { return styles_[run]; }
  /// The run that holds a position; the last one for the end, -1 when there is none.
  [[nodiscard]] int runOf(int position) const noexcept { return starts_.partOf(position); }
  /// The style of a position, which must be inside.
  [[nodiscard]] StyleId styleAt(int position) const noexcept { return styles_[runOf(position)]; }

  /// Makes the table one run of `length` positions.
  void assign(int length, StyleId style);
  /// Replaces the positions between `from` and `to` by `length` positions of one style.
  void replace(int from, int to, int length, StyleId style);

  /// Throws std::logic_error naming the first invariant that is broken.
  void Check() const;

 private:
  bool growRun(int at, int length, StyleId style);
  int splitAt(int position);
  void insert(int run, int start, StyleId style);
  void erase(int first, int last);
  void joinWithPrevious(int run);

  Partitioning starts_;
  SplitVector<StyleId> styles_;
};

} // namespace talvora
