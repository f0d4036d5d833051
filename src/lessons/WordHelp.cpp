#include "lessons/WordHelp.h"

#include "text/CharClass.h"
#include "text/WordForm.h"

namespace talvora {

void WordHelp::lookUpAtCaret(Surface& surface) {
  shell_.wordPick.ChonTuBT(surface);
  lookUp();
}

void WordHelp::lookUpShownWord(Surface& surface) {
  shell_.wordPick.takeShownWord(surface);
  lookUp();
}

void WordHelp::lookUp() {
  state_.atHand.dropMessage();
  if (!ChuanHoaTu(state_.word.TuHienTai).empty()) services_.dictionary.TraTu();
}

void WordHelp::showOnCtrl(int keyCode, int shift, Surface& surface) {
  if (keyCode != key::Ctrl || shift != shift::Ctrl) return;
  if (controls_.RDOS.Top() == 0) shell_.hints.AnRDOS(surface);
  if (!controls_.RDOS.Visible()) services_.vietnameseSide.showOnCtrl(keyCode, shift, surface);
}

void WordHelp::closeWithoutCtrl(int shift, Surface& surface) {
  services_.vietnameseSide.closeWithoutCtrl(shift, surface);
}

void WordHelp::releaseKey(int shift, Surface& surface) {
  shell_.gestures.keyReleased();
  if (!state_.word.DaChonRTD) hidePopup();
  closeWithoutCtrl(shift, surface);
}

bool WordHelp::openListOn(int keyAscii) {
  if (!Letters.has(chr(keyAscii))) return false;
  services_.dictionary.MoDanhSachTu(chr(keyAscii));
  return true;
}

void WordHelp::hidePopup() {
  controls_.Rnen.Visible(false);
  controls_.RHD.Visible(false);
}

} // namespace talvora
