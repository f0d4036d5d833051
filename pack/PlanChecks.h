// Whether the reading texts keep to the plan, and what the lists still leave open.
#pragma once

#include "pack/Planner.h"
#include "pack/ReadingSource.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// What a text does that its series does not allow, a line each; none for a text in no series.
[[nodiscard]] std::vector<std::string> overBudget(const Planner& planner, int slot);

/// Reports the texts of series that hold their budgets, and counts those of series that aim at
/// them: a line for each such series with a text outside its budget.
[[nodiscard]] std::vector<std::string>
checkBudgets(const Planner& planner, const std::filesystem::path& folder, Problems& problems);

/// Tells of open slots that stand between texts, or that stand at the end without a heading of
/// their own ahead of them; up to `last` the list is one. Empty when all is in order.
[[nodiscard]] std::string openSlotNote(std::string_view name, const ReadingSource& texts, int last);

} // namespace talvora::pack
