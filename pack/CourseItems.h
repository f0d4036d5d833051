// The items of the course one after the other, with the sentences that a learner reads in them.
#pragma once

#include "pack/ExerciseSource.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// How many items a unit of a bank has.
inline constexpr std::size_t UnitSize = 25;

struct CourseItem {
  const Item* item = nullptr;
  std::optional<std::size_t> bank; ///< none for a lesson's item
  int lesson = 0;                  ///< its slot; 0 for a bank's item
  std::size_t place = 0;           ///< in its bank or lesson, from 0

  /// The unit of a bank, from 0; the last one takes the remainder.
  std::size_t unit = 0;
  /// The English words of the sentences with the right answers in them, in small letters.
  std::vector<std::string> words;
};

/// All items, the banks first. They point into the source.
[[nodiscard]] std::vector<CourseItem> courseItemsOf(const ExerciseSource& source);

/// "toefl", or "lessons" for all of these together.
[[nodiscard]] std::string_view groupOf(const CourseItem& item);

/// The English words of a line, in small letters; none of a line with Vietnamese letters.
[[nodiscard]] std::vector<std::string> englishWordsOf(std::string_view line);

/// Whether a line in the text font's bytes has Vietnamese letters.
[[nodiscard]] bool isVietnamese(std::string_view line);

} // namespace talvora::pack
