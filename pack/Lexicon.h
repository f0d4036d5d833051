// What the voices know of words.
#pragma once

#include "pack/Phonetics.h"

#include <string>

namespace talvora::pack {

/// Whether there is a lexicon at all; without one every word has no phones.
[[nodiscard]] bool hasLexicon();

/// The phones of a word in small letters, the vowels with their stress ("sh ih1 p"), from the
/// lexicon of the voices or by its letter-to-sound rules. The class is one of its letters: n, v, j,
/// r, or 0 for any. Throws std::runtime_error when the lexicon cannot be had.
[[nodiscard]] Phones lexiconPhones(const std::string& word, char classLetter);

/// Whether the lexicon itself has a word in small letters; of others it guesses the sounds by the
/// letters. Throws as above.
[[nodiscard]] bool lexiconHas(const std::string& word);

/// Whether the voices take a word for unspeakable by the letters at its ends, as "Nguyen". They
/// name its letters then, unless their own lexicon has it; what they were taught does not count.
[[nodiscard]] bool isSpelledOut(const std::string& word);

} // namespace talvora::pack
