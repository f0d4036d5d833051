// What a content tree holds and what it still lacks.
#pragma once

#include "pack/Compiler.h"
#include "pack/Corpora.h"
#include "pack/WordCoverage.h"
#include "pack/WordList.h"

#include <filesystem>
#include <string>
#include <vector>

namespace talvora::pack {

/// The whole report, as UTF-8 lines.
[[nodiscard]] std::string statusReport(const Content& content, const WordList& list,
                                       const CoverageReport& coverage);

/// A line for each rule about words that `check` holds over the whole content, with how often it is
/// broken.
[[nodiscard]] std::string wordRulesReport(const std::filesystem::path& source,
                                          const Content& content, const WordList& list,
                                          const std::vector<Corpus>& corpora);

} // namespace talvora::pack
