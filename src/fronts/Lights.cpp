#include "fronts/Lights.h"

#include <algorithm>
#include <cmath>

namespace talvora {

namespace {

constexpr Colour SystemColour = 0x80000000;
constexpr Colour PureRed = 0x0000FF;
constexpr Light DeepRed = 0xC40808; // pure red could not be read well on white
constexpr Light White = 0xFFFFFF;
constexpr Light Black = 0x000000;

Light systemLight(Colour number) {
  switch (number) {
  case 0x00: // scroll bar: the warm grey behind a list
    return 0xECE8E0;
  case 0x01: // desktop
    return 0x24424D;
  case 0x02: // active caption
  case 0x0D: // selection
    return 0x2C5A77;
  case 0x05: // window
  case 0x09: // caption text
  case 0x0E: // text of a selection
  case 0x14: // lit edge of a button
    return White;
  case 0x04: // menu
  case 0x0F: // face of a button
  case 0x16:
    return 0xF0EEE9;
  case 0x03: // inactive caption
  case 0x0C: // space between windows
  case 0x10: // shaded edge of a button
  case 0x11: // greyed text
    return 0x5F6468;
  case 0x13: // the paper of the dictionary popup
    return 0xFBF4E2;
  case 0x18: // tip
    return 0xFFFBE6;
  default: // text and frames of windows
    return 0x1B1B1B;
  }
}

double part(Light light, unsigned place) {
  return static_cast<double>(light >> place & 0xFFU) / 255;
}

double strengthOf(double share) {
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminanceOf(Light light) {
  return 0.2126 * strengthOf(part(light, 16)) + 0.7152 * strengthOf(part(light, 8)) +
         0.0722 * strengthOf(part(light, 0));
}

Light mixed(Light one, Light other, double share) {
  Light result = 0;
  for (const unsigned place : {16U, 8U, 0U}) {
    const double value = part(one, place) + (part(other, place) - part(one, place)) * share;
    result |= static_cast<Light>(std::lround(value * 255)) << place;
  }
  return result;
}

} // namespace

double contrastOf(Light one, Light other) {
  const double first = luminanceOf(one) + 0.05;
  const double second = luminanceOf(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

Light readableOn(Light text, Light back) {
  constexpr double Least = 4.5;
  constexpr int Steps = 20;
  if (contrastOf(text, back) >= Least) return text;
  const Light end = contrastOf(White, back) > contrastOf(Black, back) ? White : Black;
  for (int step = 1; step < Steps; ++step) {
    const Light tone = mixed(text, end, static_cast<double>(step) / Steps);
    if (contrastOf(tone, back) >= Least) return tone;
  }
  return end;
}

Light lightOf(Colour colour) {
  if ((colour & SystemColour) != 0) return systemLight(colour & ~SystemColour);
  if (colour == PureRed) return DeepRed;
  return (colour & 0xFFU) << 16U | (colour & 0xFF00U) | (colour >> 16U & 0xFFU);
}

} // namespace talvora
