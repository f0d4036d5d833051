// From the words of texts to head words of the dictionary.
#pragma once

#include "pack/DictionarySource.h"
#include "pack/Inflection.h"
#include "pack/TextWords.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace talvora::pack {

/// The dictionary's own reduction: every head word and every form of one leads to its head word.
class Lemmas {
 public:
  /// `met` holds the words of the texts in small letters; regular forms are made only of those.
  Lemmas(const std::vector<OwnEntry>& own, const std::unordered_set<std::string>& met);

  /// The head words that a word in small letters may belong to, the likeliest first, and behind
  /// them its next of kin: who knows "slow" knows "slowly" at sight, and the other way round. A
  /// word without an entry is its own.
  [[nodiscard]] std::vector<std::string> of(const std::string& word) const;
  [[nodiscard]] bool hasEntry(const std::string& head) const;
  /// "A1" to "C1"; empty when the entry has none, or there is no entry.
  [[nodiscard]] std::string levelOf(const std::string& head) const;
  /// The head words in small letters, sorted; those that begin with a capital are left out.
  [[nodiscard]] std::vector<std::string> heads() const;

 private:
  struct Head {
    std::string level;
    bool capital = false;
    bool formsFirst = false;
    ClassSet classes;
  };
  void joinAdverb(const OwnEntry& adverb);
  void join(const std::string& head, const std::string& other);

  std::unordered_map<std::string, Head> heads_;
  std::unordered_map<std::string, std::vector<std::string>> bases_;   ///< by form
  std::unordered_map<std::string, std::vector<std::string>> related_; ///< by head word
};

/// The words of a set of texts as they stand in small and in capital letters: tells names.
class NameFinder {
 public:
  explicit NameFinder(const ReadingSource& readings);

  /// True for a capitalised word that is never met in small letters, and for any within a sentence.
  [[nodiscard]] bool isName(const TextWord& word) const;
  /// Every word in small letters, names as well.
  [[nodiscard]] const std::unordered_set<std::string>& words() const noexcept { return words_; }

 private:
  std::unordered_set<std::string> words_;
  std::unordered_set<std::string> small_;  ///< met in small letters
  std::unordered_set<std::string> inside_; ///< met with a capital within a sentence
};

} // namespace talvora::pack
