// The sentence analyses as the program's pair of files, and back.
#pragma once

#include "pack/AnalysisSource.h"
#include "pack/ReadingStore.h"

#include <string_view>

namespace talvora::pack {

/// Every slot filled: analyses, and slots still open.
[[nodiscard]] TextStore compileAnalysisTexts(const AnalysisSource& source);

/// The analyses of a store; open slots are left out. Problems name the record that cannot be read.
[[nodiscard]] AnalysisSource decodeAnalyses(std::string_view positions, std::string_view stream,
                                            Problems& problems);

} // namespace talvora::pack
