// What a content tree holds and what it still lacks.
#pragma once

#include "pack/Compiler.h"
#include "pack/WordList.h"

#include <cstddef>
#include <string>
#include <vector>

namespace talvora::pack {

/// A word of the reading texts for which the program shows no Vietnamese sense.
struct MissingWord {
  std::string word;
  std::size_t count = 0;
};

/// The word that the program's look-up finds for a word of a text: the exact form, the form after
/// the suffix rules, then ever shorter ones.
[[nodiscard]] std::optional<std::size_t> lookUp(const WordList& list, const std::string& word);

/// The words that have no Vietnamese sense, the most frequent first.
[[nodiscard]] std::vector<MissingWord> missingWords(const WordList& list,
                                                    const ReadingSource& readings);

/// The whole report, as UTF-8 lines.
[[nodiscard]] std::string statusReport(const Content& content, const WordList& list);

} // namespace talvora::pack
