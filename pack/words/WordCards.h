// The learner's words as cards: each with what the dictionary says of it, its sentence and the
// sentence's translation. What the exports write.
#pragma once

#include "pack/LearnersList.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace talvora::pack {

/// A word on its way out. Texts are in UTF-8 unless said otherwise.
struct WordCard {
  std::string id;                  ///< the same for this word in every export
  std::string word;                ///< as it was met
  std::string base;                ///< base form; the word itself when it is one, or unknown
  std::string pronunciation;       ///< empty when unknown
  std::vector<std::string> senses; ///< a line each
  std::string sentence;            ///< empty when there is none
  std::string translation;
  std::string title;          ///< of the text
  std::string spokenWord;     ///< what a voice says for the word, in the text font's bytes
  std::string spokenSentence; ///< the same for the sentence
};

/// A sentence around the word in it.
struct MarkedSentence {
  std::string before;
  std::string word; ///< empty when the word is not in the sentence
  std::string after;
};

/// Finds the first place where the word stands by itself, in any case of letters.
[[nodiscard]] MarkedSentence markedSentence(const std::string& sentence, const std::string& word);

/// The cards of a list, in its order; nothing when the list cannot be read. Without a pack there
/// are only the words and the sentences. Writes nothing.
[[nodiscard]] std::optional<std::vector<WordCard>> cardsOf(const LearnersList& list,
                                                           const std::string& pack);

} // namespace talvora::pack
