#include "program/LaterSections.h"

#include "text/Bytes.h"

namespace talvora {

namespace {

constexpr Colour White = 0xFFFFFF;
constexpr int SettingsButton = 8;
constexpr int VocabularyButton = 2;

} // namespace

LaterSections::LaterSections(Controls& controls, SharedState& state, Stores& stores, Shell& shell)
    : controls_(controls), state_(state), stores_(stores), shell_(shell) {
  for (Surface* surface : {&controls.RVP1, &controls.RN1, &controls.RAmthanh}) wire(*surface);
}

Surface& LaterSections::surfaceOf(int button) {
  switch (button) {
  case 3:
    return controls_.RVP1;
  case SettingsButton:
    return controls_.RAmthanh;
  default:
    return controls_.RN1;
  }
}

void LaterSections::wire(Surface& surface) {
  surface.KeyDown = [this, &surface](int& KeyCode, int) {
    shell_.hints.showOnF2(KeyCode, surface);
  };
  surface.KeyUp = [this](int&, int) { shell_.gestures.keyReleased(); };
  surface.KeyPress = [this, &surface](int& KeyAscii) {
    const int pressed = KeyAscii;
    KeyAscii = 0;
    if (pressed != key::Esc || shell_.gestures.DongPhu(surface)) return;
    shell_.transitions.DongRan(surface, controls_.Frame1);
    focusButton(opened_);
  };
}

void LaterSections::open(int button) {
  // The settings leave the number of the section before them standing.
  if (button != SettingsButton) state_.places.MucMenu = button;
  if (button == VocabularyButton) {
    stores_.ChonKho(file::TextPositions);
    shell_.messages.ThongBao("Bän chŸa chön tÙ vÜng trong bài ðöc."_bytes, 2000);
    return;
  }
  opened_ = button;
  Surface& surface = surfaceOf(button);
  surface.Text("");
  controls_.Frame1.BackColor(White);
  shell_.transitions.MoRan(surface, controls_.Frame1);
}

} // namespace talvora
