// A source as the learner will see it: an item with its blanks and explanations, a lesson, a text,
// a question of a listening unit, an analysed stretch with what the panel says.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>

namespace talvora::pack {

/// What of a file is shown.
struct ShownPlace {
  std::filesystem::path file;
  int line = 0; ///< a line of the part wanted; 0 for all of the file
};

/// Reads "FILE" or "FILE:LINE".
[[nodiscard]] ShownPlace shownPlaceOf(const std::string& text);

/// The items, questions or stretches of a file, the lesson or the text, as UTF-8 lines; red stands
/// between "*". What is wrong with the source is reported.
[[nodiscard]] std::string show(const ShownPlace& place, Problems& problems);

} // namespace talvora::pack
