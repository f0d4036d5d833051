// The exercise items as the program's files, and back.
#pragma once

#include "pack/ExerciseSource.h"
#include "pack/PackFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// The files of the items: data.vbt, data.bt, data.Muc. Every reference must resolve.
[[nodiscard]] std::vector<PackFile> compileExercises(const ExerciseSource& source,
                                                     const LessonSource& lessons);

/// The store's three files.
struct ExerciseFiles {
  std::string_view positions;
  std::string_view stream;
  std::string_view counts;
};

/// The items of a store; those without a question are left out.
/// Problems name the item at which a damaged store cannot be read.
[[nodiscard]] ExerciseSource decodeExercises(const ExerciseFiles& files,
                                             const LessonSource& lessons, Problems& problems);

} // namespace talvora::pack
