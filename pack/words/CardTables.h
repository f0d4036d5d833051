// The learner's words as tables: for a spreadsheet, and for flash-card programs.
#pragma once

#include "pack/words/CardFields.h"

#include <string>
#include <vector>

namespace talvora::pack {

/// UTF-8 with a byte order mark, commas, and a row of headings: what spreadsheets open at a double
/// click.
[[nodiscard]] std::string commaTableOf(const std::vector<SpokenCard>& cards);

/// Fields parted by tabs, as HTML, below lines that tell a flash-card program what each column is.
[[nodiscard]] std::string cardTableOf(const std::vector<SpokenCard>& cards);

} // namespace talvora::pack
