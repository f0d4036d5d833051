// Dictionaries in the form of StarDict.
#pragma once

#include "pack/import/ImportedDictionary.h"

#include <string_view>

namespace talvora::pack {

/// The files of a dictionary, unpacked.
struct StarDictFiles {
  std::string_view info;      ///< ".ifo"
  std::string_view index;     ///< ".idx"
  std::string_view synonyms;  ///< ".syn"; empty without one
  std::string_view articles;  ///< ".dict"
  std::string_view indexName; ///< for what is wrong in it
};

[[nodiscard]] ImportedDictionary readStarDict(const StarDictFiles& files, Problems& problems);

} // namespace talvora::pack
