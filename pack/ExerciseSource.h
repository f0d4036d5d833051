// The sources of all exercise items: nine banks, and the items of the lessons.
#pragma once

#include "formats/Limits.h"
#include "pack/ItemSource.h"
#include "pack/LessonSource.h"

#include <array>
#include <filesystem>
#include <map>
#include <set>
#include <string_view>
#include <vector>

namespace talvora::pack {

inline constexpr std::size_t BankCount = limit::Banks;
/// The folder names of the banks, in the order of their buttons.
inline constexpr std::array<std::string_view, BankCount> BankNames = {
    "articles", "conditional",      "tense",       "preposition", "test-a", "test-b",
    "toefl",    "toefl-vocabulary", "b-vocabulary"};

struct ExerciseSource {
  std::array<std::vector<Item>, BankCount> banks;
  std::map<int, std::vector<Item>> lessons; ///< by slot

  /// The slots of the lessons that have items.
  [[nodiscard]] std::set<int> lessonsWithItems() const;
};

/// Reads the banks below `content`/exercises and the files "NNN-items.txt" below `content`/lessons,
/// and checks their references to lessons.
[[nodiscard]] ExerciseSource readExercises(const std::filesystem::path& content,
                                           const LessonSource& lessons, Problems& problems);

} // namespace talvora::pack
