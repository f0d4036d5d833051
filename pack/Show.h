// A source as the learner will see it: an item with its blanks and explanations, a lesson, a text,
// a question of a listening unit, an analysed stretch with what the panel says, an entry of the
// dictionary.
#pragma once

#include "pack/Problems.h"
#include "pack/ShownPlace.h"

#include <string>

namespace talvora::pack {

/// The items, questions, stretches or entries of a file, the lesson or the text, as UTF-8 lines;
/// red stands between "*". What is wrong with the source is reported.
[[nodiscard]] std::string show(const ShownPlace& place, Problems& problems);

} // namespace talvora::pack
