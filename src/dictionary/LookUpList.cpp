#include "dictionary/LookUpList.h"

#include "text/CharClass.h"
#include "text/Rounding.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

#include <algorithm>

namespace talvora {

namespace {

constexpr CharClass Typed("[a-z,A-Z,'. /\\,()-]");
constexpr Colour PaperColour = 0x80000013;
constexpr int LinesBelow = 10;
constexpr int CaptionPercent = 3; // of the screen's height; the form has the rest

} // namespace

LookUpList::LookUpList(Form& form, DictionaryControls& controls, SharedState& state, Shell& shell,
                       WordList& words, LookUp& lookUp)
    : form_(form), controls_(controls), state_(state), shell_(shell), words_(words),
      lookUp_(lookUp) {
  wireEvents();
}

void LookUpList::wireEvents() {
  Surface& RTD = controls_.RTD;
  RTD.KeyDown = [this, &RTD](int& KeyCode, int) { shell_.hints.showOnF2(KeyCode, RTD); };
  RTD.KeyPress = [this](int& KeyAscii) {
    const int pressed = KeyAscii;
    KeyAscii = 0;
    pressCharacter(pressed);
  };
  RTD.KeyUp = [this](int& KeyCode, int) { releaseKey(KeyCode); };
  RTD.MouseDown = [this](MouseButton button, int, SurfacePoint) { pressMouse(button); };
  RTD.MouseUp = [this, &RTD](MouseButton button, int, SurfacePoint) {
    // The release that follows a double click comes when the list has been closed.
    if (button == MouseButton::Left && RTD.Visible()) ChonDongRTD();
  };
  RTD.DblClick = [this] { ChonTuRTD(); };
  RTD.MouseMove = [this, &RTD](int, SurfacePoint at) {
    shell_.gestures.pointerMoved(RTD, at);
    state_.atHand.pointAt(at);
  };
  shell_.pages.add({.surface = RTD,
                    .textFont = true,
                    .font = FontStep::Smaller,
                    .bold = true,
                    .parked = Parked::BelowTheScreen,
                    .paper = PaperColour,
                    .pointerName = RTD.Name(),
                    .hints = {{{"Chuột phải/ESC=thoát,Xóa từ gõ"_x1, "(Sử dụng Roll chuột)"_x1}}}});
  shell_.gestures.onClose(CloseRank::LookUpList, RTD, [this](Surface&) { giveUp(); });
}

// -- Opening and closing.

void LookUpList::MoDanhSachTu(char character) {
  if (!DaNapRTD) load();
  saveCarets();
  shell_.upward.DongNghia();
  Surface& RTD = controls_.RTD;
  if (!RTD.Visible()) captionBehind_ = form_.Caption();
  RTD.Left(state_.measures.LeTraiBai);
  RTD.Top(state_.measures.LeTrenBai);
  RTD.Width(state_.measures.RongBai);
  RTD.Height(state_.measures.CaoBai);
  RTD.Visible(true);
  RTD.SetFocus();
  state_.atHand.drop();
  GoTu(asc(character));
}

void LookUpList::load() {
  shell_.messages.ThongBao("Loading Data...", 0);
  state_.places.waitkd = true;
  controls_.RTD.LoadFile(words_.file(), words_.paragraphStarts());
  words_.examineCarets();
  state_.places.waitkd = false;
  shell_.messages.TatThongBao();
  DaNapRTD = true;
}

void LookUpList::saveCarets() {
  // A lesson over the text has stored its own caret, which is the one to come back to.
  if (shell_.pages.pageOverPage()) return;
  const auto seen = [this](SharedCaret caret) {
    const Surface* const page = shell_.pages.withCaret(caret);
    return page != nullptr && page->Visible() ? page : nullptr;
  };
  if (const Surface* const text = seen(SharedCaret::OfText)) {
    state_.atHand.keepCaret(text->SelStart());
  }
  if (const Surface* const list = seen(SharedCaret::OfList)) {
    state_.atHand.keepListCaret(list->SelStart());
  }
}

void LookUpList::DongDanhSachTu() {
  controls_.RTD.Visible(false);
  form_.Caption(captionBehind_);
  if (!state_.word.DaChonRTD) shell_.focusReturn.TraLaiBeMat();
}

void LookUpList::giveUp() {
  state_.atHand.endPick();
  DongDanhSachTu();
}

// -- Typing.

void LookUpList::GoTu(int code) {
  state_.atHand.take(typedWordWith(lower(chr(code))));
  showTypedWord();
  controls_.RTD.SelStart(0);
  if (!state_.word.TuHienTai.empty()) jumpToTypedWord();
}

std::string LookUpList::typedWordWith(char character) const {
  std::string word = state_.word.TuHienTai;
  const char last = word.empty() ? ' ' : word.back();
  if (character == key::Backspace) {
    if (!word.empty()) word.pop_back();
    return word;
  }
  const bool afterBreak = last == ' ' || last == '-';
  if (character == ' ' && afterBreak) return word;
  if (character == '-' && (word.empty() || last == '-')) return word;
  if (character == '-' && last == ' ') word.pop_back();
  if (word.size() < LongestWord && Typed.has(character)) word += character;
  return word;
}

void LookUpList::showTypedWord() {
  form_.Caption(state_.word.TuHienTai + state_.measures.TieuDeE);
}

void LookUpList::jumpToTypedWord() {
  std::string sought = state_.word.TuHienTai;
  std::replace(sought.begin(), sought.end(), '-', ' ');
  lookUp_.TimTu(sought, LayNghia::No);
  state_.atHand.dropEntry();
  if (lookUp_.ViTriGan <= 0) return;
  const int before = --lookUp_.ViTriGan;
  // The way over a line farther down leaves the line itself near the top.
  const int below = std::min({before + LinesBelow, WordList::WordCount, words_.count()});
  controls_.RTD.SelStart(words_.ViTriDanhSach(below));
  controls_.RTD.SelStart(words_.ViTriDanhSach(before));
  ChonDongRTD();
}

bool LookUpList::clearTypedWord() {
  if (state_.word.TuHienTai.empty()) return false;
  state_.atHand.drop();
  GoTu(key::Backspace);
  return true;
}

// -- Picking.

void LookUpList::ChonDongRTD() {
  Surface& RTD = controls_.RTD;
  TuChon = words_.lineAt(RTD.SelStart());
  ChuChon = words_.Chu(TuChon);
  RTD.SelStart(words_.ViTriDanhSach(TuChon - 1));
  RTD.SelLength(static_cast<int>(ChuChon.size()));
}

void LookUpList::ChonTuRTD() {
  state_.atHand.beginPick();
  ChonDongRTD();
  state_.atHand.take(ChuChon);
  if (controls_.RTD.Visible()) DongDanhSachTu();
  TraTuGan();
  if (!controls_.RHD.Visible()) {
    // Without an entry there is nothing that could hand the focus on later.
    shell_.focusReturn.TraLaiBeMat();
    return;
  }
  controls_.RHD.SetFocus();
  pointAtPopup();
}

void LookUpList::pointAtPopup() {
  const Measures& m = state_.measures;
  const double captionHeight = m.CaoMH * CaptionPercent / (100.0 - CaptionPercent);
  const double pixel = TwipsPerPixel;
  // The pixel that holds the corner may begin ahead of it; the next one lies on the popup.
  shell_.steering.pointAt({Round(controls_.RHD.Left() / pixel) + 1,
                           Round((captionHeight + controls_.RHD.Top()) / pixel) + 1});
}

// -- Keys and mouse.

void LookUpList::pressCharacter(int code) {
  if (code == key::Enter) {
    ChonTuRTD();
  } else if (code != key::Esc) {
    GoTu(code);
  } else if (state_.word.TuHienTai.empty()) {
    giveUp();
  } else {
    state_.atHand.endPick();
    clearTypedWord();
  }
}

void LookUpList::releaseKey(int keyCode) {
  shell_.gestures.keyReleased();
  if (keyCode != key::Esc && keyCode != key::Enter) ChonDongRTD();
}

void LookUpList::pressMouse(MouseButton button) {
  if (button != MouseButton::Right) return;
  state_.atHand.endPick();
  if (!clearTypedWord()) DongDanhSachTu();
}

void LookUpList::declare(Variables& variables) const {
  variables.add("TuChon", &TuChon);
  variables.add("ChuChon", &ChuChon);
  variables.add("DaNapRTD", &DaNapRTD);
}

} // namespace talvora
