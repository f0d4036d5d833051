// An X display as somebody in front of it has it: a mouse, a keyboard, and what changes on the
// screen.
#pragma once

#include <X11/Xlib.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace talvora::bench {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// In pixels of the screen.
struct Region {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  [[nodiscard]] bool empty() const noexcept { return left >= right || top >= bottom; }
  [[nodiscard]] bool holds(const Region& other) const noexcept;
  void join(const Region& other) noexcept;
};

/// A part of the screen that was drawn anew, and when.
struct Change {
  Clock::time_point when;
  Region where;
};

class Seat {
 public:
  /// Throws std::runtime_error when there is no display or it lacks XTest or Damage.
  Seat();

  /// Presses and releases a key by its X name; throws std::runtime_error for a name that the
  /// keyboard does not have.
  void press(const std::string& key);
  void movePointer(int x, int y);
  /// Presses and releases a button of the mouse; 4 and 5 are the wheel.
  void click(unsigned button);

  /// Everything that changes until nothing has changed for `gap`, but for at most `longest`. The
  /// first change is waited for with that patience. What is smaller than a caret that blinks does
  /// not count.
  std::vector<Change> watch(milliseconds patience, milliseconds gap, milliseconds longest);
  /// Everything that changes within a time.
  std::vector<Change> watchFor(milliseconds time);
  /// Forgets what has changed up to now.
  void forget();

 private:
  struct Close {
    void operator()(Display* display) const noexcept { ::XCloseDisplay(display); }
  };

  /// Takes what has come, waiting for it until then.
  void take(Clock::time_point until, std::vector<Change>& changes);

  std::unique_ptr<Display, Close> display_;
  int damageEvent_ = 0;
};

} // namespace talvora::bench
