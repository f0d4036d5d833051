// The live state of the keys, as the window system reports it. It is kept also while the program
// sleeps, so that loops that poll it see what the learner does.
#pragma once

#include "platform/Input.h"

#include <map>

namespace talvora {

class KeyTable {
 public:
  void press(int keyCode);
  void release(int keyCode);
  /// Half a stroke that the program sent itself.
  void take(const SyntheticKey& stroke) {
    stroke.motion == KeyMotion::Down ? press(stroke.code) : release(stroke.code);
  }
  /// The key counts as pressed since it was last asked for, and as down or up as before.
  void latch(int keyCode) { keys_[keyCode].pressedSinceAsked = true; }
  /// Everything counts as up, as when the window loses the keyboard.
  void releaseAll();

  /// True when the key is down, or was pressed since it was last asked for; asking clears that.
  [[nodiscard]] bool takePressed(int keyCode);
  [[nodiscard]] bool isDown(int keyCode) const;
  /// True while any of the four arrows is down.
  [[nodiscard]] bool arrowDown() const;

 private:
  struct Key {
    bool down = false;
    bool pressedSinceAsked = false;
  };

  std::map<int, Key> keys_;
};

} // namespace talvora
