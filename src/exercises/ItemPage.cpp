#include "exercises/ItemPage.h"

#include "exercises/ItemMask.h"
#include "surface/Looks.h"

#include <utility>

namespace talvora {

ItemPage::ItemPage(Surface& surface, ItemServices& services, HeadingAnswers headingAnswers)
    : surface_(surface), services_(services), headingAnswers_(headingAnswers) {
  surface.MouseMove = [this](int, SurfacePoint at) { moveMouse(at); };
  surface.MouseDown = [this](MouseButton, int, SurfacePoint) {
    services_.answer.restore(surface_);
  };
}

void ItemPage::addToShell(KindInShell page) {
  Shell& shell = services_.shell;
  shell.pages.add({.surface = surface_,
                   .textFont = true,
                   .font = FontStep::Same,
                   .parked = Parked::BelowTheScreen,
                   .pointerName = page.pointerName,
                   .hints = std::move(page.hints)});
  shell.gestures.onClose(page.closing, surface_,
                         [this](Surface&) { services_.run.ThoatBT(surface_); });
  // Items that nothing is typed into get back what a look-up has taken from them.
  shell.focusReturn.onReturnTo(page.focus, surface_);
}

void ItemPage::begin() {
  services_.item.KetQuaCau = 0;
  services_.state.atHand.keepCaret(0);
  surface_.Text("");
  surface_.SelBold(services_.state.measures.largeScreen());
  surface_.SelIndent(look::BodyIndent);
  surface_.SelColor(look::Body);
}

void ItemPage::writeFoot() {
  surface_.SelIndent(0);
  surface_.SelAlignment(Alignment::Centred);
  surface_.SelBold(true);
  services_.item.links = writeLinks(surface_, look::Red);
}

void ItemPage::writeHidden(const std::string& text) {
  begin();
  ItemState& item = services_.item;
  const std::string head = item.DeMuc + "\r\r";
  item.MatNa = head + text + "\r<Next>";
  item.CauHienThi = head + hideAnswers(text) + "\r";
  TaoMatNa(item.MatNa);
  surface_.SelText(item.CauHienThi);
  writeFoot();
  item.CauHienThi += "<Back>    <Next>";
}

void ItemPage::goTo(int caret) {
  // The way leads over the top, so that the page is scrolled no further than the caret asks for.
  surface_.SelStart(0);
  surface_.SelStart(caret);
  services_.state.atHand.keepCaret(surface_.SelStart());
}

void ItemPage::goToFirstMark() {
  const auto mark = services_.item.CauHienThi.find('_');
  goTo(mark == std::string::npos ? 0 : static_cast<int>(mark) + 1);
}

// -- Keys.

void ItemPage::pressKey(int& keyCode, int shift) {
  const bool ctrlAlone = keyCode == key::Ctrl && shift == shift::Ctrl;
  if (!ctrlAlone && keyCode != key::Esc) closeExtras();
  services_.shell.hints.showOnF2(keyCode, surface_);
  pressCtrl(keyCode, shift);
  if (keyCode != key::Esc) return;
  keyCode = 0;
  pressEsc();
}

void ItemPage::pressCtrl(int keyCode, int shift) {
  const int p = position();
  if (services_.item.maskAt(p) != PlainText) return;
  if (headingAnswers_ == HeadingAnswers::Yes || services_.item.pastHeading(p)) {
    services_.words.showOnCtrl(keyCode, shift, surface_);
  }
}

void ItemPage::pressEsc() {
  const ExerciseControls& controls = services_.controls;
  if (services_.shell.pages.pageOverPage()) {
    services_.shell.gestures.DongPhu(surface_);
    return;
  }
  const bool somethingOver =
      controls.RDOS.Visible() || controls.RHDBT.Visible() || controls.RHD.Visible();
  if (!somethingOver) {
    services_.run.ThoatBT(surface_);
    return;
  }
  closeExtras();
  services_.shell.hints.AnRDOS(surface_);
}

void ItemPage::closeExtras() {
  if (services_.controls.RHD.Visible()) services_.shell.upward.DongNghia();
  services_.box.DongGiai();
}

void ItemPage::pressLetter(int keyAscii, int caretToComeBackTo) {
  services_.controls.RDOS.Visible(false);
  services_.state.atHand.keepCaret(caretToComeBackTo);
  services_.words.openListOn(keyAscii);
}

void ItemPage::releaseKey(int shift) {
  services_.shell.gestures.keyReleased();
  if (services_.controls.RHD.Visible() && !services_.state.word.DaChonRTD)
    services_.shell.upward.DongNghia();
  services_.words.closeWithoutCtrl(shift, surface_);
  if (surface_.SelLength() == 0) services_.state.atHand.keepCaret(surface_.SelStart());
}

// -- Mouse.

void ItemPage::moveMouse(SurfacePoint at) {
  services_.shell.gestures.pointerMoved(surface_, at);
  services_.box.RoiChuotBT(surface_, at);
  services_.shell.gestures.RoiChuot(surface_, at);
}

ItemPage::Click ItemPage::releaseMouse(MouseButton button, SurfacePoint at) {
  WordAtHand& atHand = services_.state.atHand;
  const int p = position();
  services_.shell.gestures.keyReleased();
  atHand.pointAt(at);
  services_.box.DongGiai();
  services_.words.hidePopup();
  atHand.keepCaret(surface_.SelStart());
  if (button == MouseButton::Right) {
    atHand.arm();
    services_.shell.steering.NhapTrai();
    return Click::Done;
  }
  if (atHand.takeArmed()) return Click::Explain;
  if (services_.item.links.holdNext(p)) {
    services_.run.next();
    return Click::Done;
  }
  if (services_.item.links.holdBack(p)) {
    services_.run.back();
    return Click::Done;
  }
  return Click::Pick;
}

} // namespace talvora
