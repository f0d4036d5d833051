// From the phones of the voice to the letters in which dictionaries write how a word is said.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// The phones of a word, as the voice's lexicon names them; a vowel ends in its stress, 0 or 1.
using Phones = std::vector<std::string>;

/// Phones that blanks part.
[[nodiscard]] Phones phonesOf(std::string_view text);
/// The same as a text.
[[nodiscard]] std::string joined(const Phones& phones);

/// What is wrong with phones that a source gives; empty when the voice can say them.
[[nodiscard]] std::string faultOf(const Phones& phones);

/// "/'wo:tə/" as UTF-8: ":" for a long vowel, "'" ahead of the stressed syllable of a word that has
/// several. `spelling` tells which of two vowels is meant where the voice's accent has only one.
[[nodiscard]] std::string phoneticOf(const Phones& phones, std::string_view spelling);

} // namespace talvora::pack
