// One spelling a word all over the content, where several are in use.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// The list of spellings in a content tree.
inline constexpr std::string_view SpellingFile = "spelling.txt";

/// A spelling that is not used, and the one that is; in UTF-8, as they are listed. A listed
/// spelling with small letters stands for the one that opens a sentence too.
struct Spelling {
  std::string unused;
  std::string used;
};

/// Reads the list; none when it is not there. A line without " = " is reported.
[[nodiscard]] std::vector<Spelling> readSpellings(const std::filesystem::path& path,
                                                  Problems& problems);

/// Which spellings a source is held to.
enum class Spelled { Vietnamese, InBoth };

/// Reports the unused spellings in the lines of a source. Weekdays are held to their capital where
/// the English line above names the day: "thứ Năm" is Thursday, and "thứ năm" the fifth. An entry
/// of the dictionary may use the spelling of its head word.
void checkSpelling(std::string_view text, const std::string& file,
                   const std::vector<Spelling>& spellings, Spelled spelled, Problems& problems);

/// All sources of a content tree. English ones are not held to the list where lessons teach both.
void checkSpellings(const std::filesystem::path& source, Problems& problems);

} // namespace talvora::pack
