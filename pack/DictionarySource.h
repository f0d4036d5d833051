// The dictionary's own sources: head words with Vietnamese senses, examples and irregular forms.
#pragma once

#include "pack/Entry.h"
#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A block of a source: a head word and what is said of it.
struct OwnEntry {
  std::string head;
  EntryBlock block;
  Where where = {};
  bool formsFirst = false; ///< the spelling is met more often as a form of another head word
};

/// The alternatives that a listed form names: "learnt/learned" has two.
[[nodiscard]] std::vector<std::string> alternativesOf(std::string_view form);

/// Parses one source; what is wrong is reported.
[[nodiscard]] std::vector<OwnEntry> parseDictionary(std::string_view text, const std::string& file,
                                                    Problems& problems);

/// Reads a folder of sources. Two words of one spelling stand one behind the other; a head word
/// that stands twice in another way is reported.
[[nodiscard]] std::vector<OwnEntry> readDictionary(const std::filesystem::path& folder,
                                                   Problems& problems);

/// An entry as the sources write it.
[[nodiscard]] std::string writeEntry(const OwnEntry& entry);

} // namespace talvora::pack
