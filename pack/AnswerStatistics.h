// Where the right answers of choices stand, and what else a learner could guess them by.
#pragma once

#include "pack/CourseItems.h"

#include <array>
#include <vector>

namespace talvora::pack {

/// Of some items, those with four options.
struct AnswerStatistics {
  std::array<std::size_t, 4> positions{}; ///< right answers by position
  std::size_t choices = 0;
  std::size_t longestRight = 0; ///< the right option is longer than each other one
  std::size_t withPhrase = 0;   ///< choices with a blue phrase
  std::size_t phraseRight = 0;  ///< the blue phrase is the right option
};

/// Counts an item.
void countAnswer(AnswerStatistics& statistics, const Item& item);

/// The blue phrase of a choice, or nothing.
[[nodiscard]] std::string bluePhraseOf(const Item& item);

} // namespace talvora::pack
