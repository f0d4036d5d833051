// The labels of the panel that explains a stretch of an analysed text, a field each.
#pragma once

#include "text/Vietnamese.h"

#include <array>
#include <string_view>

namespace talvora {

/// In the order of the fields; "&" opens a blue span of the panel. The last two fields read as one
/// sentence and share a line.
inline constexpr std::array<std::string_view, 7> AnalysisLabels = {
    "&Từ:"_x1,         "&Tự loại:"_x1,   "&Vị trí:"_x1,        "&Chức năng:"_x1,
    "&Y’cần viết:"_x1, "&Phải có từ"_x1, "ở vị trí này vì:"_x1};

} // namespace talvora
