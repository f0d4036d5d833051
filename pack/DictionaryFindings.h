// What the dictionary of a content tree breaks, gathered with what its checks need.
#pragma once

#include "pack/Compiler.h"
#include "pack/DictionaryCheck.h"

#include <filesystem>
#include <string>
#include <vector>

namespace talvora::pack {

/// Where the word lists of the checks are installed.
struct CheckLists {
  std::filesystem::path vietnamese = "/usr/share/hunspell/vi_VN.dic";
  std::vector<std::filesystem::path> english = {"/usr/share/dict/british-english",
                                                "/usr/share/dict/british-english-huge",
                                                "/usr/share/dict/american-english-huge"};
};

/// The dictionary alone, without the databases: its own words and their forms, as far as the word
/// lists know them.
[[nodiscard]] std::vector<Finding> checkDictionaryAlone(const std::filesystem::path& source,
                                                        const CheckLists& lists,
                                                        Problems& problems);

/// Adds the findings to the problems.
void reportErrors(const std::vector<Finding>& findings, Problems& problems);

} // namespace talvora::pack
