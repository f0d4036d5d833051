#include "surface/SurfaceKeys.h"

#include "platform/Input.h"
#include "text/CharClass.h"

#include <algorithm>

namespace talvora {

namespace {

// 160 is a blank that breaks no line, and the mark of a sentence.
constexpr CharClass WordCharacters("[a-zA-Z0-9'\x80-\x9F\xA1-\xFF]");
constexpr char Blank = ' ';

} // namespace

// -- Keys.

void SurfaceKeys::act(int keyCode, int shift) {
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
    erase({caret_.length() > 0 ? caret_.start() : caretBefore(caret_.start()), caret_.end()});
    break;
  case key::Delete:
    erase({caret_.start(), caret_.length() > 0 ? caret_.end() : caretBehind(caret_.start())});
    break;
  default:
    break;
  }
}

void SurfaceKeys::moveHorizontally(int keyCode, int shift) {
  const Selecting selecting = (shift & shift::Shift) != 0 ? Selecting::Yes : Selecting::No;
  const bool byWord = (shift & shift::Ctrl) != 0;
  const bool left = keyCode == key::Left;
  // A selection that is left behind is left at the side that the move goes to.
  const int side = left ? caret_.start() : caret_.end();
  const int caret = selecting == Selecting::Yes ? caret_.activeEnd() : side;
  if (byWord) {
    surface_.moveCaret(left ? wordStartBefore(caret) : wordStartBehind(caret), selecting);
  } else if (caret_.length() > 0 && selecting == Selecting::No) {
    surface_.moveCaret(side, selecting);
  } else {
    surface_.moveCaret(left ? caretBefore(caret) : caretBehind(caret), selecting);
  }
}

void SurfaceKeys::moveInLine(int keyCode, int shift) {
  const Selecting selecting = (shift & shift::Shift) != 0 ? Selecting::Yes : Selecting::No;
  const bool home = keyCode == key::Home;
  if ((shift & shift::Ctrl) != 0) {
    surface_.moveCaret(home ? 0 : document_.length(), selecting);
    return;
  }
  const LinePlace line = lineOfMove(selecting);
  // The end of a line that goes on stands ahead of the blank that it breaks at.
  const int end = line.goesOn ? std::max(line.from, line.to - 1) : line.to;
  surface_.moveCaret(document_.paragraphStart(line.paragraph) + (home ? line.from : end),
                     selecting);
}

// Goes to a line and keeps the column that the caret came from.
void SurfaceKeys::moveToLine(const LinePlace& line, Selecting selecting) {
  const int x = caret_.columnX() ? *caret_.columnX() : view_.columnOf(caret_.activeEnd());
  const int caret = view_.caretInLine(line, x);
  surface_.moveCaret(caret, selecting);
  if (caret_.activeEnd() == caret) caret_.columnX(x);
}

// A selected line reaches behind its line end; what moves away from it still starts on it.
LinePlace SurfaceKeys::lineOfMove(Selecting selecting) const {
  const int caret = caret_.activeEnd();
  const bool behindSelection = caret_.length() > 0 && caret > caret_.start();
  return view_.lineAt(behindSelection && selecting == Selecting::No ? caret - 1 : caret);
}

void SurfaceKeys::moveByLine(int step, Selecting selecting) {
  const LinePlace here = lineOfMove(selecting);
  moveToLine(view_.neighbourLine(here, step).value_or(here), selecting);
}

// Goes by as many lines as the surface shows, at least by one.
void SurfaceKeys::moveByPage(int direction, Selecting selecting) {
  LinePlace line = lineOfMove(selecting);
  int room = surface_.Height();
  for (auto next = view_.neighbourLine(line, direction); next;
       next = view_.neighbourLine(line, direction)) {
    line = *next;
    room -= line.height;
    if (room < line.height) break;
  }
  moveToLine(line, selecting);
}

// A line end of two characters is passed as one.

int SurfaceKeys::caretBefore(int caret) const {
  const bool pair =
      caret >= 2 && document_.at(caret - 1) == '\n' && document_.at(caret - 2) == '\r';
  return std::max(caret - (pair ? 2 : 1), 0);
}

int SurfaceKeys::caretBehind(int caret) const {
  const bool pair = surface_.CharAt(caret) == '\r' && surface_.CharAt(caret + 1) == '\n';
  return std::min(caret + (pair ? 2 : 1), document_.length());
}

int SurfaceKeys::wordStartBefore(int caret) const {
  int place = caret;
  while (place > 0 && !WordCharacters.has(document_.at(place - 1)))
    --place;
  while (place > 0 && WordCharacters.has(document_.at(place - 1)))
    --place;
  return place;
}

int SurfaceKeys::wordStartBehind(int caret) const {
  int place = caret;
  while (place < document_.length() && WordCharacters.has(document_.at(place)))
    ++place;
  while (place < document_.length() && !WordCharacters.has(document_.at(place)))
    ++place;
  return place;
}

// -- Typing.

bool SurfaceKeys::mayChange(TextRange range) const {
  if (surface_.Locked() || !surface_.Enabled() || document_.holdsProtected(range)) return false;
  // Protected text has no gaps to write into.
  const int place = range.from;
  const bool inside = place == range.to && place > 0 && place < document_.length();
  return !inside || !document_.styleAt(place - 1).protectedText ||
         !document_.styleAt(place).protectedText;
}

void SurfaceKeys::type(char character) {
  if (mayChange(caret_.range())) surface_.type(character);
}

void SurfaceKeys::erase(TextRange range) {
  if (range.from < range.to && mayChange(range)) surface_.erase(range);
}

TextRange wordAround(const Document& document, int caret) {
  TextRange word{caret, caret};
  while (word.from > 0 && WordCharacters.has(document.at(word.from - 1)))
    --word.from;
  word.to = word.from;
  while (word.to < document.length() && WordCharacters.has(document.at(word.to)))
    ++word.to;
  while (word.to < document.length() && document.at(word.to) == Blank)
    ++word.to;
  return word;
}

} // namespace talvora
