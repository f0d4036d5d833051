// Words that are said in several ways, in the sentences that the voice says: "she lives" beside
// "nine lives".
#pragma once

#include "pack/Problems.h"
#include "pack/Pronouncer.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// Such a word in a sentence.
struct SaidWord {
  std::string word;
  Phones phones; ///< none where no line of the source settles how it is said
};

/// The words of a sentence that are said in several ways: those that the source has for several
/// classes or within phrases, and those that the voice's lexicon has twice. A phrase of the source
/// settles it, and else its line for the word everywhere.
[[nodiscard]] std::vector<SaidWord> heteronymsIn(std::string_view sentence,
                                                 const Pronouncer& pronouncer);

/// Reports each word in a sentence of a content tree's texts that would be said by chance.
void checkHeteronyms(const std::filesystem::path& source, Problems& problems);

/// A line for each such word in each sentence: the word, its phones, the sentence, parted by tabs.
[[nodiscard]] std::string heteronymReport(const std::filesystem::path& source, Problems& problems);

} // namespace talvora::pack
