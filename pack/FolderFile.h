// All that a learner owns as one file, an archive of the zip form: it goes from one machine to
// another, and to a browser and back. It speaks Vietnamese, in UTF-8, for it is the learner who
// asks.
#pragma once

#include "pack/LearnersList.h"
#include "pack/ZipFile.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace talvora::pack {

/// What such a file may hold; more is none.
inline constexpr ZipLimits folderLimits = {5000, std::size_t{64} << 20};

/// Whether a file of that name belongs to what a learner owns and travels: a path below the
/// learner's folder.
[[nodiscard]] bool travels(std::string_view name);

/// What of an archive travels, by name; what does not is passed over. Nothing, and why, where there
/// is no list of words in it, or it cannot be read.
struct FolderContent {
  std::optional<std::map<std::string, std::string>> files;
  std::string problem;
};
[[nodiscard]] FolderContent folderContentOf(std::string_view archive);

/// Writes the folder into a file.
[[nodiscard]] ListResult exportFolder(const LearnersList& list, const std::string& file,
                                      std::ostream& out);
/// Puts what a file holds in place of what is in the folder. The words that were there are kept as
/// a dated copy.
[[nodiscard]] ListResult importFolder(const LearnersList& list, const std::string& file,
                                      std::ostream& out);

} // namespace talvora::pack
