#include "listening/NGHE_VIET.h"

#include "formats/GuideText.h"
#include "formats/Limits.h"
#include "shell/RedPlate.h"
#include "surface/Looks.h"
#include "text/CharClass.h"
#include "text/Rounding.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace talvora {

namespace {

constexpr int GuideText = guidetext::Number;
constexpr int FlashMs = 20;
constexpr int SentenceDoneMs = 500;
constexpr char Prompt = '^';
// What is at hand is the sentence, which Enter does not take for a word: as the popup closes, and
// once a word of it was looked up.
constexpr std::string_view SentenceAtHand = "x";
constexpr std::string_view SentenceBehindWord = "XX";
/// A blank stands for these, so that the learner need not know how a sentence is pointed.
constexpr CharClass BlankWillDo("[-,:;!]");

std::string piece(const std::string& text, int position, int length) {
  // Positions count from 1.
  const auto from = static_cast<std::size_t>(std::max(position - 1, 0));
  if (from >= text.size() || length <= 0) return {};
  return text.substr(from, static_cast<std::size_t>(length));
}

char characterAt(const std::string& text, int position) {
  const std::string one = piece(text, position, 1);
  return one.empty() ? '\0' : one.front();
}

} // namespace

NGHE_VIET::NGHE_VIET(Form& form, ListeningControls& controls, SharedState& state, Stores& stores,
                     Shell& shell, PageServices services, Clock& clock)
    : form_(form), controls_(controls), state_(state), stores_(stores), shell_(shell),
      services_(services), words_(controls, state, shell, services), clock_(clock),
      text_(stores, state.text) {
  wireEvents();
}

void NGHE_VIET::wireEvents() {
  Surface& Rviet = controls_.Rviet;
  Rviet.KeyDown = [this](int& KeyCode, int) { pressKey(KeyCode); };
  Rviet.KeyPress = [this](int& KeyAscii) { pressCharacter(KeyAscii); };
  Rviet.KeyUp = [this](int& KeyCode, int) { releaseKey(KeyCode); };
  Rviet.MouseDown = [this, &Rviet](MouseButton, int, SurfacePoint) { Rviet.SelStart(CaretViet_); };
  Rviet.MouseMove = [this](int, SurfacePoint at) { moveMouse(at); };
  Rviet.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
  Rviet.DblClick = [this] { state_.atHand.askForSentence(); };
  shell_.pages.add(
      {.surface = Rviet,
       .font = FontStep::Same,
       .pointerName = Rviet.Name(),
       .hints = {{{"Mũi tên Trái=Nghe lại;  Mũi tên phải=Nhắc từ;  Nhấp chuột=Tra từ"_x1,
                   "Mũi tên lên=lùi 1 câu;  Mũi tên xuống=tới 1 câu;  Esc=thoát."_x1}}}});
  const auto always = [] { return true; };
  shell_.focusReturn.onReturnTo(FocusRank::Dictation, Rviet, always, [this, &Rviet] {
    state_.atHand.take(CauMau_);
    state_.atHand.dropEntry();
    state_.atHand.showInstead(SentenceAtHand);
    Rviet.SelStart(CaretViet_);
    Rviet.SetFocus();
  });
}

// -- Opening and ending.

void NGHE_VIET::MoNgheViet() {
  CauViet_ = 1;
  shell_.gestures.pointerCameIn(controls_.Rviet);
  listCaret_ = controls_.R1.SelStart();
  state_.atHand.dropEntry();
  state_.atHand.askForWord();
  const int number = state_.list.SoBaiChon;
  if (stores_.FileChiSo == file::TextPositions && number == GuideText) return;
  openVoice();
  text_.DocBai(number);
  text_.DocDich(number);
  state_.atHand.drop();
  form_.Refresh();
  controls_.RDOS.FontSize(form_.Font().size);
  controls_.RDOS.FontName("x1");
  BoCucViet();
  QuaCauViet(1);
}

void NGHE_VIET::openVoice() {
  const int number = state_.list.SoBaiChon;
  // The learner's own texts come behind the recorded ones.
  const bool isRecorded = number >= limit::FirstRecordedText && number <= Stores::ReadingTexts;
  if (stores_.FileChiSo == file::TextPositions && isRecorded) {
    services_.voice.MoAm(number - limit::FirstRecordedText + 1);
  } else {
    services_.voice.AmThanhThuc = false;
  }
}

