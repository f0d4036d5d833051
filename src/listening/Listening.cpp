#include "listening/Listening.h"

#include "surface/Looks.h"
#include "text/Vietnamese.h"

namespace talvora {

namespace {

constexpr int Section = 4;
constexpr int EmptyUnitMessageMs = 2000;

} // namespace

Listening::Listening(Form& form, ListeningControls& controls, SharedState& state, Stores& stores,
                     Shell& shell, PageServices services, Random& random, UnitList& units,
                     Scoring& scoring, ItemState& item)
    : form_(form), controls_(controls), state_(state), stores_(stores), shell_(shell),
      services_(services), words_(controls, state, shell, services), units_(units),
      scoring_(scoring), item_(item), items_(stores),
      page_(controls.RN2, controls.Rchon, state.measures, random, item.links), order_(random) {
  wireEvents();
  addToShell();
  units_.share(*this);
}

void Listening::addToShell() {
  Surface& RN2 = controls_.RN2;
  shell_.pages.add({.surface = RN2,
                    .textFont = true,
                    .font = FontStep::Same,
                    .pointerName = RN2.Name(),
                    .hints = {{{"Chuột Trái=Chọn câu; Chuột phải=Nghe lại; Next=Qua câu mới"_x1,
                                "Esc=thoát"_x1}}}});
  shell_.focusReturn.onReturnTo(FocusRank::Listening, RN2, FocusReturn::withoutSelection(RN2));
}

bool Listening::leaveText() {
  if (!controls_.RN2.Visible()) return false;
  ThoatRN2();
  return true;
}

void Listening::wireEvents() {
  Surface& RN2 = controls_.RN2;
  RN2.KeyDown = [this, &RN2](int& KeyCode, int Shift) {
    shell_.hints.showOnF2(KeyCode, RN2);
    words_.showOnCtrl(KeyCode, Shift, RN2);
  };
  RN2.KeyPress = [this](int& KeyAscii) { pressCharacter(KeyAscii); };
  // The surface named here is another drill's; that is meant.
  RN2.KeyUp = [this](int&, int Shift) { words_.releaseKey(Shift, controls_.Rxep); };
  RN2.MouseDown = [this](MouseButton button, int, SurfacePoint) {
    if (button != MouseButton::Right) return;
    words_.hidePopup();
    NgheLai();
  };
  RN2.MouseMove = [this, &RN2](int, SurfacePoint at) { shell_.gestures.followPointer(RN2, at); };
  RN2.MouseUp = [this](MouseButton button, int, SurfacePoint at) {
    if (button == MouseButton::Left) releaseLeft(at);
  };
  RN2.DblClick = [this] { state_.atHand.askForSentence(); };
}

// -- The section.

void Listening::openSection() {
  state_.places.MucMenu = Section;
  stores_.ChonKho(file::TextPositions);
  state_.atHand.enterPage();
  state_.atHand.drop();
  units_.HienBT(0);
  units_.open();
}

void Listening::LapBangNghe() {
  state_.places.waitkd = true;
  items_.LapBangNghe();
  state_.places.waitkd = false;
}

// -- A unit.

void Listening::MoBaiNghe() {
  listCaret_ = controls_.RN1.SelStart();
  UnitNghe_ = state_.list.SoBaiChon;
  countItems();
  if (order_.SoCauUnit == 0) {
    shell_.messages.ThongBao("Bài này chưa có câu để nghe."_x1, EmptyUnitMessageMs);
    controls_.RN1.SetFocus();
    shell_.steering.ChonDong();
    return;
  }
  services_.voice.MoAm(UnitNghe_);
  CauNgheTiep();
  controls_.RN2.SetFocus();
}

void Listening::countItems() {
  int items = 0;
  GocUnit_ = 0;
  for (int i = 1; i <= ListeningItems::Count; ++i) {
    const int unit = items_.item(i).Unit;
    if (unit == UnitNghe_) {
      // The base of the first unit is so counted from 1, that of the others from the record ahead:
      // they begin with the last item of the unit before them.
      if (GocUnit_ == 0) GocUnit_ = i - 1;
      ++items;
    }
    if (unit > UnitNghe_) break;
  }
  order_.start(items);
}

void Listening::CauNgheTiep() {
  order_.step();
  const ListeningItem item = items_.item(order_.SoRut + GocUnit_ - 1);
  ViTriDoc_ = item.ViTri;
  DoanHien_ = item.Doan;
  DocCauNghe();
}

void Listening::DocCauNghe() {
  state_.places.waitkd = true;
  const ListeningTexts texts = items_.textsAt(ViTriDoc_);
  heard_ = texts.sentence;
  if (!services_.voice.AmThanhThuc) state_.atHand.take(heard_);
  item_.KetQuaCau = 0;
  page_.paint(texts);
  shell_.transitions.MoRan(controls_.RN2, controls_.Frame2);
  form_.Refresh();
  state_.places.waitkd = false;
  NgheLai();
}

void Listening::NgheLai() {
  if (services_.voice.AmThanhThuc) {
    services_.voice.PhatCau(DoanHien_);
  } else {
    // The pointer takes the word at hand away when it leaves.
    if (state_.word.TuHienTai.empty()) state_.atHand.take(heard_);
    services_.speech.DocTu(utteranceAtHand(state_));
  }
}

void Listening::stopSound() {
  services_.speech.DungDoc();
}

void Listening::QuaCau() {
  closePage();
  if (order_.goesOn()) {
    CauNgheTiep();
    return;
  }
  shell_.steering.ChonDong();
  if (scoring_.SoDung > 0) scoring_.BaoDiem(order_.SoCauUnit);
}

void Listening::closePage() {
  state_.atHand.dropEntry();
  stopSound();
  shell_.transitions.DongRan(controls_.RN2, controls_.Frame2);
  controls_.RN1.SelStart(listCaret_);
  controls_.RN1.SetFocus();
}

void Listening::ThoatRN2() {
  closePage();
  shell_.steering.ChonDong();
}

// -- Keys.

void Listening::pressCharacter(int& keyAscii) {
  const int pressed = keyAscii;
  keyAscii = 0;
  if (pressed == key::Esc) {
    if (shell_.gestures.DongPhu(controls_.RN2)) return;
    if (scoring_.SoDung > 0) scoring_.BaoDiem(order_.SoCauUnit);
    ThoatRN2();
  } else {
    words_.openListOn(pressed);
  }
}

// -- Mouse.

void Listening::releaseLeft(SurfacePoint at) {
  Surface& RN2 = controls_.RN2;
  const CurrentWord& word = state_.word;
  state_.atHand.clickedAt(at, RN2.SelStart());
  const int p = word.ViTriCaret + 1;
  if (!word.CoDupChuot && p > page_.links.CuoiNext && !page_.isOpen()) {
    words_.lookUpAtCaret(RN2);
    return;
  }
  const bool onRed = RN2.SelColor() == look::Red;
  judge(word.ViTriCaret);
  if (onRed && followLink(p)) return;
  state_.atHand.askForWord();
  shell_.hints.AnRDOS(RN2);
}

void Listening::judge(int caret) {
  if (!page_.isOpen()) return;
  if (page_.isRight(caret)) {
    stopSound();
    page_.HienCauNghe();
    shell_.messages.answerJudged({1, 1});
    if (item_.KetQuaCau != 0) return;
    item_.KetQuaCau = 1;
    ++scoring_.SoDung;
  } else if (caret > 0) {
    if (page_.XamDong(caret)) shell_.messages.answerJudged({0, 1});
    item_.KetQuaCau = -1;
  }
}

bool Listening::followLink(int p) {
  if (page_.links.holdNext(p)) {
    order_.CoLui = false;
    QuaCau();
  } else if (page_.links.holdBack(p)) {
    order_.TimBuoc();
    if (order_.BuocTruoc > 0) {
      order_.CoLui = true;
      QuaCau();
      return true;
    }
  }
  return false;
}

void Listening::declare(Variables& variables) const {
  items_.declare(variables);
  page_.declare(variables);
  order_.declare(variables);
  variables.add("UnitNghe", &UnitNghe_);
  variables.add("GocUnit", &GocUnit_);
  variables.add("ViTriDoc", &ViTriDoc_);
  variables.add("DoanHien", &DoanHien_);
}

} // namespace talvora
