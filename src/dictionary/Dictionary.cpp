#include "dictionary/Dictionary.h"

#include "dictionary/SyllableGate.h"
#include "surface/SectionNumbers.h"
#include "text/Bytes.h"
#include "text/CharClass.h"

#include <string>
#include <utility>

namespace talvora {

namespace {

constexpr std::string_view WordCharacters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ'-";

} // namespace

Dictionary::Dictionary(Form& form, DictionaryControls& controls, SharedState& state, Stores& stores,
                       Shell& shell, Speech& speech)
    : controls_(controls), state_(state), stores_(stores), shell_(shell), speech_(speech),
      lookUp_(words_, stores), popup_(form, controls, state, shell, speech),
      list_(form, controls, state, shell, words_, lookUp_) {
  shell_.upward.DongNghia = [this] { popup_.DongNghia(); };
  list_.TraTuGan = [this] { TraTuGan(); };
  wirePopup();
}

void Dictionary::NapTuDien() {
  words_.NapTuDien(
      stores_.dictionaryFolder(), [this] { shell_.menu.TienTrinhNap(); }, stores_.fileSystem());
}

// -- Looking up.

void Dictionary::TraTu() {
  const CurrentWord& word = state_.word;
  lookUp_.TimThay = true;
  if (word.TuHienTai.empty() && word.NghiaHienTai.empty()) return;
  std::string shown;
  if (!word.NghiaHienTai.empty() || !LaTiengAnh(word.TuHienTai)) {
    shown = word.NghiaHienTai;
  } else {
    const WordAnswer found = lookUp_.timMoiDang(word.TuHienTai);
    state_.atHand.takeForm(found.word);
    if (found.answer) shown = headed(found.answer->entry);
  }
  if (lookUp_.TimThay && !shown.empty()) show(shown);
  state_.atHand.disarm();
}

void Dictionary::TraTuGan() {
  std::string shown;
  if (state_.word.NghiaHienTai.empty()) {
    state_.atHand.dropMessage();
    shown = headed(lookUp_.DocNghia(list_.TuChon));
  }
  state_.atHand.dropEntry();
  if (!shown.empty()) show(shown);
  state_.atHand.disarm();
}

std::string Dictionary::headed(const std::string& entry) const {
  return entry.empty() ? entry : state_.word.TuHienTai + "~" + entry;
}

void Dictionary::show(const std::string& text) {
  const CurrentWord& word = state_.word;
  speech_.DocTu(utteranceAtHand(state_));
  popup_.HienNghia({text, word.TuHienTai.size(), word.ThongBaoHD, word.ViTriChuot});
}

// -- Keys and mouse on the popup.

void Dictionary::wirePopup() {
  Surface& RHD = controls_.RHD;
  RHD.KeyDown = [this, &RHD](int& KeyCode, int) { shell_.hints.showOnF2(KeyCode, RHD); };
  RHD.KeyPress = [this](int& KeyAscii) { pressPopupCharacter(std::exchange(KeyAscii, 0)); };
  RHD.KeyUp = [this](int&, int) { shell_.gestures.keyReleased(); };
  // A press closes the popup; its text stays to be read, and the release may bring it up again.
  RHD.MouseDown = [this](MouseButton, int, SurfacePoint) { popup_.DongNghia(); };
  RHD.MouseUp = [this](MouseButton button, int, SurfacePoint at) {
    if (button == MouseButton::Left) lookUpInPopup(at);
  };
  // An explanation that lies behind a lesson takes no keys from it.
  RHD.MouseMove = [this](int, SurfacePoint) { shell_.pages.focusExplanationBehind(controls_.RHD); };
}

void Dictionary::pressPopupCharacter(int code) {
  popup_.DongNghia();
  if (Letters.has(chr(code))) {
    MoDanhSachTu(chr(code));
  } else if (state_.places.MucMenu == section::Reading) {
    letWordGo();
  }
}

void Dictionary::letWordGo() {
  Surface* const text = shell_.pages.withCaret(SharedCaret::OfText);
  if (text != nullptr && text->Visible()) text->SelStart(state_.word.ViTriCaret);
}

void Dictionary::lookUpInPopup(SurfacePoint at) {
  Surface& RHD = controls_.RHD;
  // The popup is placed as for a click on the page behind it.
  state_.atHand.pointAt({at.x + RHD.Left() - state_.measures.LeTraiBai,
                         at.y + RHD.Top() - state_.measures.LeTrenBai});
  RHD.SelLength(0);
  RHD.Span(WordCharacters, SpanDirection::Backward, SpanUntil::NotInSet);
  RHD.Span(WordCharacters, SpanDirection::Forward, SpanUntil::NotInSet);
  state_.atHand.drop();
  state_.atHand.dropEntry();
  state_.atHand.dropMessage();
  shell_.wordPick.LayTuChon(RHD);
  TraTu();
}

void Dictionary::declare(Variables& variables) const {
  words_.declare(variables);
  lookUp_.declare(variables);
  popup_.declare(variables);
  list_.declare(variables);
}

} // namespace talvora
