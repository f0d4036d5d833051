// The sources of the reading texts: a title, pairs of a sentence and its translation, and the list
// of headings.
#pragma once

#include "formats/Limits.h"
#include "pack/Problems.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// Number of slots in the list of reading texts.
inline constexpr int ReadingSlots = limit::ReadingTexts;

/// A sentence and its translation, in the text font's bytes.
struct SentencePair {
  std::string english;
  std::string vietnamese;
  std::string speaker = {}; ///< who says it in a recording; empty when it is anybody's turn
};

using Paragraph = std::vector<SentencePair>;

struct ReadingText {
  std::string title;
  std::vector<Paragraph> paragraphs;
};

/// All reading slots that have a source.
struct ReadingSource {
  std::map<int, ReadingText> texts;
  std::map<int, std::string> headings;
};

/// Whether every sentence of a text must have its translation.
enum class Translated { Always, WhereGiven };

/// Parses one text; what is wrong is reported.
[[nodiscard]] ReadingText parseReadingText(std::string_view text, const std::string& file,
                                           Problems& problems,
                                           Translated translated = Translated::Always);

/// Parses the lines "slot TAB heading" of a list with so many slots.
[[nodiscard]] std::map<int, std::string> parseHeadings(std::string_view text,
                                                       const std::string& file, Problems& problems,
                                                       int slots = ReadingSlots);

/// Reads a folder of texts "NNN-slug.txt", with as many digits as the number of slots has, and its
/// "headings.txt".
[[nodiscard]] ReadingSource readTexts(const std::filesystem::path& folder, int slots,
                                      Problems& problems);
[[nodiscard]] inline ReadingSource readReadings(const std::filesystem::path& folder,
                                                Problems& problems) {
  return readTexts(folder, ReadingSlots, problems);
}

/// The source of a text, as `parseReadingText` reads it.
[[nodiscard]] std::string writeReadingText(const ReadingText& text);

} // namespace talvora::pack
