// What a sentence and its translation must have in common, as far as a program can tell.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// What the two do not agree in: the question mark, the days of the week, the number words; and a
/// word that the English one has twice in a row. Both in UTF-8; empty when all is well.
[[nodiscard]] std::vector<std::string> translationFaults(std::string_view english,
                                                         std::string_view vietnamese);

/// What a sentence says of every week and its translation of one day: "On Fridays" as "thứ Sáu". A
/// text around it can tell which is meant, so this holds for a sentence that stands alone.
[[nodiscard]] std::vector<std::string> habitFaults(std::string_view english,
                                                   std::string_view vietnamese);

} // namespace talvora::pack
