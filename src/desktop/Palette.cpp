#include "desktop/Palette.h"

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

} // namespace

QColor colourOf(Colour colour) {
  if ((colour & SystemColour) != 0) return QColor(systemColour(colour & ~SystemColour));
  if (colour == PureRed) return QColor(DeepRed);
  return {static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
          static_cast<int>((colour >> 16) & 0xFF)};
}

} // namespace talvora
