// Text with its formatting as a plain value: what one surface gives to another, what a rich-text
// file holds, what a test compares.
#pragma once

#include "platform/TextStyle.h"

#include <string>
#include <vector>

namespace talvora {

/// A stretch of equally styled characters, between two carets.
struct StyledRun {
  int from = 0;
  int to = 0;
  CharStyle style;

  friend bool operator==(const StyledRun&, const StyledRun&) = default;
};

/// A paragraph between two carets, its line end included.
struct StyledParagraph {
  int from = 0;
  int to = 0;
  ParagraphStyle style;

  friend bool operator==(const StyledParagraph&, const StyledParagraph&) = default;
};

/// Runs and paragraphs cover the text without gaps, in order.
struct StyledText {
  std::string text;
  std::vector<StyledRun> runs;
  std::vector<StyledParagraph> paragraphs;
};

} // namespace talvora