void NGHE_VIET::BoCucViet() {
  const int W = state_.measures.RongMH;
  const int H = state_.measures.CaoMH;
  Surface& Rviet = controls_.Rviet;
  XoaViet();
  Rviet.Visible(true);
  Rviet.Height(3 * form_.TextHeight("AAAA") + form_.TextWidth(" "));
  Rviet.BackColor(state_.measures.MauNenHD);
  Rviet.Width(Round(W - W / 25.0));
  Rviet.Top((H - Rviet.Height()) / 2);
  Rviet.Left((W - Rviet.Width()) / 2);
  KhungDo();
  controls_.R1.Enabled(false);
  state_.places.DangBan = true;
  controls_.R2.Top(H);
  controls_.R2.Visible(false);
  Surface& RHDBT = controls_.RHDBT;
  RHDBT.Visible(true);
  RHDBT.Height(Round(Rviet.Top() - Rviet.Height() / 5.0));
  RHDBT.BackColor(Rviet.BackColor());
  RHDBT.Width(Rviet.Width());
  RHDBT.Top((Rviet.Top() - RHDBT.Height()) / 2);
  RHDBT.Left(Rviet.Left());
  BongLoiGiai();
  shell_.hints.HuongDan(Rviet);
  Rviet.SetFocus();
}

void NGHE_VIET::KhungDo() {
  fitRedPlate(controls_.Rnen3, controls_.Rviet, state_.measures, PlateRim::WiderAtRight);
}

void NGHE_VIET::ThoatViet() {
  services_.speech.DungDoc();
  state_.places.DangBan = false;
  shell_.hints.AnRDOS(controls_.Rviet);
  controls_.Rviet.Visible(false);
  shell_.setup.parkPlate();
  controls_.R1.Enabled(true);
  controls_.RHDBT.Enabled(true);
  controls_.RHDBT.Visible(false);
  controls_.Rnen2.Visible(false);
  controls_.R1.SelStart(listCaret_);
  ChonDongR1();
  controls_.R1.SetFocus();
}

// -- A sentence.

void NGHE_VIET::XoaViet() {
  Surface& Rviet = controls_.Rviet;
  ViTriGo_ = 0;
  Rviet.Text("");
  Rviet.SelIndent(look::BodyIndent);
  Rviet.SelText("\r\r");
  Rviet.SelProtected(true);
  Rviet.SelStart(1);
  CaretViet_ = 1;
}

void NGHE_VIET::QuaCauViet(int d) {
  XoaViet();
  CauViet_ += d > 0 ? 1 : -1;
  if (CauViet_ >= state_.text.SoCauVanBan - 1) {
    ThoatViet();
    return;
  }
  CauViet_ = std::max(CauViet_, 2);
  takeSentence();
  LocCau();
  state_.atHand.takeMessageAsEntry();
  HienDich();
  services_.speech.DocTu(utteranceAtHand(state_));
}

void NGHE_VIET::takeSentence() {
  const CurrentText& text = state_.text;
  state_.atHand.showInstead(text_.translationOf(CauViet_));
  state_.text.CauChon = CauViet_;
  int s = text_.markOf(CauViet_);
  int n = text_.markOf(CauViet_ + 1) - s - 1;
  if (characterAt(text.CauHoi, s + 1) == '\t') {
    ++s;
    --n;
  }
  if (characterAt(text.CauHoi, s + n) == '\r') --n;
  // The piece begins with the mark and ends ahead of the sentence's last character, its point.
  state_.atHand.take(piece(text.CauHoi, s, n));
}

void NGHE_VIET::LocCau() {
  CauMau_ = WordPick::lettersOf(state_.word.TuHienTai);
  state_.atHand.take(CauMau_);
  state_.atHand.askForWord();
}

void NGHE_VIET::HienDich() {
  Surface& RHDBT = controls_.RHDBT;
  RHDBT.Enabled(true);
  RHDBT.Text("");
  RHDBT.SelBold(state_.measures.largeScreen());
  RHDBT.SelColor(look::Heading);
  RHDBT.SelIndent(look::BodyIndent);
  RHDBT.SelText("\r" + state_.word.ThongBaoHD + "\r");
  RHDBT.SelProtected(true);
  RHDBT.SelStart(RHDBT.TextLength());
  RHDBT.Enabled(false);
}

