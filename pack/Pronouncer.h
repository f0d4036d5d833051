// How the words of our own are said: by the voice's own lexicon, with the corrections of the
// source.
#pragma once

#include "pack/DictionarySource.h"
#include "pack/FormPhones.h"
#include "pack/PronunciationSource.h"
#include "sound/Pronunciations.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace talvora::pack {

class Pronouncer {
 public:
  explicit Pronouncer(std::vector<PronunciationRule> rules);

  /// The phones of a single word as one of a class; those of letters for an abbreviation.
  [[nodiscard]] Phones phonesOfWord(const std::string& word, WordClass wordClass) const;
  /// "/gou/" in UTF-8: how a head word of one or several words is said as one of a class.
  [[nodiscard]] std::string shownOf(std::string_view head, WordClass wordClass) const;
  /// Writes the pronunciations into entries: behind the head word that of its first class, and at
  /// each other class its own where it differs.
  void pronounce(std::vector<OwnEntry>& entries) const;
  /// What the voice has to be told: the source's corrections, and for a head word that is said in
  /// several ways the one of its commonest class when it is clicked.
  /// A form that the lexicon lacks is said as its head word is, with its ending.
  [[nodiscard]] Pronunciations correctionsFor(const std::vector<OwnEntry>& entries,
                                              const std::vector<SpokenForm>& forms = {}) const;

 private:
  enum class Gives { Sounds, Notation };
  [[nodiscard]] const PronunciationRule* ruleFor(const std::string& word, WordClass wordClass,
                                                 Gives gives) const;
  void addForms(std::vector<SpokenCorrection>& corrections,
                const std::vector<SpokenForm>& forms) const;

  std::vector<PronunciationRule> rules_;
  std::unordered_map<std::string, std::vector<const PronunciationRule*>> byWord_;
};

} // namespace talvora::pack
