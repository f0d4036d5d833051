// Filling the word list up to its fixed length, in a fixed order of preference.
#pragma once

#include "pack/DictionarySource.h"
#include "pack/Inflection.h"
#include "pack/WordList.h"
#include "pack/WordNet.h"

#include <filesystem>
#include <string>
#include <vector>

namespace talvora::pack {

/// What the word list is made from.
struct WordSources {
  std::vector<OwnEntry> own;
  WordNet wordNet;
  std::vector<std::string> listed; ///< words of the word lists, as they are spelled there
  KnownWords known;                ///< the same in small letters
};

/// Adds the words of a word list, one a line; words that the text font cannot show are left out.
void readListedWords(const std::filesystem::path& path, WordSources& sources, Problems& problems);

/// How far a list is filled.
enum class Filling {
  OwnOnly, ///< our own entries and their forms
  Full     ///< everything that the sources give, until the list is full
};

/// The word list of at most `limit` lines. An entry of our own that finds no place is reported.
[[nodiscard]] WordList fillWordList(const WordSources& sources, std::size_t limit, Filling filling,
                                    Problems& problems);

} // namespace talvora::pack
