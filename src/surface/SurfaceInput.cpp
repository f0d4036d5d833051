// What a front delivers to a surface: the handlers, then the surface's own action.
#include "surface/Surface.h"

#include "surface/SurfaceKeys.h"
#include "text/Bytes.h"

#include <utility>

namespace talvora {

namespace {

constexpr char Blank = ' ';

/// A character that a key has and that is no text: Esc, Backspace.
constexpr bool isControl(char character) {
  return asc(character) < asc(Blank) && character != '\r' && character != '\t';
}

} // namespace

// -- Keys.

void Surface::pressKey(int keyCode, int shift, char character) {
  int code = keyCode;
  if (KeyDown) KeyDown(code, shift);
  if (code == 0) return;
  char typed = character;
  if (typed != 0 && KeyPress) {
    int keyAscii = asc(typed);
    KeyPress(keyAscii);
    typed = chr(keyAscii);
    if (typed == 0) return;
  }
  SurfaceKeys keys(*this, document_, caret_, view_);
  if (typed == 0 || isControl(typed)) {
    keys.act(code, shift);
  } else {
    keys.type(typed);
  }
}

void Surface::releaseKey(int keyCode, int shift) {
  int code = keyCode;
  if (KeyUp) KeyUp(code, shift);
}

// -- Mouse.

void Surface::moveMouse(int shift, SurfacePoint at) {
  if (MouseMove) MouseMove(shift, at);
}

void Surface::pressMouse(MouseButton button, int shift, SurfacePoint at) {
  clickIsOver_ = false;
  const int caret = caretAt(at);
  if (MouseDown) MouseDown(button, shift, at);
  if (button != MouseButton::Left) return;
  const bool extends = (shift & shift::Shift) != 0;
  moveCaret(caret, extends ? Selecting::Yes : Selecting::No);
}

void Surface::dragMouse(int shift, SurfacePoint at) {
  if (MouseMove) MouseMove(shift, at);
  moveCaret(caretAt(at), Selecting::Yes);
}

void Surface::releaseMouse(MouseButton button, int shift, SurfacePoint at) {
  const bool over = std::exchange(clickIsOver_, false);
  if (MouseUp) MouseUp(button, shift, at);
  if (!over && Click) Click();
}

void Surface::doubleClick(int, SurfacePoint at) {
  clickIsOver_ = true;
  const Caret::Selection before = caret_.selection();
  const TextRange word = wordAround(document_, caretAt(at));
  caret_.forgetStyle();
  caret_.select(word.from, word.to);
  tellSelection(before);
  if (DblClick) DblClick();
}

} // namespace talvora
