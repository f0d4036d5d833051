// The reading texts as the program's pair of files, and back.
#pragma once

#include "pack/ReadingSource.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A position table and its stream.
struct TextStore {
  std::string positions;
  std::string stream;
};

/// A text as the program shows it, marks included: carets count its characters.
[[nodiscard]] std::string shownText(const ReadingText& text);

/// The title of a slot whose text is still being written.
[[nodiscard]] std::string openSlotTitle();

/// Texts in their order; a title that begins with "*" is a heading.
[[nodiscard]] TextStore compileTexts(const std::vector<ReadingText>& texts);

/// Every slot filled: texts, headings, and slots still open.
[[nodiscard]] TextStore compileReadings(const ReadingSource& source, int slots = ReadingSlots);

/// The texts and headings of a store; open slots are left out.
/// Problems name the record at which a damaged store cannot be read.
[[nodiscard]] ReadingSource decodeReadings(std::string_view positions, std::string_view stream,
                                           Problems& problems, int slots = ReadingSlots);

} // namespace talvora::pack
