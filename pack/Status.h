// What a content tree holds and what it still lacks.
#pragma once

#include "pack/Compiler.h"
#include "pack/WordCoverage.h"
#include "pack/WordList.h"

#include <string>

namespace talvora::pack {

/// The whole report, as UTF-8 lines.
[[nodiscard]] std::string statusReport(const Content& content, const WordList& list,
                                       const CoverageReport& coverage);

} // namespace talvora::pack
