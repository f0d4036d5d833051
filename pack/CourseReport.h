// What the lessons and banks hold, in a table.
#pragma once

#include "pack/CourseItems.h"
#include "pack/LessonSource.h"
#include "pack/WordList.h"

#include <string>

namespace talvora::pack {

/// A line for each bank and one for the lessons: items by kind, positions of the right answers, how
/// often the longest option is right, the mean length, the words without a Vietnamese sense, and
/// bank items without a lesson; then the lessons without a bank item. As UTF-8 lines.
[[nodiscard]] std::string courseReport(const ExerciseSource& exercises, const LessonSource& lessons,
                                       const WordList& list);

} // namespace talvora::pack
