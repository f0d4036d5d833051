// content/pronunciation.txt: what the voice says wrong of itself, and what it cannot know.
#pragma once

#include "pack/Entry.h"
#include "pack/Phonetics.h"
#include "pack/Problems.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// One line: how a word is said, everywhere, as a word of one class, or within a phrase.
struct PronunciationRule {
  std::string word;               ///< as it is spelled
  Phones phones;                  ///< none when only the notation is given
  std::vector<Phones> parts = {}; ///< the same by the parts that hyphens make: one without a hyphen
  std::string shown = {};         ///< "/ðə/" in UTF-8; empty without it
  std::optional<WordClass> wordClass = std::nullopt; ///< none for every class
  std::string phrase = {}; ///< in which the word is said so; empty for everywhere
  Where where = {};
};

[[nodiscard]] std::vector<PronunciationRule>
parsePronunciations(std::string_view text, const std::string& file, Problems& problems);

/// Reads the file; none when it is not there.
[[nodiscard]] std::vector<PronunciationRule> readPronunciations(const std::filesystem::path& path,
                                                                Problems& problems);

} // namespace talvora::pack
