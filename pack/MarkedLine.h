// A line with red and blue in it, as teachers write it ("> She *goes* home.") and as the program's
// lessons and explanations store it.
#pragma once

#include "pack/Problems.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// Where a line stands: the two kinds mark their colours with different characters.
enum class LineKind { Lesson, Explanation };

/// A line without its marks, in the text font's bytes.
struct MarkedLine {
  std::string text;
  std::vector<bool> red;               ///< an element for each character
  std::optional<std::size_t> blueFrom; ///< the rest of the line is blue from here on

  bool operator==(const MarkedLine&) const = default;
};

/// Parses a line as it is written; what is wrong is reported.
[[nodiscard]] MarkedLine parseMarkedLine(std::string_view utf8, const Where& where, LineKind kind,
                                         Problems& problems);

/// The line as it is written.
[[nodiscard]] std::string writeMarkedLine(const MarkedLine& line);

/// The line as it is stored.
[[nodiscard]] std::string encodeMarkedLine(const MarkedLine& line, LineKind kind);

/// A stored line; a stored mark that no written line leads to is read as the program reads it.
[[nodiscard]] MarkedLine decodeMarkedLine(std::string_view stored, LineKind kind);

/// Reports blanks that the program would not show: at an end, behind another one or behind "(",
/// before ")". `where` is that of the text's first character.
void checkBlanks(std::string_view text, const Where& where, Problems& problems);

/// The place of a byte in a line that begins at `where`.
[[nodiscard]] Where placeIn(std::string_view utf8, std::size_t offset, const Where& where);

} // namespace talvora::pack
