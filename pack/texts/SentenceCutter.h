// English prose cut into sentences.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A sentence of more letters is cut where a clause or at least a word ends.
inline constexpr std::size_t LongestOwnSentence = 500;

/// The sentences of a paragraph, in ASCII or the text font's bytes, each with its closing mark. A
/// point behind a title, an initial or a number does not close a sentence.
[[nodiscard]] std::vector<std::string> sentencesIn(std::string_view paragraph);

} // namespace talvora::pack
