// The line of words that the ordering drill puts in order, as plain text.
#pragma once

#include "platform/Random.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// A text without everything but letters, blanks and apostrophes.
[[nodiscard]] std::string lineOf(std::string_view text);

/// The words of a sentence in a new order, as a line with an ending blank. The first word keeps its
/// place; the second changes, unless the sentence allows no other order.
[[nodiscard]] std::string shuffledLine(std::string_view sentence, Random& random);

/// Length of the right beginning of a line, in whole words with their blanks; the whole length for
/// a finished line. `model` is the sentence as a line; capital letters do not matter.
[[nodiscard]] int rightBeginning(std::string_view model, std::string_view line);

} // namespace talvora
