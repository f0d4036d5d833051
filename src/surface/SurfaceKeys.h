// What keys do on a surface by themselves: caret moves, selecting with Shift, typing, deleting.
#pragma once

#include "surface/Caret.h"
#include "surface/Document.h"
#include "surface/Surface.h"
#include "surface/Viewport.h"

namespace talvora {

/// The word around a caret with the blanks behind it, as a double click selects it.
[[nodiscard]] TextRange wordAround(const Document& document, int caret);

/// At work for one key.
class SurfaceKeys {
 public:
  SurfaceKeys(Surface& surface, const Document& document, Caret& caret, const Viewport& view)
      : surface_(surface), document_(document), caret_(caret), view_(view) {}

  /// A key that writes nothing.
  void act(int keyCode, int shift);
  /// A key with a character; text that is locked or protected stays as it is.
  void type(char character);

 private:
  void moveHorizontally(int keyCode, int shift);
  void moveInLine(int keyCode, int shift);
  void moveToLine(const LinePlace& line, Selecting selecting);
  /// The line from which a move up or down, or to an end of the line, starts.
  [[nodiscard]] LinePlace lineOfMove(Selecting selecting) const;
  void moveByLine(int step, Selecting selecting);
  void moveByPage(int direction, Selecting selecting);
  [[nodiscard]] int caretBefore(int caret) const;
  [[nodiscard]] int caretBehind(int caret) const;
  [[nodiscard]] int wordStartBefore(int caret) const;
  [[nodiscard]] int wordStartBehind(int caret) const;
  void erase(TextRange range);
  [[nodiscard]] bool mayChange(TextRange range) const;

  Surface& surface_;
  const Document& document_;
  Caret& caret_;
  const Viewport& view_;
};

} // namespace talvora
