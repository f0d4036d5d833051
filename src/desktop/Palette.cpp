#include "desktop/Palette.h"

#include <algorithm>
#include <cmath>

namespace talvora {

namespace {

constexpr Colour SystemColour = 0x80000000;
constexpr Colour PureRed = 0x0000FF;
constexpr QRgb DeepRed = 0xFFC40808;

QRgb systemColour(Colour number) {
  switch (number) {
  case 0x00: // scroll bar: the warm grey behind a list
    return 0xFFECE8E0;
  case 0x01: // desktop
    return 0xFF24424D;
  case 0x02: // active caption
    return 0xFF2C5A77;
  case 0x03: // inactive caption: text that is greyed and still to be read
    return 0xFF5F6468;
  case 0x05: // window
  case 0x09: // caption text
  case 0x0E: // text of a selection
  case 0x14: // lit edge of a button
    return 0xFFFFFFFF;
  case 0x0D: // selection
    return 0xFF2C5A77;
  case 0x04: // menu
  case 0x0F: // face of a button
  case 0x16:
    return 0xFFF0EEE9;
  case 0x0C: // space between windows
  case 0x10: // shaded edge of a button
  case 0x11: // greyed text
    return 0xFF5F6468;
  case 0x13: // inactive caption text: the paper of the dictionary popup
    return 0xFFFBF4E2;
  case 0x18: // tip
    return 0xFFFFFBE6;
  default: // text and frames of windows
    return 0xFF1B1B1B;
  }
}

/// The light of one part of a colour, from 0 to 1.
double lightOf(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminanceOf(const QColor& colour) {
  return 0.2126 * lightOf(colour.redF()) + 0.7152 * lightOf(colour.greenF()) +
         0.0722 * lightOf(colour.blueF());
}

QColor mixed(const QColor& one, const QColor& other, double part) {
  const auto mix = [part](int from, int to) { return qRound(from + (to - from) * part); };
  return {mix(one.red(), other.red()), mix(one.green(), other.green()),
          mix(one.blue(), other.blue())};
}

} // namespace

double contrastOf(const QColor& one, const QColor& other) {
  const double first = luminanceOf(one) + 0.05;
  const double second = luminanceOf(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

QColor readableOn(const QColor& text, const QColor& back) {
  constexpr double Least = 4.5;
  constexpr int Steps = 20;
  if (contrastOf(text, back) >= Least) return text;
  const bool onDark = contrastOf(Qt::white, back) > contrastOf(Qt::black, back);
  const QColor end = onDark ? Qt::white : Qt::black;
  for (int step = 1; step < Steps; ++step) {
    const QColor tone = mixed(text, end, static_cast<double>(step) / Steps);
    if (contrastOf(tone, back) >= Least) return tone;
  }
  return end;
}

QColor colourOf(Colour colour) {
  if ((colour & SystemColour) != 0) return QColor(systemColour(colour & ~SystemColour));
  if (colour == PureRed) return QColor(DeepRed);
  return {static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
          static_cast<int>((colour >> 16) & 0xFF)};
}

} // namespace talvora
