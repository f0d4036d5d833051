// The word list and its entries as the program's three files, and back.
#pragma once

#include "formats/Limits.h"
#include "pack/DictionarySource.h"
#include "pack/PackFile.h"
#include "pack/WordList.h"

#include <string_view>
#include <vector>

namespace talvora::pack {

/// The fixed number of lines of the word list.
inline constexpr std::size_t FullWordCount = limit::Words;

/// datatu.txt, data.mtd and data.avt.
[[nodiscard]] std::vector<PackFile> compileDictionary(const WordList& list);

/// The entries of a pack that hold Vietnamese senses of their own, without their forms.
[[nodiscard]] std::vector<OwnEntry> decodeOwnEntries(std::string_view words,
                                                     std::string_view records,
                                                     std::string_view entries, Problems& problems);

} // namespace talvora::pack
