// Which course the learner's merged dictionary was made with: another one has entries that it
// lacks.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace talvora::pack {

/// Beside the merged dictionary: the mark of the course that it was made with.
inline constexpr std::string_view MergedCourseFile = "course.txt";

/// A name for the dictionary of a pack, which changes with any byte of it; empty where there is
/// none.
[[nodiscard]] std::string courseMark(const std::filesystem::path& pack);

/// True when the learner's folder has a merged dictionary that was made with another course than
/// the pack's, or nobody knows with which.
[[nodiscard]] bool isMergedWithAnother(const std::filesystem::path& learner,
                                       const std::filesystem::path& pack);

/// What to tell then.
[[nodiscard]] std::string mergedWithAnother();

} // namespace talvora::pack
