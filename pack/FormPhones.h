// How the regular forms of our head words are said: as the head word, with the ending's sound.
#pragma once

#include "pack/FilledList.h"
#include "pack/Phonetics.h"

#include <string>
#include <vector>

namespace talvora::pack {

/// The endings that are spoken by rule.
enum class SpokenEnding { S, Ed, Ing };

/// A form that is spelled with such an ending, and the class of the head word that it belongs to.
struct SpokenForm {
  std::string text; ///< in small letters
  std::string base;
  SpokenEnding ending = SpokenEnding::S;
  WordClass wordClass = WordClass::Noun;
};

/// The regular forms of our single head words; one that serves as a noun's and as a verb's form
/// stands there for both.
[[nodiscard]] std::vector<SpokenForm> spokenFormsOf(const WordSources& words);

/// The phones of a form from those of its base: "boxes" ends in ih0 z, "cats" in s, "dogs" in z.
[[nodiscard]] Phones withEnding(Phones base, SpokenEnding ending);

} // namespace talvora::pack
