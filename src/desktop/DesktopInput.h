// Keys, pointer and the clicks and strokes that the program sends itself, on the desktop.
#pragma once

#include "desktop/InputGate.h"
#include "fronts/KeyTable.h"
#include "platform/Input.h"

#include <QPoint>

#include <deque>
#include <functional>
#include <variant>

namespace talvora {

class DesktopInput final : public Input {
 public:
  DesktopInput(KeyTable& keys, InputGate& gate) : keys_(keys), gate_(gate) {}

  bool GetAsyncKeyState(int keyCode) override { return keys_.takePressed(keyCode); }
  void SetCursorPos(PixelPoint point) override;
  [[nodiscard]] PixelPoint cursorPos() const override;
  void sendClick(MouseButton button) override;
  void sendClickAside(MouseButton) override {} // the window has the keyboard already
  void sendKey(int keyCode, KeyMotion motion) override;

  // -- Set by the window, which knows where the virtual screen lies.

  /// Places on the virtual screen and on the real one; empty until the window stands.
  std::function<QPoint(PixelPoint)> toGlobal;
  std::function<PixelPoint(QPoint)> fromGlobal;
  /// What a sent click, half a sent key stroke and a move to a place do to the program.
  std::function<void(const SyntheticEvent& event)> happened;
  std::function<void(PixelPoint at)> moveTo;

  /// The learner brought the pointer to a place. Where the platform does not tell where the pointer
  /// is, the last place counts, whoever chose it.
  void pointerCame(PixelPoint at) noexcept { pointer_ = at; }

  /// Delivers what was sent, unless the program sleeps.
  void deliverSent();

 private:
  /// The pointer has been moved, where the platform leaves that to the program.
  struct Move {
    PixelPoint at;
  };
  using Sent = std::variant<SyntheticEvent, Move>;

  void send(Sent sent);

  KeyTable& keys_;
  InputGate& gate_;
  PixelPoint pointer_; ///< counts where the platform does not let the pointer be moved
  std::deque<Sent> sent_;
};

} // namespace talvora
