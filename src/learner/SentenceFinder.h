// Finds a sentence again in a pack that is another one than the sentence was taken from.
#pragma once

#include "learner/TextCatalogue.h"
#include "learner/WordRows.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace talvora {

/// How a sentence was found.
enum class Found {
  InItsText,       ///< the same sentence in the text of that title
  NearestInText,   ///< the text of that title has one that is much like it
  InAnotherText,   ///< the same sentence under another title
  LikeInOtherText, ///< another text has one that is much like it
  Nowhere
};

class SentenceFinder {
 public:
  explicit SentenceFinder(const TextCatalogue& catalogue);

  /// Looks for a word's sentence: first the same one in the same text, then the likest one in the
  /// same text, the same one anywhere, the likest one anywhere. One that is not the same counts
  /// only when the word is in it. `row.where` takes what was found; nowhere, only its place is 0.
  Found find(WordRow& row) const;

 private:
  using Words = std::multiset<std::string, std::less<>>;

  [[nodiscard]] static Words wordsOf(std::string_view text);
  [[nodiscard]] static double likenessOf(const Words& one, const Words& other);
  /// The best of the sentences that hold the word: the likest, and of equals the nearest; none when
  /// it is less like than `least`, from 0 (nothing in common) to 1 (the same words).
  [[nodiscard]] const SentencePlace* likest(const WordRow& row, bool sameText, double least) const;
  [[nodiscard]] const SentencePlace* same(const WordRow& row) const;

  std::vector<SentencePlace> sentences_;
  std::unordered_multimap<std::string, std::size_t> byText_;
  std::unordered_multimap<std::string, std::size_t> byWord_;
};

} // namespace talvora
