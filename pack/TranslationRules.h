// What a sentence and its translation must have in common, as far as a program can tell.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// What stands around a sentence.
enum class Surroundings {
  Text, ///< which can tell what the translation leaves open
  None
};

/// What the two do not agree in: the question mark, the days of the week, the number words, whose
/// a thing is; and a word that the English one has twice in a row. A sentence that stands alone
/// also says of every week what its English does: "On Fridays" is not one Friday. Both in UTF-8;
/// empty when all is well.
[[nodiscard]] std::vector<std::string>
translationFaults(std::string_view english, std::string_view vietnamese, Surroundings surroundings);

} // namespace talvora::pack
