// The words of English text as a learner can click them.
#pragma once

#include "pack/MarkedLine.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// The words of a text in the text font's bytes, as a click takes them and in their own letters: a
/// word with a hyphen is one. Left out are those with a digit or an accent, the letters that stand
/// for parts of a sentence in formulas ("S + V-ing"), pieces of words ("-ness", "'ve"), and all of
/// a text with Vietnamese letters.
[[nodiscard]] std::vector<std::string> clickedWords(std::string_view text);

/// The same for a line of a lesson or an explanation: its plain and its blue part by themselves,
/// and of a part in Vietnamese the red stretches in English.
[[nodiscard]] std::vector<std::string> clickedWords(const MarkedLine& line);

} // namespace talvora::pack
