// A word of the learner's list together with the sentence that it was taken from, and how both
// stand in a line of a file that people can read.
#pragma once

#include "learner/TextCatalogue.h"
#include "learner/VocabularyFile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// What ties a word to its sentence, whichever pack the program is given.
struct WordRow {
  std::string word;    ///< without padding
  std::string pack;    ///< fingerprint of the pack that `where.place` belongs to
  SentencePlace where; ///< `place` is 0 when the sentence is in that pack no more

  [[nodiscard]] VocabularyWord record() const { return {paddedWord(word), where.place}; }

  friend bool operator==(const WordRow&, const WordRow&) = default;
};

/// A text of the program as people read it, in UTF-8; what no line can hold becomes a blank.
[[nodiscard]] std::string readableText(std::string_view bytes);
/// The bytes of a text in UTF-8; what the font has no byte for becomes a question mark.
[[nodiscard]] std::string bytesOfReadable(std::string_view utf8);
/// A text as it comes back from a file: letters that are written alike become one.
[[nodiscard]] std::string asWritten(std::string_view bytes);

/// One line, in UTF-8 and without its end: word, place, pack, "reading" or "speaking", number of
/// the text, number of the sentence, title and sentence, with tabs between.
[[nodiscard]] std::string lineOf(const WordRow& row);
/// Nothing when the line is none of that form.
[[nodiscard]] std::optional<WordRow> rowFrom(std::string_view line);

/// A whole file of rows: a line that says what it is, then a row a line. A line that cannot be read
/// is passed over.
[[nodiscard]] std::string fileOf(const std::vector<WordRow>& rows);
[[nodiscard]] std::vector<WordRow> rowsFrom(std::string_view content);

} // namespace talvora
