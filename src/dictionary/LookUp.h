// Searches a word in the word list, and reduces it when it is not found as it stands.
#pragma once

#include "dictionary/WordList.h"
#include "stores/Stores.h"
#include "surface/Variables.h"
#include "text/WordForm.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace talvora {

/// Whether a search also fetches the entry of what it finds.
enum class LayNghia { No, Yes };

/// Bounds of a search, as line numbers of the word list.
struct LetterRange {
  int TimDau = 0;
  int TimCuoi = 0;

  friend bool operator==(const LetterRange&, const LetterRange&) = default;
};

/// What a search of the list found.
struct SearchResult {
  bool TimThay = false;
  int ViTriGan = 0;            ///< the word found, or the nearest place; 0 behind all words
  std::int32_t ViTriNghia = 0; ///< record of the entry of the word found
};

/// What a key, or the first form of a word that has an entry, gave.
struct Answer {
  LetterRange range;
  bool TimThay = false;
  int ViTriGan = 0;
  std::string entry; ///< where it was wanted and found
};

/// What became of a word in all its forms.
struct WordAnswer {
  std::string word;             ///< the form that was found; without one the word as it was
  std::optional<Answer> answer; ///< to the form that was searched last; empty when none was
};

class LookUp {
 public:
  LookUp(const WordList& words, const Stores& stores) : words_(words), stores_(stores) {}

  /// The bounds of the section of a key whose first character has that code; the whole list for a
  /// code that is no letter's.
  [[nodiscard]] LetterRange KhoangChuCai(int code) const;
  /// Searches a key, in small letters, within bounds. It ends for every list, sorted or not.
  [[nodiscard]] SearchResult search(std::string_view key, LetterRange range) const;
  /// The entry from a record of file 5 on, its character 13 included; it ends with the file too.
  [[nodiscard]] std::string entryAt(std::int32_t record) const;

  /// Searches a key in any case of letters, with its entry where that is wanted. Nothing changes.
  /// An empty key is not searched and gives nothing.
  [[nodiscard]] std::optional<Answer> ask(std::string_view key, LayNghia layNghia) const;
  /// Looks a word up: as it stands, by the suffix rules, and shortened letter by letter, until a
  /// form has an entry. Nothing changes.
  [[nodiscard]] WordAnswer askInAllForms(std::string_view word) const;

  /// The entry of a line of the list.
  [[nodiscard]] std::string DocNghia(int TuChon) const;

  // -- The same, and where the search settled is noted below.

  /// `ask`.
  std::optional<Answer> TimTu(std::string_view key, LayNghia layNghia);
  /// `askInAllForms`.
  WordAnswer timMoiDang(std::string_view word);
  /// Another list was searched with that result.
  void settleAt(int line) noexcept { ViTriGan = line; }

  void declare(Variables& variables) const;

  int TimDau = 0;       ///< first line of the section that was searched last
  int TimCuoi = 0;      ///< last line of it
  bool TimThay = false; ///< the last search found its key
  int ViTriGan = 0;     ///< line that the last search settled on; 0 when it lies behind all

 private:
  void note(const std::optional<Answer>& answer);
  [[nodiscard]] SearchResult searchPair(std::string_view key, int low, int high) const;

  const WordList& words_;
  const Stores& stores_;
};

} // namespace talvora
