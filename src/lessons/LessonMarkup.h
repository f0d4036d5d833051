// The markup of a rule lesson: which characters of its text are shown, and in which colour.
#pragma once

#include "platform/TextStyle.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// A stretch of shown text in one colour.
struct ColouredPiece {
  std::string text;
  Colour color = 0;

  friend bool operator==(const ColouredPiece&, const ColouredPiece&) = default;
};

/// The text of a lesson without its marks and without superfluous blanks. "`" colours a word red,
/// "~" the rest of the line blue, and so does "&" at a line's start. Neighbours differ in colour.
[[nodiscard]] std::vector<ColouredPiece> layOutLesson(std::string_view text);

} // namespace talvora
