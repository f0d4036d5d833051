// A text that a learner brings, taken out of its file: titles and paragraphs in UTF-8.
#pragma once

#include "pack/Problems.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A chapter, or the whole of a text that has none.
struct BroughtChapter {
  std::string title; ///< empty when it has none
  std::vector<std::string> paragraphs;
};

/// Plain text: paragraphs are parted by empty lines, or are a line each where there are none.
[[nodiscard]] std::vector<BroughtChapter> chaptersOfPlainText(std::string_view text);

/// Subtitles (SRT): what is said without a pause is a paragraph. Lines that belong to no subtitle
/// are reported.
[[nodiscard]] std::vector<BroughtChapter>
chaptersOfSubtitles(std::string_view text, const std::string& file, Problems& problems);

/// A book (EPUB): a chapter for each of its files that has text, in the book's order.
[[nodiscard]] std::vector<BroughtChapter>
chaptersOfBook(std::string_view bytes, const std::string& file, Problems& problems);

} // namespace talvora::pack
