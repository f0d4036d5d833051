#include "desktop/Palette.h"

#include "fronts/Lights.h"

namespace talvora {

namespace {

Light lightOf(const QColor& colour) {
  constexpr QRgb WithoutAlpha = 0xFFFFFF;
  return colour.rgb() & WithoutAlpha;
}

} // namespace

QColor colourOf(Colour colour) {
  return QColor(static_cast<QRgb>(lightOf(colour)));
}

double contrastOf(const QColor& one, const QColor& other) {
  return contrastOf(lightOf(one), lightOf(other));
}

QColor readableOn(const QColor& text, const QColor& back) {
  return QColor(static_cast<QRgb>(readableOn(lightOf(text), lightOf(back))));
}

} // namespace talvora
