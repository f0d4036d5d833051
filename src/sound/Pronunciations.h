// Corrections of what the voice says of itself, as the pack carries them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// The words of a text in small letters; apostrophes within a word belong to it.
[[nodiscard]] std::vector<std::string> spokenWordsOf(std::string_view text);

/// Where a correction holds.
enum class SpokenWhere { Everywhere, Alone, Within };

struct SpokenCorrection {
  SpokenWhere where = SpokenWhere::Everywhere;
  std::string word;                     ///< in small letters
  std::string phones;                   ///< as the voice's lexicon names them, parted by blanks
  std::vector<std::string> phrase = {}; ///< the words around it, it among them, for `Within`
};

/// An entry for the voice's lexicon.
struct LexiconEntry {
  std::string word;
  std::string phones;
};

/// All corrections of a pack. A word that is said so here and otherwise there is given to the voice
/// under a spelling of its own, which its lexicon then knows.
class Pronunciations {
 public:
  /// The name of the file in the pack.
  static constexpr std::string_view FileName = "pronunciation.txt";

  Pronunciations() = default;
  explicit Pronunciations(std::vector<SpokenCorrection> corrections);
  /// Reads what `write` gave; a line that is none is passed over.
  [[nodiscard]] static Pronunciations read(std::string_view text);
  [[nodiscard]] std::string write() const;

  /// A text of plain ASCII as the voice is to be given it.
  [[nodiscard]] std::string prepared(std::string_view text) const;
  /// What the voice's lexicon must know ahead of that.
  [[nodiscard]] std::vector<LexiconEntry> lexicon() const;
  /// The entries of the lexicon that a text needs: two texts are said alike when these and the
  /// prepared texts are the same.
  [[nodiscard]] std::vector<LexiconEntry> lexiconFor(std::string_view text) const;

 private:
  std::vector<SpokenCorrection> corrections_;
};

} // namespace talvora
