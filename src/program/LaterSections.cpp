#include "program/LaterSections.h"

namespace talvora {

namespace {

constexpr Colour White = 0xFFFFFF;
constexpr int LessonsButton = 3;

} // namespace

LaterSections::LaterSections(Controls& controls, SharedState& state, Shell& shell)
    : controls_(controls), state_(state), shell_(shell) {
  for (Surface* surface : {&controls.RVP1, &controls.RN1})
    wire(*surface);
}

Surface& LaterSections::surfaceOf(int button) {
  return button == LessonsButton ? controls_.RVP1 : controls_.RN1;
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
  state_.places.MucMenu = button;
  opened_ = button;
  Surface& surface = surfaceOf(button);
  surface.Text("");
  controls_.Frame1.BackColor(White);
  shell_.transitions.MoRan(surface, controls_.Frame1);
}

} // namespace talvora
