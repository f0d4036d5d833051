// Text measures that need no font: every character of a size is equally wide.
#pragma once

#include "platform/TextMetrics.h"

namespace talvora {

/// Width of a character in a font, in twips: 10 times the size in points.
[[nodiscard]] int fixedCharWidth(const FontSpec& font);
/// Height of a line in a font, in twips: 30 times the size in points.
[[nodiscard]] int fixedLineHeight(const FontSpec& font);

class FixedMetrics final : public TextMetrics {
 public:
  [[nodiscard]] int TextWidth(std::string_view text, const FontSpec& font) const override;
  [[nodiscard]] int TextHeight(std::string_view text, const FontSpec& font) const override;
};

} // namespace talvora