void NGHE_VIET::speakAgain() {
  services_.speech.DungDoc();
  state_.atHand.take(CauMau_);
  services_.speech.DocTu(utteranceAtHand(state_));
}

// -- Typing.

void NGHE_VIET::GoKyTu(char c) {
  Surface& Rviet = controls_.Rviet;
  Rviet.SelStart(CaretViet_);
  const auto length = static_cast<int>(CauMau_.size());
  const bool pastEnd = ViTriGo_ >= length;
  const char m = pastEnd ? '\0' : CauMau_[static_cast<std::size_t>(ViTriGo_)];
  const bool accepted =
      !pastEnd && (c == Prompt || (c == ' ' && BlankWillDo.has(m)) || lower(c) == lower(m));
  if (!accepted) {
    NhayDo(Rviet);
    speakAgain();
    return;
  }
  ++ViTriGo_;
  Rviet.SelBold(state_.measures.largeScreen());
  Rviet.SelText(m);
  if (ViTriGo_ < length) {
    CaretViet_ = Rviet.SelStart();
    return;
  }
  Rviet.SelText('.');
  form_.Refresh();
  // The next sentence comes up in any case: whoever wants the program closed may change the mind.
  static_cast<void>(clock_.Sleep(SentenceDoneMs));
  QuaCauViet(1);
}

void NGHE_VIET::NhayDo(Surface& surface) {
  const Colour before = surface.BackColor();
  surface.BackColor(look::Red);
  form_.Refresh();
  static_cast<void>(clock_.Sleep(FlashMs));
  surface.BackColor(before);
  form_.Refresh();
}

// -- Keys.

void NGHE_VIET::pressKey(int& keyCode) {
  const int pressed = keyCode;
  shell_.hints.showOnF2(pressed, controls_.Rviet);
  switch (pressed) {
  case key::Right:
    GoKyTu(Prompt);
    keyCode = 0;
    break;
  case key::Left:
  case key::Up:
  case key::Down:
  case key::Backspace:
    keyCode = 0;
    break;
  case key::Esc:
    pressEsc();
    break;
  default:
    break;
  }
}

void NGHE_VIET::pressEsc() {
  if (controls_.RHD.Visible()) {
    shell_.upward.DongNghia();
  } else if (!shell_.gestures.DongPhu(controls_.Rviet)) {
    ThoatViet();
  }
}

void NGHE_VIET::pressCharacter(int& keyAscii) {
  const int pressed = std::exchange(keyAscii, 0);
  if (pressed == key::Esc || pressed == key::Backspace) return;
  shell_.hints.AnRDOS(controls_.Rviet);
  shell_.upward.DongNghia();
  controls_.Rviet.SelStart(CaretViet_);
  GoKyTu(chr(pressed));
}

void NGHE_VIET::releaseKey(int keyCode) {
  Surface& Rviet = controls_.Rviet;
  shell_.gestures.keyReleased();
  if (Rviet.SelStart() == 0) Rviet.SelStart(1);
  if (keyCode == key::Left) speakAgain();
  if (keyCode == key::Up) QuaCauViet(-1);
  if (keyCode == key::Down) QuaCauViet(1);
}

// -- Mouse.

void NGHE_VIET::moveMouse(SurfacePoint at) {
  Surface& Rviet = controls_.Rviet;
  shell_.gestures.followPointer(Rviet, at);
  if (Rviet.SelLength() == 0 && !controls_.RHD.Visible()) Rviet.SelStart(CaretViet_);
}

void NGHE_VIET::releaseMouse(MouseButton button, SurfacePoint at) {
  Surface& Rviet = controls_.Rviet;
  if (Rviet.SelStart() == 0) Rviet.SelStart(1);
  const int caret = Rviet.SelStart();
  if (button == MouseButton::Left && caret < CaretViet_) {
    state_.atHand.clickedAt(at, caret);
    state_.atHand.dropEntry();
    words_.lookUpShownWord(Rviet);
    state_.atHand.take(CauMau_);
    state_.atHand.showInstead(SentenceBehindWord);
  } else {
    shell_.hints.AnRDOS(Rviet);
    state_.atHand.askForWord();
  }
}

void NGHE_VIET::declare(Variables& variables) const {
  variables.add("CauViet", &CauViet_);
  variables.add("CauMau", &CauMau_);
  variables.add("ViTriGo", &ViTriGo_);
  variables.add("CaretViet", &CaretViet_);
}

} // namespace talvora
