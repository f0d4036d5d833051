#include "reading/ReadingPage.h"

#include "formats/GuideText.h"
#include "surface/Looks.h"
#include "surface/SectionNumbers.h"
#include "text/CharClass.h"
#include "text/Vietnamese.h"
#include "text/WordForm.h"

namespace talvora {

namespace {

/// Stands for a sentence of the guide, of which only the translation is shown.
constexpr std::string_view GuideSentence = "x";

} // namespace

ReadingPage::ReadingPage(ReadingControls& controls, SharedState& state, Shell& shell,
                         PageServices services, ReadingText& text, Clock& clock)
    : controls_(controls), state_(state), shell_(shell), services_(services),
      sentences_(text, state, shell.wordPick),
      aloud_(controls.R2, state, sentences_, services.speech, services.voice, shell.steering,
             clock) {
  wireEvents();
  addToShell();
}

void ReadingPage::addToShell() {
  Surface& R2 = controls_.R2;
  const auto notAnalysed = [this] { return state_.places.MucMenu != section::Analysis; };
  shell_.pages.add(
      {.surface = R2,
       .textFont = true,
       .parked = Parked::BelowAndBeside,
       .pointerName = R2.Name(),
       .caret = SharedCaret::OfText,
       .hints = {
           {{"Chuột Trái/Ctrl= Tra từ; Chuột phải= đọc lại; 2Chuột Trái=Xem câu dịch"_x1,
             "Enter=Chọn từ; F6= Xếp từ; F9= đọc cả bài; Gõ phím=Tra từ; Esc=thoát."_x1},
            notAnalysed},
           {{"Chuột Trái/Ctrl= Tra từ; Chuột phải= Giảng ngữ pháp; 2Chuột Trái=Xem câu dịch"_x1,
             "Enter=Chọn từ; F6= Xếp từ; F9= đọc cả bài; Esc=thoát."_x1}}}});
  shell_.focusReturn.onReturnTo(FocusRank::Text, R2, FocusReturn::withoutSelection(R2));
}

void ReadingPage::wireEvents() {
  Surface& R2 = controls_.R2;
  R2.KeyDown = [this](int& KeyCode, int Shift) { pressKey(KeyCode, Shift); };
  R2.KeyPress = [this](int& KeyAscii) { pressCharacter(KeyAscii); };
  R2.KeyUp = [this](int& KeyCode, int Shift) { releaseKey(KeyCode, Shift); };
  R2.MouseMove = [this](int, SurfacePoint at) { moveMouse(at); };
  R2.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
  R2.DblClick = [this] {
    shell_.upward.DongNghia();
    state_.atHand.askForSentence();
  };
  // The release of Space goes to whoever has the keyboard by then.
  R2.LostFocus = [this] { clearStepFlags(); };
  R2.SelChange = [this, &R2] {
    if (R2.SelLength() == 0) state_.atHand.drop();
  };
}

TextExplanations* ReadingPage::explanations() const noexcept {
  return state_.places.MucMenu == section::Analysis ? explanations_ : nullptr;
}

void ReadingPage::loadExplanations(int n) {
  if (explanations_ != nullptr) explanations_->load(n);
}

void ReadingPage::clearStepFlags() {
  state_.atHand.releaseSpace();
}

void ReadingPage::showText() {
  Surface& R2 = controls_.R2;
  const int CoChu = state_.measures.CoChu;
  R2.Text("");
  R2.SelColor(look::Body);
  R2.SelBold(state_.measures.largeScreen());
  R2.SelFontSize(CoChu);
  R2.SelUnderline(false);
  R2.SelText(state_.text.CauHoi);
  const std::string& text = state_.text.CauHoi;
  const TextRange title{0, static_cast<int>(std::min(text.find('\r'), text.size()))};
  R2.formatParagraphs(title, {.align = Alignment::Centred});
  R2.format(title, {.bold = true, .underline = true, .fontSize = static_cast<double>(CoChu + 3)});
  ViTriTieuDe = title.to + 2;
  R2.SelStart(0);
}

// -- Keys.

void ReadingPage::pressKey(int& keyCode, int shift) {
  Surface& R2 = controls_.R2;
  const bool busy = aloud_.DangDocCa;
  if (auto* const shown = explanations()) shown->leaveOnKey(keyCode);
  shell_.hints.showOnF2(keyCode, R2);
  services_.vietnameseSide.showOnCtrl(keyCode, shift, R2);
  if (keyCode == key::Esc) pressEsc();
  if (busy) return;
  // A held Space repeats; the sentence is taken once.
  if (keyCode == key::Space && !state_.word.GiuSpace) ChonCauSpace();
  const bool ctrl = (shift & shift::Ctrl) != 0;
  if (keyCode == key::Right && !ctrl) {
    // The surface's own step that follows takes the caret over the blank to the next word.
    SentencePick::seekPhaiR2(R2);
  } else if (keyCode == key::Left && !ctrl) {
    SentencePick::seekTraiR2(R2);
    keyCode = 0;
  }
}

void ReadingPage::pressEsc() {
  if (aloud_.DangDocCa) {
    aloud_.DangDocCa = false;
    return;
  }
  if (shell_.gestures.DongPhu(controls_.R2) || controls_.RAmthanh.Visible()) return;
  if (leave) leave();
}

void ReadingPage::pressCharacter(int& keyAscii) {
  const char character = chr(keyAscii);
  const CurrentWord& word = state_.word;
  if (keyAscii == key::Enter && !word.TuHienTai.empty() && word.ThongBaoHD.empty()) {
    if (ThemTuVung) ThemTuVung();
  } else if (Letters.has(character)) {
    services_.dictionary.MoDanhSachTu(character);
  }
  keyAscii = 0;
}

void ReadingPage::releaseKey(int keyCode, int shift) {
  Surface& R2 = controls_.R2;
  shell_.gestures.keyReleased();
  if (keyCode == key::Space) {
    releaseSpace();
  } else if (shift != shift::Ctrl) {
    services_.vietnameseSide.DongTuD(R2);
    // Closing gives the caret back; where a key has just put it, there it stays.
    if (R2.SelLength() == 0) state_.atHand.keepCaret(R2.SelStart());
    if (R2.Visible()) shell_.upward.DongNghia();
  }
  if (keyCode == key::F6 && GoiRxep) GoiRxep();
  if (keyCode == key::F9 && !LaBaiHuongDan) readAloud();
}

void ReadingPage::ChonCauSpace() {
  ViTriGiuSpace_ = controls_.R2.SelStart();
  state_.atHand.keepCaret(ViTriGiuSpace_);
  state_.atHand.holdSpace();
  sentences_.ChonCau(controls_.R2, SentencePick::askedCaret(controls_.R2));
  lookUp();
}

void ReadingPage::releaseSpace() {
  Surface& R2 = controls_.R2;
  state_.atHand.releaseSpace();
  shell_.upward.DongNghia();
  R2.SelLength(0);
  R2.SelStart(ViTriGiuSpace_);
}

void ReadingPage::readAloud() {
  shell_.hints.GoiYNghe(controls_.R2);
  aloud_.DocCa();
  shell_.hints.AnRDOS(controls_.R2);
}

// -- Mouse.

void ReadingPage::moveMouse(SurfacePoint at) {
  shell_.gestures.pointerMoved(controls_.R2, at);
  if (auto* const shown = explanations()) shown->followPointer(at);
  shell_.gestures.RoiChuot(controls_.R2, at);
}

void ReadingPage::releaseMouse(MouseButton button, SurfacePoint at) {
  if (auto* const shown = explanations()) shown->leave();
  if (button == MouseButton::Left) {
    state_.atHand.clickedAt(at, controls_.R2.SelStart());
    if (state_.atHand.takeArmed()) {
      if (explanations_ != nullptr) explanations_->explain();
      return;
    }
    takeWordOrSentence();
  } else if (state_.places.MucMenu == section::Analysis) {
    // A word's entry must not stay over the explanation.
    if (controls_.RHD.Visible()) shell_.upward.DongNghia();
    state_.atHand.arm();
    shell_.steering.NhapTrai();
  } else if (!LaBaiHuongDan) {
    speakAgain();
  }
}

void ReadingPage::takeWordOrSentence() {
  if (state_.atHand.takeDoubleClick()) {
    sentences_.ChonCau(controls_.R2, state_.word.ViTriCaret);
  } else {
    state_.atHand.dropMessage();
    // The translation of a sentence may still be there, when the pointer has not moved since.
    state_.atHand.dropEntry();
    shell_.wordPick.ChonTu(controls_.R2);
  }
  lookUp();
}

void ReadingPage::lookUp() {
  if (LaBaiHuongDan) {
    lookUpInGuide();
  } else if (!ChuanHoaTu(state_.word.TuHienTai).empty()) {
    services_.dictionary.TraTu();
  }
}

void ReadingPage::lookUpInGuide() {
  Surface& R2 = controls_.R2;
  const CurrentWord& word = state_.word;
  const int c = word.ViTriCaret;
  if (c > guidetext::SentencesFrom && c < guidetext::SentencesTo) {
    state_.atHand.take(GuideSentence);
    if (R2.SelLength() > 3) R2.SelLength(R2.SelLength() - 3);
    if (!word.ThongBaoHD.empty()) {
      services_.dictionary.TraTu();
      services_.speech.DungDoc();
    }
  } else if (c < guidetext::WordsTo) {
    shell_.wordPick.LayCumTu(R2);
    services_.dictionary.TraTu();
  } else {
    R2.SelLength(0);
    R2.SelStart(c);
  }
  speakAgain();
}

void ReadingPage::speakAgain() {
  const CurrentWord& word = state_.word;
  if (word.TuHienTai.empty()) return;
  if (word.ThongBaoHD.empty()) state_.atHand.takeClickedForm();
  services_.speech.DocTu(utteranceAtHand(state_));
}

void ReadingPage::declare(Variables& variables) const {
  variables.add("LaBaiHuongDan", &LaBaiHuongDan);
  variables.add("ViTriTieuDe", &ViTriTieuDe);
  variables.add("DangDocCa", &aloud_.DangDocCa);
  variables.add("ViTriGiuSpace", &ViTriGiuSpace_);
}

} // namespace talvora
