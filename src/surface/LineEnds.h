// Where lines end in a text: behind 13, 10, or 13 and 10 together.
#pragma once

#include <string_view>
#include <vector>

namespace talvora {

/// True when a line ends between two neighbouring characters; `behind` is 0 at the text's end.
[[nodiscard]] constexpr bool endsLine(char ahead, char behind) noexcept {
  return ahead == '\n' || (ahead == '\r' && behind != '\n');
}

/// Appends to `starts` the places inside the text where a line starts, each raised by `base`. The
/// text's two ends are left to those who know what lies beyond.
void appendLineStarts(std::string_view text, int base, std::vector<int>& starts);

/// The text without the line end at its end.
[[nodiscard]] std::string_view withoutLineEnd(std::string_view text) noexcept;

} // namespace talvora
