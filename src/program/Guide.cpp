#include "program/Guide.h"

#include "formats/PackFiles.h"
#include "surface/SectionNumbers.h"
#include "text/Text.h"

#include <utility>

namespace talvora {

Guide::Guide(ProgramControls& controls, const SharedState& state, const Stores& stores,
             Shell& shell)
    : controls_(controls), state_(state), stores_(stores), shell_(shell) {
  wireEvents();
}

void Guide::open() {
  Surface& Rcachhoc = controls_.Rcachhoc;
  Rcachhoc.FontSize(state_.measures.CoChu);
  Rcachhoc.TabIndex(Controls::ButtonCount + 1);
  Rcachhoc.Locked(false);
  Rcachhoc.LoadFile(stores_.holdPage(packfile::Guide));
  shell_.transitions.MoRan(Rcachhoc, controls_.Frame1);
  shell_.curtain.KeoMan(Rcachhoc);
}

void Guide::wireEvents() {
  Surface& Rcachhoc = controls_.Rcachhoc;
  shell_.pages.add({.surface = Rcachhoc});
  Rcachhoc.KeyDown = [&Rcachhoc, this](int& KeyCode, int) {
    shell_.hints.showOnF2(KeyCode, Rcachhoc);
    // The guide is not locked, but nothing in it is the learner's to delete.
    if (KeyCode == key::Delete) KeyCode = 0;
  };
  Rcachhoc.KeyPress = [&Rcachhoc, this](int& KeyAscii) {
    const int pressed = std::exchange(KeyAscii, 0);
    if (pressed != key::Esc) return;
    shell_.transitions.DongRan(Rcachhoc, controls_.Frame1);
    controls_.but(section::Guide).SetFocus();
  };
  Rcachhoc.KeyUp = [this](int&, int) { shell_.gestures.keyReleased(); };
}

} // namespace talvora
