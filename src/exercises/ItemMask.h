// The mask of an item: for each position of its text, what the learner may do there.
#pragma once

#include <string>
#include <string_view>

namespace talvora {

/// The mark of a position that is plain text.
inline constexpr char PlainText = '@';

/// Turns a text into its mask: outside the blanks every position becomes "@"; a blank, from its "*"
/// through the last "_" of its run, stays.
void TaoMatNa(std::string& mask);

/// A body as it is first shown: from each "*" up to the next "_" every character is a "_".
[[nodiscard]] std::string hideAnswers(std::string_view body);

/// The last position, from 1, of the stretch of a mask that begins at a position: the one ahead of
/// the next "@", or the mask's end.
[[nodiscard]] int stretchEnd(std::string_view mask, int position);

} // namespace talvora
