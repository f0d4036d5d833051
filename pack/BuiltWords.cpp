// What the database tells of a word and its base.
#include "pack/BuiltWords.h"

#include "text/Contains.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace talvora::pack {

namespace {

bool areTied(const WordNetWord& word, const WordNetWord& base) {
  return std::any_of(word.ties.begin(), word.ties.end(),
                     [&base](SynsetKey tie) { return contains(base.synsets, tie); });
}

/// True when a definition of the word has one of the phrases.
template <typename Phrases>
bool isDefinedBy(const WordNetWord& word, const Phrases& phrases) {
  return std::any_of(word.senses.begin(), word.senses.end(), [&phrases](const Sense& sense) {
    return std::any_of(phrases.begin(), phrases.end(), [&sense](std::string_view phrase) {
      return sense.text.find(phrase) != std::string::npos;
    });
  });
}

constexpr std::array<std::string_view, 4> saysAgain = {"again", "anew", "once more", "a new way"};
constexpr std::array<std::string_view, 4> saysPossible = {"can be", "able to", "capable of",
                                                          "possible to"};
/// Affixes whose words the database ties to their bases.
constexpr std::array<std::string_view, 4> tyingAffixes = {"un-", "-ly", "-ness", "-er"};

} // namespace

bool isBornOut(const WordNet& wordNet, const WordNetWord& word, const Derivation& derivation) {
  const WordNetWord* base = wordOf(wordNet, derivation.base);
  if (base == nullptr) return false;
  if (derivation.affix == "re-") return isDefinedBy(word, saysAgain);
  if (derivation.affix == "-able") return isDefinedBy(word, saysPossible);
  return contains(tyingAffixes, derivation.affix) && areTied(word, *base);
}

} // namespace talvora::pack
