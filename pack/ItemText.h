// The text of an exercise question with its blanks or phrases: "She {went|has gone} home", as it is
// written and as the store holds it.
#pragma once

#include "pack/Problems.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace talvora::pack {

/// What stands in braces: an answer to be typed, a phrase to look at, or a phrase that may be the
/// mistake.
enum class BraceUse { Answer, Phrase, Candidate };

/// The cells behind an answer where a source does not write them.
inline constexpr std::size_t UsualRoom = 3;

/// A question's text in the store's form, and what was found in its braces.
struct ItemText {
  std::string stored;
  int braces = 0;      ///< how many there are
  int marked = 0;      ///< number of the phrase that begins with "!", from 1; 0 when none does
  int marks = 0;       ///< how many phrases begin with "!"
  bool hasGap = false; ///< a "_" stands outside of braces
};

/// Parses one line and appends it to a text.
void parseItemLine(std::string_view utf8, const Where& where, BraceUse use, ItemText& text,
                   Problems& problems);

/// The text as it is written, a line end for each character 13; the phrase of that number gets a
/// "!".
[[nodiscard]] std::string writeItemText(std::string_view stored, BraceUse use, int marked);

} // namespace talvora::pack
