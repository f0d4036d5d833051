// A keyboard and a pointer that a script moves.
#pragma once

#include "platform/Input.h"
#include "platform/scripted/ScriptedLog.h"
#include "platform/scripted/VirtualTime.h"

#include <cstdint>
#include <deque>
#include <limits>
#include <map>
#include <optional>
#include <vector>

namespace talvora {

class ScriptedInput final : public Input {
 public:
  ScriptedInput(const VirtualTime& time, ScriptedLog& log) : time_(time), log_(log) {}

  bool GetAsyncKeyState(int keyCode) override;
  void SetCursorPos(PixelPoint point) override;
  [[nodiscard]] PixelPoint cursorPos() const override { return pointer_; }
  void sendClick(MouseButton button) override;
  void sendClickAside(MouseButton button) override;
  void sendKey(int keyCode, KeyMotion motion) override;

  // -- What a script does.

  /// A key goes down in the key table; the next poll finds it pressed even when it is up by then.
  void keyDown(int keyCode);
  void keyUp(int keyCode);
  [[nodiscard]] bool isDown(int keyCode) const;
  /// The bits of the Shift argument for the modifiers that are down.
  [[nodiscard]] int shiftState() const;

  /// From `after` milliseconds on from now, for `length` milliseconds, polls find the key down.
  void hold(int keyCode, std::int64_t after, std::int64_t length);
  /// From a moment of virtual time on, but not before the last hold is over, polls find Esc down
  /// and no other key, so that a loop of the program that waits for the learner always ends.
  void giveUpAt(std::int64_t ms) noexcept { giveUpAt_ = ms; }

  /// Moves the pointer as a hand would: not logged.
  void placePointer(PixelPoint point) noexcept { pointer_ = point; }
  /// True when the program has moved the pointer since this was last asked.
  [[nodiscard]] bool takePointerMoved() noexcept;

  /// The oldest click or half stroke that the program sent and nobody has delivered yet.
  [[nodiscard]] std::optional<SyntheticEvent> takeSynthetic();

 private:
  struct Key {
    bool down = false;
    bool pressedSinceAsked = false;
  };
  struct Hold {
    int keyCode;
    std::int64_t from;
    std::int64_t to;
  };

  void forgetPastHolds();
  [[nodiscard]] bool isHeld(int keyCode) const;
  [[nodiscard]] bool hasGivenUp() const noexcept;

  const VirtualTime& time_;
  ScriptedLog& log_;
  std::map<int, Key> keys_;
  std::vector<Hold> holds_;
  std::int64_t giveUpAt_ = std::numeric_limits<std::int64_t>::max();
  PixelPoint pointer_;
  bool pointerMoved_ = false;
  std::deque<SyntheticEvent> synthetic_;
};

} // namespace talvora
