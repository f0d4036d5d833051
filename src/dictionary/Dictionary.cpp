#include "dictionary/Dictionary.h"

#include "dictionary/SyllableGate.h"
#include "text/Bytes.h"
#include "text/CharClass.h"

#include <string>
#include <utility>

namespace talvora {

namespace {

constexpr std::string_view WordCharacters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ'-";

} // namespace

Dictionary::Dictionary(Form& form, Controls& controls, SharedState& state, Stores& stores,
                       Shell& shell, Speech& speech)
    : controls_(controls), state_(state), shell_(shell), lookUp_(words_, stores, state.word),
      popup_(form, controls, state, shell, speech),
      list_(form, controls, state, shell, words_, lookUp_) {
  shell_.upward.DongNghia = [this] { popup_.DongNghia(); };
  list_.TraTuGan = [this] { TraTuGan(); };
  wirePopup();
}

void Dictionary::NapTuDien() {
  words_.NapTuDien(state_.places.ThuMuc, [this] { shell_.menu.TienTrinhNap(); });
}

// -- Looking up.

void Dictionary::TraTu() {
  CurrentWord& word = state_.word;
  lookUp_.TimThay = true;
  if (word.TuHienTai.empty() && word.NghiaHienTai.empty()) return;
  std::string shown;
  if (!word.NghiaHienTai.empty() || !LaTiengAnh(word.TuHienTai)) {
    shown = word.NghiaHienTai;
  } else {
    word.ThongBaoHD.clear();
    word.TuDaBam = word.TuHienTai;
    lookUp_.timMoiDang();
    if (!word.NghiaHienTai.empty()) shown = takeEntry();
  }
  if (lookUp_.TimThay && !shown.empty()) popup_.HienNghia(shown);
  word.ChoGiai = false;
}

void Dictionary::TraTuGan() {
  CurrentWord& word = state_.word;
  std::string shown;
  if (word.NghiaHienTai.empty()) {
    word.ThongBaoHD.clear();
    lookUp_.DocNghia(list_.TuChon);
    if (!word.NghiaHienTai.empty()) shown = takeEntry();
  }
  word.NghiaHienTai.clear();
  if (!shown.empty()) popup_.HienNghia(shown);
  word.ChoGiai = false;
}

std::string Dictionary::takeEntry() {
  return state_.word.TuHienTai + "~" + std::exchange(state_.word.NghiaHienTai, {});
}

// -- Keys and mouse on the popup.

void Dictionary::wirePopup() {
  Surface& RHD = controls_.RHD;
  RHD.KeyDown = [this, &RHD](int& KeyCode, int) { shell_.hints.showOnF2(KeyCode, RHD); };
  RHD.KeyPress = [this](int& KeyAscii) { pressPopupCharacter(std::exchange(KeyAscii, 0)); };
  RHD.KeyUp = [this](int&, int) { shell_.gestures.keyReleased(); };
  RHD.MouseUp = [this](MouseButton button, int, SurfacePoint) {
    if (button == MouseButton::Left) {
      lookUpInPopup();
    } else {
      popup_.DongNghia();
    }
  };
}

void Dictionary::pressPopupCharacter(int code) {
  popup_.DongNghia();
  if (Letters.has(chr(code))) MoDanhSachTu(chr(code));
}

void Dictionary::lookUpInPopup() {
  Surface& RHD = controls_.RHD;
  RHD.SelLength(0);
  RHD.Span(WordCharacters, SpanDirection::Backward, SpanUntil::NotInSet);
  RHD.Span(WordCharacters, SpanDirection::Forward, SpanUntil::NotInSet);
  CurrentWord& word = state_.word;
  word.TuHienTai.clear();
  word.NghiaHienTai.clear();
  shell_.wordPick.LayTuChon(RHD);
  TraTu();
}

void Dictionary::declare(Variables& variables) const {
  lookUp_.declare(variables);
  popup_.declare(variables);
  list_.declare(variables);
}

} // namespace talvora
