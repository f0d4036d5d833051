#include "surface/RunTable.h"

#include <stdexcept>
#include <vector>

namespace talvora {

void RunTable::assign(int length, StyleId style) {
  if (length == 0) {
    starts_.assign({}, 0);
    styles_.assign({});
    return;
  }
  starts_.assign({0}, length);
  styles_.assign({style});
}

void RunTable::replace(int from, int to, int length, StyleId style) {
  if (from == to && growRun(from, length, style)) return;
  const int first = splitAt(from);
  erase(first, splitAt(to));
  starts_.moveBehind(first - 1, length - (to - from));
  if (length > 0) {
    insert(first, from, style);
    joinWithPrevious(first + 1);
  }
  joinWithPrevious(first);
}

bool RunTable::growRun(int at, int length, StyleId style) {
  const int run = runOf(at > 0 ? at - 1 : 0);
  if (run < 0 || styles_[run] != style) return false;
  starts_.moveBehind(run, length);
  return true;
}

int RunTable::splitAt(int position) {
  if (position >= length()) return count();
  const int run = runOf(position);
  if (start(run) == position) return run;
  insert(run + 1, position, styles_[run]);
  return run + 1;
}

void RunTable::insert(int run, int start, StyleId style) {
  starts_.insert(run, start);
  styles_.moveSplit(run);
  styles_.insertAtSplit(style);
}

void RunTable::erase(int first, int last) {
  starts_.erase(first, last);
  styles_.moveSplit(first);
  styles_.eraseBehindSplit(last - first);
}

void RunTable::joinWithPrevious(int run) {
  if (run <= 0 || run >= count() || styles_[run] != styles_[run - 1]) return;
  erase(run, run + 1);
}

void RunTable::Check() const {
  starts_.Check();
  if (starts_.count() != styles_.size()) throw std::logic_error("runs and styles differ in number");
  if ((count() == 0) != (length() == 0)) throw std::logic_error("runs do not cover the text");
  for (int run = 0; run < count(); ++run) {
    if (start(run) == start(run + 1)) throw std::logic_error("a run is empty");
    if (run > 0 && style(run) == style(run - 1))
      throw std::logic_error("neighbouring runs are equal");
  }
}

} // namespace talvora
