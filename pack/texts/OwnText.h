// Texts that a learner brings, cut to what a text of the program can hold.
#pragma once

#include "pack/LooseText.h"
#include "pack/ReadingSource.h"
#include "pack/texts/BroughtText.h"

#include <filesystem>
#include <string>
#include <vector>

namespace talvora::pack {

/// A longer text becomes several.
inline constexpr std::size_t MostOwnSentences = 150;
inline constexpr std::size_t MostOwnLetters = 20000;
/// Larger files are refused.
inline constexpr std::size_t LargestTextFile = std::size_t{64} << 20;

/// Texts made of a file, and the letters that the font lacks.
struct OwnTextsFromFile {
  std::vector<ReadingText> texts;
  std::map<char32_t, std::size_t> lost;
};

/// Reads a file by its name: ".epub", ".srt", everything else as plain text. A plain text with
/// lines that begin with "= " is one that has its translations: a sentence a line, its translation
/// below it. What is wrong is reported; then the texts are not to be used.
[[nodiscard]] OwnTextsFromFile ownTextsFromFile(const std::filesystem::path& file,
                                                Problems& problems);

} // namespace talvora::pack
