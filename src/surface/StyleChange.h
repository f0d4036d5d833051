// Which attributes of characters or of paragraphs are to become others; the rest stay as they are.
#pragma once

#include "platform/TextStyle.h"

#include <optional>
#include <string>

namespace talvora {

/// The text between two carets.
struct TextRange {
  int from = 0;
  int to = 0;
};

struct StyleChange {
  std::optional<Colour> color = {};
  std::optional<bool> bold = {};
  std::optional<bool> italic = {};
  std::optional<bool> underline = {};
  std::optional<bool> protectedText = {};
  std::optional<double> fontSize = {}; ///< in points
  std::optional<std::string> fontName = {};

  void applyTo(CharStyle& style) const {
    style.color = color.value_or(style.color);
    style.font.bold = bold.value_or(style.font.bold);
    style.italic = italic.value_or(style.italic);
    style.underline = underline.value_or(style.underline);
    style.protectedText = protectedText.value_or(style.protectedText);
    style.font.size = fontSize.value_or(style.font.size);
    if (fontName) style.font.name = *fontName;
  }
};

struct ParagraphChange {
  std::optional<Alignment> align = {};
  std::optional<double> indent = {}; ///< in twips
  std::optional<bool> bullet = {};

  void applyTo(ParagraphStyle& style) const {
    style.align = align.value_or(style.align);
    style.indent = indent.value_or(style.indent);
    style.bullet = bullet.value_or(style.bullet);
  }
};

} // namespace talvora
