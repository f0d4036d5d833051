// Input: the real state of the keys, the pointer, and clicks and strokes that the program sends.
#pragma once

#include <variant>

namespace talvora {

/// Key codes that the program compares. Letters and digits have the code of their capital.
namespace key {
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Shift = 16;
inline constexpr int Ctrl = 17;
inline constexpr int Alt = 18;
inline constexpr int Esc = 27;
inline constexpr int Space = 32;
inline constexpr int PgUp = 33;
inline constexpr int PgDn = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int F2 = 113;
inline constexpr int F6 = 117;
inline constexpr int F9 = 120;
} // namespace key

/// Bits of the Shift argument of key and mouse events.
namespace shift {
inline constexpr int None = 0;
inline constexpr int Shift = 1;
inline constexpr int Ctrl = 2;
inline constexpr int Alt = 4;
} // namespace shift

enum class MouseButton { Left = 1, Right = 2 };
enum class KeyMotion { Down, Up };

/// A point of the screen in pixels.
struct PixelPoint {
  int x = 0;
  int y = 0;

  friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

/// A click that the program sent, at the place where the pointer then was.
struct SyntheticClick {
  MouseButton button = MouseButton::Left;
  PixelPoint at;

  friend bool operator==(const SyntheticClick&, const SyntheticClick&) = default;
};

/// Half a key stroke that the program sent.
struct SyntheticKey {
  int code = 0;
  KeyMotion motion = KeyMotion::Down;

  friend bool operator==(const SyntheticKey&, const SyntheticKey&) = default;
};

using SyntheticEvent = std::variant<SyntheticClick, SyntheticKey>;

class Input {
 public:
  virtual ~Input() = default;

  /// True when the key is down, or was pressed since it was last asked for; asking clears that.
  virtual bool GetAsyncKeyState(int keyCode) = 0;
  /// Moves the pointer. Where the platform refuses, the point is kept and taken as the pointer's.
  virtual void SetCursorPos(PixelPoint point) = 0;
  [[nodiscard]] virtual PixelPoint cursorPos() const = 0;
  /// Sends a whole click at the pointer. It arrives as an event, after the handler that sent it
  /// and before any other input.
  virtual void sendClick(MouseButton button) = 0;
  /// Sends a whole click at the pointer that reaches the window alone, whatever lies there.
  virtual void sendClickAside(MouseButton button) = 0;
  /// Sends half a key stroke to whatever has the focus; it arrives like `sendClick`.
  virtual void sendKey(int keyCode, KeyMotion motion) = 0;
};

} // namespace talvora
