// The dictionary's own sources: head words with Vietnamese senses, examples and irregular forms.
#pragma once

#include "pack/Entry.h"
#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

struct OwnEntry {
  std::string head;
  std::vector<Sense> senses;
  std::vector<std::string> forms; ///< irregular ones, as the source lists them
  Where where;
};

/// Parses one source; what is wrong is reported.
[[nodiscard]] std::vector<OwnEntry> parseDictionary(std::string_view text, const std::string& file,
                                                    Problems& problems);

/// Reads a folder of sources; a head word that stands twice is reported.
[[nodiscard]] std::vector<OwnEntry> readDictionary(const std::filesystem::path& folder,
                                                   Problems& problems);

/// An entry as the sources write it.
[[nodiscard]] std::string writeEntry(const OwnEntry& entry);

} // namespace talvora::pack
