// What keys and the mouse do on a surface by themselves.
#include "surface/Surface.h"

#include "text/CharClass.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr CharClass WordCharacters("[a-zA-Z0-9'\x80-\xFF]");
constexpr char Blank = ' ';

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
  const bool control = asc(typed) < asc(Blank) && typed != '\r' && typed != '\t';
  if (typed != 0 && !control) {
    typeCharacter(typed);
  } else {
    actOnKey(code, shift);
  }
}

void Surface::releaseKey(int keyCode, int shift) {
  int code = keyCode;
  if (KeyUp) KeyUp(code, shift);
}

void Surface::actOnKey(int keyCode, int shift) {
  const Selecting selecting = (shift & shift::Shift) != 0 ? Selecting::Yes : Selecting::No;
  const bool ctrl = (shift & shift::Ctrl) != 0;
  const int caret = activeEnd();
  const int selectionEnd = selStart_ + selLength_;
  switch (keyCode) {
  case key::Left:
    if (selLength_ > 0 && selecting == Selecting::No && !ctrl) {
      moveCaret(selStart_, selecting);
    } else {
      moveCaret(ctrl ? wordStartBefore(caret) : caret - 1, selecting);
    }
    break;
  case key::Right:
    if (selLength_ > 0 && selecting == Selecting::No && !ctrl) {
      moveCaret(selectionEnd, selecting);
    } else {
      moveCaret(ctrl ? wordStartBehind(caret) : caret + 1, selecting);
    }
    break;
  case key::Up:
    moveByLines(-1, selecting);
    break;
  case key::Down:
    moveByLines(1, selecting);
    break;
  case key::PgUp:
    moveByPage(-1, selecting);
    break;
  case key::PgDn:
    moveByPage(1, selecting);
    break;
  case key::Home: {
    const LinePlace line = lineAt(caret);
    moveCaret(ctrl ? 0 : paragraphStart(line.paragraph) + line.from, selecting);
    break;
  }
  case key::End: {
    const LinePlace line = lineAt(caret);
    const int end = paragraphStart(line.paragraph) + line.to;
    // The end of a line that goes on below stands ahead of the blank that it breaks at.
    const bool goesOn = end > 0 && end < text_.length() && lineAt(end).from == line.to &&
                        lineAt(end).paragraph == line.paragraph && line.to > line.from;
    moveCaret(ctrl ? text_.length() : goesOn ? end - 1 : end, selecting);
    break;
  }
  case key::Backspace:
    if (selLength_ > 0) {
      erase(selStart_, selectionEnd);
    } else if (selStart_ > 0) {
      erase(selStart_ - 1, selStart_);
    }
    break;
  case key::Delete:
    if (selLength_ > 0) {
      erase(selStart_, selectionEnd);
    } else if (selStart_ < text_.length()) {
      erase(selStart_, selStart_ + 1);
    }
    break;
  default:
    break;
  }
}

int Surface::activeEnd() const noexcept {
  return anchor_ == selStart_ ? selStart_ + selLength_ : selStart_;
}

void Surface::moveCaret(int caret, Selecting selecting) {
  const int place = clampCaret(caret);
  pendingStyle_.reset();
  columnX_.reset();
  bringIntoView(place);
  if (selecting == Selecting::No) anchor_ = place;
  select(std::min(anchor_, place), std::abs(place - anchor_));
  changed(ControlChange::Scroll);
}

void Surface::moveByLines(int lines, Selecting selecting) {
  int caret = activeEnd();
  const LinePlace start = lineAt(caret);
  const int x = columnX_ ? *columnX_ : columnOf(caret);
  const int step = lines < 0 ? -1 : 1;
  for (LinePlace line = start; lines != 0; lines -= step) {
    const int edge = step < 0 ? paragraphStart(line.paragraph) + line.from - 1
                              : paragraphStart(line.paragraph) + line.to;
    // A line that goes on below is followed by the caret where it breaks, another one by the caret
    // behind its line end.
    const bool lastOfParagraph =
        line.to == static_cast<int>(paragraph(line.paragraph).text.size());
    const int next = step > 0 && lastOfParagraph ? paragraphStart(line.paragraph + 1) : edge;
    const bool stays = next < 0 || next > text_.length() ||
                       (step > 0 && lastOfParagraph && line.paragraph + 1 == paragraphs_.count());
    if (stays) break;
    line = lineAt(next);
    caret = caretInLine(line, x);
  }
  moveCaret(caret, selecting);
  columnX_ = x;
}

void Surface::moveByPage(int direction, Selecting selecting) {
  const LinePlace line = lineAt(activeEnd());
  const int lines = std::max(1, Height() / std::max(line.height, 1) - 1);
  moveByLines(direction * lines, selecting);
}

int Surface::wordStartBefore(int caret) const {
  int place = caret;
  while (place > 0 && !WordCharacters.has(text_.at(place - 1))) --place;
  while (place > 0 && WordCharacters.has(text_.at(place - 1))) --place;
  return place;
}

int Surface::wordStartBehind(int caret) const {
  int place = caret;
  while (place < text_.length() && WordCharacters.has(text_.at(place))) ++place;
  while (place < text_.length() && !WordCharacters.has(text_.at(place))) ++place;
  return place;
}

// -- Typing.

bool Surface::mayChange(int from, int to) const {
  if (locked_ || !Enabled()) return false;
  for (int place = from; place < to; ++place) {
    if (styleAt(place).protectedText) return false;
  }
  // Protected text has no gaps to write into.
  const bool inside = from == to && from > 0 && from < text_.length();
  return !inside || !styleAt(from - 1).protectedText || !styleAt(from).protectedText;
}

void Surface::typeCharacter(char character) {
  if (!mayChange(selStart_, selStart_ + selLength_)) return;
  SelText(character);
  bringIntoView(selStart_);
}

void Surface::erase(int from, int to) {
  if (!mayChange(from, to)) return;
  const int caretBefore = selStart_;
  replaceText(from, to, {}, defaultStyle_);
  pendingStyle_.reset();
  selStart_ = from;
  selLength_ = 0;
  anchor_ = from;
  bringIntoView(from);
  changed(ControlChange::Text);
  if (Change) Change();
  if (caretBefore != selStart_ && SelChange) SelChange();
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
  int start = caretAt(at);
  while (start > 0 && WordCharacters.has(text_.at(start - 1))) --start;
  int end = start;
  while (end < text_.length() && WordCharacters.has(text_.at(end))) ++end;
  while (end < text_.length() && text_.at(end) == Blank) ++end;
  pendingStyle_.reset();
  anchor_ = start;
  select(start, end - start);
  if (DblClick) DblClick();
}

} // namespace talvora
