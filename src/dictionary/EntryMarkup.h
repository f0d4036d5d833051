// Turns the marks of a dictionary entry into the text to show and the stretches that are coloured.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// A stretch of the shown text. A length of 0 or less colours nothing.
struct EntrySpan {
  int start = 0; ///< caret, from 0
  int length = 0;

  friend bool operator==(const EntrySpan&, const EntrySpan&) = default;
};

struct ShownEntry {
  /// The most stretches of each kind; further marks open none.
  static constexpr std::size_t MostSpans = 300;

  std::string text;
  std::vector<EntrySpan> blue;      ///< opened and closed by "#"
  std::vector<EntrySpan> redItalic; ///< opened by "^", closed by "^", "#" or a blank
};

/// Reads an entry, which may be any bytes. "#", "^" and "~" show as blanks, "_" starts a line with
/// a dash; a blank that follows a blank or "(", or stands ahead of ")", is dropped. A stretch
/// closed by its own mark ends one character short of the text ahead of the mark, so a blank stands
/// there.
[[nodiscard]] ShownEntry readMarkup(std::string_view entry);

} // namespace talvora
