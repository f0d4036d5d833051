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
  /// True for a word that the source has for several classes or within phrases, and for one that
  /// the lexicon has in several ways, each with a stress: "to" is only weak or not.
  [[nodiscard]] bool isSaidInSeveralWays(const std::string& word) const;
  /// The phones of the word at a place among those of a sentence, in small letters: as a phrase of
  /// the source says, else as it is said everywhere; none when no line tells.
  [[nodiscard]] Phones phonesWithin(const std::vector<std::string>& words, std::size_t at) const;
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
  /// The line that says how a word is said everywhere; null without one.
  [[nodiscard]] const PronunciationRule* ruleEverywhere(const std::string& word) const;
  void addForms(std::vector<SpokenCorrection>& corrections,
                const std::vector<SpokenForm>& forms) const;

  [[nodiscard]] std::vector<SpokenCorrection> defaultsInSentences() const;
  static void addParts(std::vector<SpokenCorrection>& corrections, const PronunciationRule& rule);

  std::vector<PronunciationRule> rules_;
  std::unordered_map<std::string, std::vector<const PronunciationRule*>> byWord_;
  std::unordered_map<std::string, std::vector<const PronunciationRule*>> withinPhrases_;
};

} // namespace talvora::pack
