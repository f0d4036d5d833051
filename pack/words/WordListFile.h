// A list of words that somebody brings: plain, as a table, or as our own exports.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A word of a list, in the text font's bytes.
struct ListedWord {
  std::string word;
  std::string sentence; ///< empty without one
  std::string title;    ///< of the text that the sentence is from; empty when unknown
  int line = 0;         ///< on which it stands, from 1
};

/// A line whose word cannot be taken, and why.
struct RefusedLine {
  int line = 0;
  std::string why;
};

struct WordListContent {
  std::vector<ListedWord> words;
  std::vector<RefusedLine> refused;
};

/// Reads a list in UTF-8. The word is the column that a heading calls so, else the first one; a
/// sentence is read only where a heading names it. Words are written as the program writes them: in
/// small letters, unless they begin with "I".
[[nodiscard]] WordListContent wordListFrom(std::string_view content);

} // namespace talvora::pack
