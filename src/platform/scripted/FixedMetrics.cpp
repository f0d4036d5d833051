#include "platform/scripted/FixedMetrics.h"

#include "text/Rounding.h"

namespace talvora {

int fixedCharWidth(const FontSpec& font) {
  return Round(10 * font.size);
}

int fixedLineHeight(const FontSpec& font) {
  return Round(30 * font.size);
}

int FixedMetrics::TextWidth(std::string_view text, const FontSpec& font) const {
  return static_cast<int>(text.size()) * fixedCharWidth(font);
}

int FixedMetrics::TextHeight(std::string_view /*text*/, const FontSpec& font) const {
  return fixedLineHeight(font);
}

} // namespace talvora
