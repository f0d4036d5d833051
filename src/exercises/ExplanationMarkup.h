// The markup of an explanation: red words, blue stretches, links to lessons.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// A stretch of an explanation's shown text.
struct ExplanationSpan {
  int start = 0; ///< caret ahead of it
  int length = 0;

  friend bool operator==(const ExplanationSpan&, const ExplanationSpan&) = default;
};

struct ExplanationText {
  std::string text; ///< as shown
  std::vector<ExplanationSpan> blue;
  std::vector<ExplanationSpan> links;
  std::vector<ExplanationSpan> red;
};

/// Lays an explanation out: its first character, which is a line end, is dropped, and so are the
/// marks and superfluous blanks. "`" opens a link, "&" a blue stretch, "#" a red one. At most 300
/// spans of a kind are kept.
[[nodiscard]] ExplanationText layOutExplanation(std::string_view text);

} // namespace talvora
