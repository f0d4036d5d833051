// The guide text answers by places: its practice sentences must stay where the program looks.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace talvora::pack {

/// The line ahead of the paragraph with the practice sentences.
inline constexpr std::string_view PracticeMark = "// place: practice";

/// Reports a practice paragraph of a guide text's source that does not lie where it must, or is not
/// marked though the text reaches that far.
void checkGuideText(std::string_view source, const std::string& file, Problems& problems);

/// Checks the guide text of a folder of reading texts, when there is one.
void checkGuideTextIn(const std::filesystem::path& folder, Problems& problems);

} // namespace talvora::pack
