// Whether the reading texts keep to the plan, and what the lists still leave open.
#pragma once

#include "pack/Planner.h"
#include "pack/ReadingSource.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A budget that a text breaks, and how.
struct OverBudget {
  Budget budget = Budget::Words;
  std::string line;
};

/// What a text does that its series does not allow; nothing for a text in no series.
[[nodiscard]] std::vector<OverBudget> overBudget(const Planner& planner, int slot);

/// Reports the texts outside a budget that their series holds, and counts those outside one that
/// it aims at: a line for each series with such texts.
[[nodiscard]] std::vector<std::string>
checkBudgets(const Planner& planner, const std::filesystem::path& folder, Problems& problems);

/// Tells of open slots that stand between texts, or that stand at the end without a heading of
/// their own ahead of them; up to `last` the list is one. Empty when all is in order.
[[nodiscard]] std::string openSlotNote(std::string_view name, const ReadingSource& texts, int last);

} // namespace talvora::pack
