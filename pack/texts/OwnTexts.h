// The learner's own texts: their sources in the learner's folder, and the file that the program
// opens together with the course. `talvora-pack text`. It speaks Vietnamese, for it is the learner
// who asks.
#pragma once

#include "pack/LearnersList.h"

#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

namespace talvora::pack {

/// Adds the texts of files behind those that are there: all of them or none.
[[nodiscard]] ListResult addTexts(const std::string& learner,
                                  const std::vector<std::filesystem::path>& files,
                                  std::ostream& out);
/// Tells the texts with their numbers.
[[nodiscard]] ListResult listTexts(const std::string& learner, std::ostream& out);
/// Takes texts away by their numbers; words that were taken from them keep their sentences.
[[nodiscard]] ListResult removeTexts(const std::string& learner, const std::vector<int>& numbers,
                                     std::ostream& out);
/// Makes the program's file anew, after somebody has changed a source.
[[nodiscard]] ListResult refreshTexts(const std::string& learner, std::ostream& out);

} // namespace talvora::pack
