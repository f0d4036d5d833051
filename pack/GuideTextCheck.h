// The guide text answers by places: what its source marks must stay where the program looks.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace talvora::pack {

/// The line ahead of the paragraph with the practice sentences.
inline constexpr std::string_view PracticeMark = "// place: practice";
/// The line ahead of the paragraph whose words are to be looked up behind these; it names the first
/// of them.
inline constexpr std::string_view WordsMark = "// place: words";
/// The line ahead of the title, which is greyed in the list of the analysed texts.
inline constexpr std::string_view GreyedMark = "// place: greyed";

/// Reports what a guide text's source marks and does not lie where it must, and what is not marked
/// though the text reaches that far. `lineAhead` is the line of text 1 in the lists, with its line
/// end.
void checkGuideText(std::string_view source, const std::string& file, std::string_view lineAhead,
                    Problems& problems);

/// Checks the guide text of a folder of reading texts, when there is one.
void checkGuideTextIn(const std::filesystem::path& folder, Problems& problems);

} // namespace talvora::pack
