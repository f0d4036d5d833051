// The forms under which words are compared and reduced. The word list is searched with them, and
// the pack compiler sorts it by them.
#pragma once

#include <string>
#include <string_view>

namespace talvora {

/// The normal form of a line of the word list, in which lines are compared: a text of at most one
/// character is only trimmed; a longer one is lower-cased, loses one leading "'", "(" or "/", and
/// keeps of its characters those of "[a-z,A-Z,'. àáèéèóõêâ]". Each other one becomes a blank,
/// unless it stands at the start or behind a blank.
[[nodiscard]] std::string ChuanHoaTu(std::string_view line);

/// The word after the three suffix rules, in lower case: "ies" gives "y", "ing" gives "e", "ied"
/// gives "y"; each rule needs more than three characters.
[[nodiscard]] std::string RutGonDuoi(std::string_view word);

} // namespace talvora
