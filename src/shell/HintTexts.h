// The texts of the hint bar, by surface.
#pragma once

#include <string_view>
#include <vector>

namespace talvora {

/// What decides between two hints of the same surface.
enum class HintCase { Always, Analysis, NotAnalysis, ItemJudged, ItemOpen };

/// The hint of one surface: two lines, or three.
struct Hint {
  std::string_view surface;
  HintCase when;
  std::vector<std::string_view> lines;
};

/// All hints in the order in which they are compared; the first match counts.
[[nodiscard]] const std::vector<Hint>& hintTexts();

} // namespace talvora
