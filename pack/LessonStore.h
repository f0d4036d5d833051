// The rule lessons as the program's pair of files, and back.
#pragma once

#include "pack/LessonSource.h"
#include "pack/ReadingStore.h"

#include <set>
#include <string_view>

namespace talvora::pack {

/// Every slot filled: lessons, headings, and slots still open. The lessons with items can be
/// marked.
[[nodiscard]] TextStore compileLessons(const LessonSource& source, const std::set<int>& withItems);

/// The lessons and headings of a store; open slots are left out.
/// Problems name the lesson at which a damaged store cannot be read.
[[nodiscard]] LessonSource decodeLessons(std::string_view positions, std::string_view stream,
                                         Problems& problems);

} // namespace talvora::pack
