// Dictionaries that a learner brings: `talvora-pack import`.
#pragma once

#include "pack/LearnersList.h"
#include "pack/import/MergedDictionary.h"

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

struct ImportWish {
  std::vector<std::filesystem::path> dictionaries;
  MergeOrder order = MergeOrder::OwnFirst;
  std::string pack;    ///< the course
  std::string learner; ///< the folder of what the learner owns
};

/// Is told the name of each step as it begins.
using ImportProgress = std::function<void(std::string_view step)>;

/// Puts the course's dictionary, merged with others, into the learner's folder, where the program
/// takes it from then on; what was brought earlier goes. When anything is wrong nothing changes.
[[nodiscard]] ListResult importDictionaries(const ImportWish& wish, std::ostream& out,
                                            const ImportProgress& progress);
/// Takes the merged dictionary away: the course's own is used again.
[[nodiscard]] ListResult removeImported(const std::string& learner, std::ostream& out);
/// Tells what the learner's dictionary is merged of, and whether with another course than the one
/// of the pack, which may be empty.
[[nodiscard]] ListResult showImported(const std::string& learner, const std::string& pack,
                                      std::ostream& out);

} // namespace talvora::pack
