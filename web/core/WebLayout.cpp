#include "core/WebLayout.h"

#include <cmath>

namespace talvora::web {

double WebTextMetrics::widthOf(std::string_view text, const FontSpec& font) const {
  constexpr int Endless = 1 << 24;
  CharStyle style;
  style.font = font;
  const StyleRun run{0, &style};
  const ParagraphView view{text, {&run, 1}, {}, font, Endless};
  return Paragraph(faces_, view, 0).width();
}

int WebTextMetrics::TextWidth(std::string_view text, const FontSpec& font) const {
  return static_cast<int>(std::ceil(widthOf(text, font)));
}

int WebTextMetrics::TextHeight(std::string_view, const FontSpec& font) const {
  return static_cast<int>(std::ceil(faces_.lineHeight(faceOf(font, false), sizeOf(font))));
}

} // namespace talvora::web
