// The running words of English sentences.
#pragma once

#include "pack/ReadingSource.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A running word. The parts of a word with a hyphen are words of their own, and so is not what an
/// apostrophe has shortened: "don't" is "do", "Lan's" is "Lan".
struct TextWord {
  std::string text; ///< as it stands, without the shortened part
  bool opens;       ///< it opens a sentence or what somebody says
};

[[nodiscard]] std::vector<TextWord> textWords(std::string_view sentence);

/// The words of an English text in small letters and with their apostrophes, all other marks left
/// out: "I'm from Hue." is "i'm", "from", "hue".
[[nodiscard]] std::vector<std::string> plainWords(std::string_view text);

/// True when the word begins with a capital.
[[nodiscard]] bool hasCapital(const TextWord& word);

/// The English sentences of a text in their order, the title left out.
[[nodiscard]] std::vector<std::string_view> sentencesOf(const ReadingText& text);

} // namespace talvora::pack
