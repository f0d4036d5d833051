// The sources of the rule lessons: a title and a page of coloured lines, and the group headings.
#pragma once

#include "formats/Limits.h"
#include "pack/MarkedLine.h"
#include "pack/Problems.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// Number of slots in the list of lessons.
inline constexpr int LessonSlots = limit::Lessons;

struct Lesson {
  std::string title; ///< in the text font's bytes
  std::vector<MarkedLine> lines;
};

/// All lesson slots that have a source.
struct LessonSource {
  std::map<int, Lesson> lessons;
  std::map<int, std::string> headings;

  /// The slot of the lesson with a title.
  [[nodiscard]] std::optional<int> slotOf(std::string_view title) const;
  /// The titles of all lessons, in the order of their slots.
  [[nodiscard]] std::vector<std::string> titles() const;
};

/// Parses one lesson; what is wrong is reported.
[[nodiscard]] Lesson parseLesson(std::string_view text, const std::string& file,
                                 Problems& problems);

/// The slot of a file "NNN-name.txt" in the folder of lessons; empty when it has none.
[[nodiscard]] std::optional<int> lessonSlotOf(const std::filesystem::path& path);
/// Whether a file of the folder holds a lesson's items.
[[nodiscard]] bool holdsItems(const std::filesystem::path& path);

/// Reads a folder of lessons "NNN-slug.txt" and its "headings.txt"; the files with items are left
/// to the exercises.
[[nodiscard]] LessonSource readLessons(const std::filesystem::path& folder, Problems& problems);

/// The source of a lesson, as `parseLesson` reads it.
[[nodiscard]] std::string writeLesson(const Lesson& lesson);

} // namespace talvora::pack
