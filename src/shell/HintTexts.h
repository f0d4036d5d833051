// The texts of the hint bar, by surface.
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace talvora {

/// What decides between two hints of the same surface.
enum class HintCase { Always, Analysis, NotAnalysis, ItemJudged, ItemOpen };

/// The hint of one surface: two lines, or three; a line that is empty is not there.
struct Hint {
  std::string_view surface;
  HintCase when;
  std::array<std::string_view, 3> lines;
};

/// All hints in the order in which they are compared; the first match counts.
[[nodiscard]] std::span<const Hint> hintTexts();

} // namespace talvora
