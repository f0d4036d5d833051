// Input steering: the real state of the arrow keys, the pointer's fixed points, and the clicks and
// strokes that the program sends itself.
#pragma once

#include "platform/Input.h"
#include "surface/State.h"

namespace talvora {

class Steering {
 public:
  Steering(Input& input, const Measures& measures) : input_(input), measures_(measures) {}

  /// The pointer's fixed pixel positions of the menu by screen class; `ChuotX1`, `ChuotX2`,
  /// `ChuotY` and `ChuotBuoc` hold pixels from then on.
  void XepChuot();
  /// The pointer goes to the menu button of that number.
  void pointAtButton(int number);
  /// Where that is.
  [[nodiscard]] PixelPoint placeOfButton(int number) const;
  void pointAt(PixelPoint point) { input_.SetCursorPos(point); }

  /// True when an arrow key is down; clears the latches then, unless Esc is down too.
  bool CoMuiTen();
  /// True when one of the four arrows is down; reads each of them.
  bool arrowDown();
  /// Reads Esc and the four arrows once, which clears their latches of a press since the last read.
  void XaPhim();

  /// Half a key stroke, sent to whatever has the focus.
  void NhanPhim(int code) { input_.sendKey(code, KeyMotion::Down); }
  void NhaPhim(int code) { input_.sendKey(code, KeyMotion::Up); }
  /// Selects from the start of the line to its end in the focused surface.
  void ChonDong();
  /// A whole click at the pointer.
  void NhapTrai() { input_.sendClick(MouseButton::Left); }
  /// Meant for the window: on small screens a surface may lie under the pointer.
  void NhapPhai() { input_.sendClickAside(MouseButton::Right); }

  /// Parks the pointer at a fixed point near the upper edge of the screen.
  void ChuotGoc();
  /// One right click aside, then the pointer goes to the point of `ChuotGoc`.
  void ChuotNhapGoc();
  /// The point of `ChuotGoc`.
  [[nodiscard]] PixelPoint restPoint() const;

  void declare(Variables& variables) const;

  int ChuotX1 = 0;   ///< left column: twips while the menu is laid out, then pixels
  int ChuotX2 = 0;   ///< right column, likewise
  int ChuotY = 0;    ///< first row, likewise
  int ChuotBuoc = 0; ///< pitch of the rows, likewise

 private:
  Input& input_;
  const Measures& measures_;
};

} // namespace talvora
