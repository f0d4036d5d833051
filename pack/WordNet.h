// Words, short English definitions and irregular forms from an installed WordNet database.
#pragma once

#include "pack/Entry.h"
#include "pack/Problems.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace talvora::pack {

/// A synset of the database: its place, and the part of speech in the lowest two bits.
using SynsetKey = std::uint32_t;

struct WordNetWord {
  std::string head; ///< with capitals where its first definition has them, blanks for underscores
  ClassSet classes;
  std::vector<Sense> senses; ///< at most three; none when no definition can be shown
  std::vector<SynsetKey> synsets = {};
  /// The synsets to which the database ties the word itself: what it is derived from, what it
  /// pertains to and its opposite. Only for words that an affix may have built.
  std::vector<SynsetKey> ties = {};
};

/// An irregular form, listed for the base and class that it belongs to.
struct ExceptionForm {
  std::string form;
  WordClass wordClass = WordClass::Noun;
};

struct WordNet {
  std::vector<WordNetWord> words; ///< sorted by their small-letter spelling
  std::unordered_map<std::string, std::vector<ExceptionForm>> exceptions; ///< by base
};

/// The word of a spelling in small letters; nothing when the database lacks it.
[[nodiscard]] const WordNetWord* wordOf(const WordNet& wordNet, const std::string& small);

/// Reads the database in a folder; a file that is missing or damaged is reported.
[[nodiscard]] WordNet readWordNet(const std::filesystem::path& folder, Problems& problems);

/// What a definition shows of a gloss: without the quoted examples, cut at a blank when it is long;
/// empty when it holds what an entry cannot show.
[[nodiscard]] std::string definitionOf(std::string_view gloss);

} // namespace talvora::pack
