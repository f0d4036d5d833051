// The book of words: which lemma is met in which reading text.
#pragma once

#include "pack/Lemmas.h"

#include <array>
#include <map>
#include <string>
#include <vector>

namespace talvora::pack {

/// A lemma must return within so many texts of the one that brought it, once more in each window.
inline constexpr std::array<int, 3> ReturnWindows = {3, 10, 40};

/// How often a lemma stands in a text.
struct Meeting {
  int slot = 0;
  int count = 0;
};

/// What a text does with words. Names are counted apart, and numbers in digits not at all.
struct TextWords {
  int words = 0; ///< running words, names included
  int sentences = 0;
  int names = 0;
  int unknown = 0;     ///< running words at which the reader sees a lemma for the first time
  std::string longest; ///< the sentence with the most words
  int longestWords = 0;
  std::map<std::string, int> lemmas;  ///< how often each one stands in the text
  std::vector<std::string> newLemmas; ///< in the order of the text

  [[nodiscard]] double wordsASentence() const noexcept;
  [[nodiscard]] double knownShare() const noexcept; ///< in per cent, names left out
};

/// A lemma that should return, and the last slot in which it is in time.
struct DueLemma {
  std::string lemma;
  int window = 0; ///< of `ReturnWindows`
  int lastSlot = 0;
};

/// Reads the texts in the order of their slots.
class LemmaBook {
 public:
  /// `slots` are those that have or can have a text of the course.
  LemmaBook(const ReadingSource& readings, std::vector<int> slots, const Lemmas& lemmas);

  /// What the text of a slot does; null without a text there.
  [[nodiscard]] const TextWords* textAt(int slot) const;
  /// The lemmas met ahead of a slot, sorted.
  [[nodiscard]] std::vector<std::string> knownBefore(int slot) const;
  /// The lemmas that should return in a text of that slot, the most urgent first.
  [[nodiscard]] std::vector<DueLemma> dueAt(int slot) const;
  /// The lemmas that the text of a slot brought and that have not returned in time, although every
  /// slot of the window has its text.
  [[nodiscard]] std::vector<DueLemma> missedOf(int slot) const;
  [[nodiscard]] const std::map<int, TextWords>& texts() const noexcept { return texts_; }
  /// The slot at which a lemma is met first; 0 when it never is.
  [[nodiscard]] int firstSlotOf(const std::string& lemma) const;
  /// How many slots ahead of one could still get a text.
  [[nodiscard]] int openAhead(int slot) const;

 private:
  void read(int slot, const ReadingText& text, const Lemmas& lemmas, const NameFinder& names);
  [[nodiscard]] std::string lemmaOf(const std::string& word, const Lemmas& lemmas) const;
  /// The slot of the text that comes so many texts behind another; headings are none.
  [[nodiscard]] int slotBehind(int slot, int texts) const;
  [[nodiscard]] int textsBetween(int slot, int later) const;

  std::vector<int> textSlots_;
  std::map<int, TextWords> texts_;
  std::map<std::string, std::vector<Meeting>> meetings_;
};

} // namespace talvora::pack
