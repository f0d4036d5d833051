// What keys and the mouse do on a surface by themselves.
#include "surface/Surface.h"

#include "text/CharClass.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

// 160 is a blank that breaks no line, and the mark of a sentence.
constexpr CharClass WordCharacters("[a-zA-Z0-9'\x80-\x9F\xA1-\xFF]");
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
  if (typed == 0 || isControl(typed)) {
    actOnKey(code, shift);
  } else {
    typeCharacter(typed);
  }
}

void Surface::releaseKey(int keyCode, int shift) {
  int code = keyCode;
  if (KeyUp) KeyUp(code, shift);
}

void Surface::actOnKey(int keyCode, int shift) {
  const Selecting selecting = (shift & shift::Shift) != 0 ? Selecting::Yes : Selecting::No;
  switch (keyCode) {
  case key::Left:
  case key::Right:
    moveHorizontally(keyCode, shift);
    break;
  case key::Home:
  case key::End:
    moveInLine(keyCode, shift);
    break;
  case key::Up:
    moveByLine(-1, selecting);
    break;
  case key::Down:
    moveByLine(1, selecting);
    break;
  case key::PgUp:
    moveByPage(-1, selecting);
    break;
  case key::PgDn:
    moveByPage(1, selecting);
    break;
  case key::Backspace:
    erase(selLength_ > 0 ? selStart_ : caretBefore(selStart_), selStart_ + selLength_);
    break;
  case key::Delete:
    erase(selStart_, selLength_ > 0 ? selStart_ + selLength_ : caretBehind(selStart_));
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
  select({std::min(anchor_, place), std::abs(place - anchor_)});
}

void Surface::moveHorizontally(int keyCode, int shift) {
  const Selecting selecting = (shift & shift::Shift) != 0 ? Selecting::Yes : Selecting::No;
  const bool byWord = (shift & shift::Ctrl) != 0;
  const bool left = keyCode == key::Left;
  const int caret = activeEnd();
  if (byWord) {
    moveCaret(left ? wordStartBefore(caret) : wordStartBehind(caret), selecting);
  } else if (selLength_ > 0 && selecting == Selecting::No) {
    moveCaret(left ? selStart_ : selStart_ + selLength_, selecting);
  } else {
    moveCaret(left ? caretBefore(caret) : caretBehind(caret), selecting);
  }
}

void Surface::moveInLine(int keyCode, int shift) {
  const Selecting selecting = (shift & shift::Shift) != 0 ? Selecting::Yes : Selecting::No;
  const bool home = keyCode == key::Home;
  if ((shift & shift::Ctrl) != 0) {
    moveCaret(home ? 0 : text_.length(), selecting);
    return;
  }
  const LinePlace line = lineOfMove(selecting);
  // The end of a line that goes on stands ahead of the blank that it breaks at.
  const int end = line.goesOn ? std::max(line.from, line.to - 1) : line.to;
  moveCaret(paragraphStart(line.paragraph) + (home ? line.from : end), selecting);
}

// Goes to a line and keeps the column that the caret came from.
void Surface::moveToLine(const LinePlace& line, Selecting selecting) {
  const int x = columnX_ ? *columnX_ : columnOf(activeEnd());
  const int caret = caretInLine(line, x);
  moveCaret(caret, selecting);
  if (activeEnd() == caret) columnX_ = x;
}

// A selected line reaches behind its line end; what moves away from it still starts on it.
Surface::LinePlace Surface::lineOfMove(Selecting selecting) const {
  const int caret = activeEnd();
  const bool behindSelection = selLength_ > 0 && caret > selStart_;
  return lineAt(behindSelection && selecting == Selecting::No ? caret - 1 : caret);
}

void Surface::moveByLine(int step, Selecting selecting) {
  const LinePlace here = lineOfMove(selecting);
  moveToLine(neighbourLine(here, step).value_or(here), selecting);
}

// Goes by as many lines as the surface shows, at least by one.
void Surface::moveByPage(int direction, Selecting selecting) {
  LinePlace line = lineOfMove(selecting);
  int room = Height();
  for (auto next = neighbourLine(line, direction); next; next = neighbourLine(line, direction)) {
    line = *next;
    room -= line.height;
    if (room < line.height) break;
  }
  moveToLine(line, selecting);
}

// A line end of two characters is passed as one.

int Surface::caretBefore(int caret) const {
  const bool pair = caret >= 2 && text_.at(caret - 1) == '\n' && text_.at(caret - 2) == '\r';
  return std::max(caret - (pair ? 2 : 1), 0);
}

int Surface::caretBehind(int caret) const {
  const bool pair = CharAt(caret) == '\r' && CharAt(caret + 1) == '\n';
  return std::min(caret + (pair ? 2 : 1), text_.length());
}

int Surface::wordStartBefore(int caret) const {
  int place = caret;
  while (place > 0 && !WordCharacters.has(text_.at(place - 1)))
    --place;
  while (place > 0 && WordCharacters.has(text_.at(place - 1)))
    --place;
  return place;
}

int Surface::wordStartBehind(int caret) const {
  int place = caret;
  while (place < text_.length() && WordCharacters.has(text_.at(place)))
    ++place;
  while (place < text_.length() && !WordCharacters.has(text_.at(place)))
    ++place;
  return place;
}

// -- Typing.

bool Surface::mayChange(int from, int to) const {
  if (locked_ || !Enabled()) return false;
  for (int place = from; place < to; place = runs_.start(runs_.runOf(place) + 1)) {
    if (styleAt(place).protectedText) return false;
  }
  // Protected text has no gaps to write into.
  const bool inside = from == to && from > 0 && from < text_.length();
  return !inside || !styleAt(from - 1).protectedText || !styleAt(from).protectedText;
}

void Surface::typeCharacter(char character) {
  if (!mayChange(selStart_, selStart_ + selLength_)) return;
  bringIntoView(selStart_ + selLength_);
  SelText(character);
}

void Surface::erase(int from, int to) {
  if (from == to || !mayChange(from, to)) return;
  pendingStyle_.reset();
  bringIntoView(from);
  replaceText(from, to, {}, runs_.styleAt(from));
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
  while (start > 0 && WordCharacters.has(text_.at(start - 1)))
    --start;
  int end = start;
  while (end < text_.length() && WordCharacters.has(text_.at(end)))
    ++end;
  while (end < text_.length() && text_.at(end) == Blank)
    ++end;
  pendingStyle_.reset();
  columnX_.reset();
  anchor_ = start;
  select({start, end - start});
  if (DblClick) DblClick();
}

} // namespace talvora
