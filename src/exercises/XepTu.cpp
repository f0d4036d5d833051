#include "exercises/XepTu.h"

#include "exercises/WordOrder.h"
#include "formats/PackFiles.h"
#include "surface/Looks.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr int MostTries = 20;
constexpr int FewestBlanks = 3;

int blanksIn(std::string_view text) {
  return static_cast<int>(std::count(text.begin(), text.end(), ' '));
}

} // namespace

XepTu::XepTu(ExerciseControls& controls, SharedState& state, const Stores& stores, Shell& shell,
             PageServices services, Random& random, BackNextLinks& sharedLinks)
    : links(sharedLinks), controls_(controls), state_(state), shell_(shell), services_(services),
      words_(controls, state, shell, services), random_(random), stores_(stores),
      text_(stores, state.text) {
  wireEvents();
}

void XepTu::wireEvents() {
  Surface& Rxep = controls_.Rxep;
  Rxep.KeyDown = [this, &Rxep](int& KeyCode, int Shift) {
    shell_.hints.showOnF2(KeyCode, Rxep);
    words_.showOnCtrl(KeyCode, Shift, Rxep);
  };
  Rxep.KeyPress = [this](int& KeyAscii) { pressCharacter(KeyAscii); };
  Rxep.KeyUp = [this](int& KeyCode, int Shift) { releaseKey(KeyCode, Shift); };
  Rxep.MouseMove = [this, &Rxep](int, SurfacePoint at) { shell_.gestures.followPointer(Rxep, at); };
  Rxep.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
  Rxep.DblClick = [this] { state_.atHand.askForSentence(); };
  shell_.pages.add({.surface = Rxep,
                    .textFont = true,
                    .font = FontStep::Larger,
                    .parked = Parked::BelowTheScreen,
                    .pointerName = Rxep.Name(),
                    .hints = {{{"Chuột phải=chọn từ; Chuột Trái=Tra từ; Enter=đáp án,chuyển câu"_x1,
                                "F6=bỏ từ xếp; Gõ phím=Tra từ; Esc=thoát"_x1}}}});
  shell_.gestures.onClose(CloseRank::Ordering, Rxep, [this](Surface&) { ThoatXep(); });
  shell_.focusReturn.onReturnTo(FocusRank::Ordering, Rxep);
}

// -- Opening and leaving.

void XepTu::VaoXepTu(std::string_view LoiGiai) {
  origin_ = Origin::Item;
  XepChay = true;
  CurrentText& text = state_.text;
  text.CauHoi = "_" + text.CauHoi + "_end.";
  text_.TachCau(stores_.pathOf(packfile::Items) + ": a word ordering item");
  text.DichCau = split(std::string(LoiGiai) + "_end.", '_');
  ChiSoCau = text.SoCauVanBan;
  VeXepTu(controls_.Rxep);
  ++sentencesOpened_;
}

void XepTu::openFromText() {
  origin_ = controls_.RVP2.Visible() ? Origin::Lesson : Origin::Text;
  XepChay = true;
  GoiRxep();
  shell_.hints.HuongDan(controls_.Rxep);
}

void XepTu::GoiRxep() {
  ChiSoCau = state_.text.SoCauVanBan;
  BuocXep = 0;
  VeXepTu(controls_.Rxep);
  shell_.transitions.MoRan(controls_.Rxep, controls_.Frame3);
}

void XepTu::ThoatXep() {
  Surface& Rxep = controls_.Rxep;
  if (origin_ == Origin::Item && run.BaiTuChon()) {
    leaveSelfMadeTest();
    return;
  }
  state_.atHand.drop();
  services_.speech.DungDoc();
  if (origin_ == Origin::Item) {
    controls_.Frame3.Visible(false);
    run.ThoatBT(Rxep);
    return;
  }
  shell_.transitions.DongRan(Rxep, controls_.Frame3);
  (origin_ == Origin::Text ? controls_.R2 : controls_.RVP2).SetFocus();
}

void XepTu::leaveSelfMadeTest() {
  Surface& Rxep = controls_.Rxep;
  Surface& Rnen3 = controls_.Rnen3;
  if (state_.measures.slidesAtOnce()) {
    // Without a slide the plate covers the page until the next item stands on it.
    Rnen3.BackColor(Rxep.BackColor());
    Rnen3.Left(Rxep.Left());
    Rnen3.Top(Rxep.Top());
    Rnen3.Width(Rxep.Width());
    Rnen3.Height(Rxep.Height());
  }
  controls_.Frame3.Visible(false);
  shell_.transitions.DongRan(Rxep, controls_.Frame2);
  run.clearChuCu();
  if (run.SoCauChay() > 0 && sentencesOpened_ < 2) {
    run.CauKeTiep();
    return;
  }
  run.BoChonBai();
  sentencesOpened_ = 0;
  shell_.setup.parkPlate();
}

// -- Choosing a sentence.

void XepTu::advance() {
  ChiSoCau = ChiSoCau >= state_.text.SoCauVanBan - 1 ? 1 : ChiSoCau + 1;
}

std::string XepTu::sentenceText(int k) const {
  const std::string& text = state_.text.CauHoi;
  const int from = std::max(text_.markOf(k), 1);
  const int to = std::min(text_.markOf(k + 1), static_cast<int>(text.size()));
  std::string sentence;
  for (int position = from; position <= to; ++position) {
    const char character = text[static_cast<std::size_t>(position - 1)];
    if (character != '\t' && character != '\r' && character != SentenceMark) sentence += character;
  }
  return std::string(trim(sentence));
}

void XepTu::findSentence() {
  for (int tries = 0; tries < MostTries; ++tries) {
    advance();
    if (BuocXep == 1) advance();
    CauTiengAnh_ = sentenceText(ChiSoCau);
    if (blanksIn(CauTiengAnh_) >= FewestBlanks) break;
  }
  SoTu_ = blanksIn(CauTiengAnh_) + 1;
  CauTiengViet_ = trim(text_.translationOf(ChiSoCau));
}

// -- Drawing.

void XepTu::draw(Surface& surface, Foot foot) {
  state_.atHand.disarm();
  state_.atHand.drop();
  ChoCau_ = true;
  DaXong_ = false;
  surface.Text("");
  findSentence();
  writeTask(surface);
  writeLine(surface);
  writeFoot(surface, foot);
}

void XepTu::writeTask(Surface& surface) {
  surface.SelColor(look::Body);
  surface.SelAlignment(Alignment::Centred);
  surface.SelBold(state_.measures.largeScreen());
  surface.SelText("Xếp đúng các từ trong câu Tiếng Anh."_x1);
  surface.SelText("\r\r");
  surface.SelColor(look::Heading);
  surface.SelAlignment(Alignment::Left);
  surface.SelIndent(look::BodyIndent);
  surface.SelText(CauTiengViet_ + "\r\r");
  DauDong = surface.SelStart();
}

void XepTu::writeLine(Surface& surface) {
  CuoiDong_ = DauDong;
  if (!XepChay) return;
  DongXep_ = shuffledLine(CauTiengAnh_, random_);
  DongCu_ = DongXep_;
  DongMau_ = lineOf(CauTiengAnh_);
  surface.SelColor(look::Body);
  surface.SelAlignment(Alignment::Left);
  surface.SelIndent(look::BodyIndent);
  surface.SelText(DongXep_ + "\r");
  CuoiDong_ = surface.SelStart();
  ToXep(surface);
}

void XepTu::writeFoot(Surface& surface, Foot foot) {
  const int caret = surface.SelStart();
  surface.SelStart(surface.TextLength());
  surface.SelText("\r\r\r");
  if (foot == Foot::Links) {
    links = ThemBackNext(surface);
  } else {
    surface.SelAlignment(Alignment::Centred);
    surface.SelBold(true);
    links = writeLinks(surface, look::Red);
  }
  surface.SelStart(caret);
}

void XepTu::ToXep(Surface& surface) {
  BienDung_ = rightBeginning(DongMau_, DongXep_);
  const int right = DauDong + BienDung_;
  surface.format({DauDong, right}, {.color = look::Blue});
  surface.format({right, DauDong + static_cast<int>(DongXep_.size())}, {.color = look::Body});
  // The way leads over the line's beginning, so that it is in view, too.
  surface.SelStart(DauDong);
  surface.SelStart(right);
}

// -- Moving words.

bool XepTu::selectsInLine(const Surface& surface) const {
  return surface.SelStart() >= DauDong &&
         surface.SelStart() + surface.SelLength() <= DauDong + lineLength();
}

void XepTu::DatTu(Surface& surface) {
  surface.SelLength(surface.SelLength() + 1);
  if (!selectsInLine(surface)) {
    BoDat(surface);
    return;
  }
  const int s = surface.SelLength();
  int w = surface.SelStart();
  const int b = DauDong + BienDung_;
  surface.SelStart(b);
  if (!state_.word.TuHienTai.empty()) {
    if (b < w) w += s;
    const std::string word = state_.word.TuHienTai + " ";
    state_.atHand.drop();
    surface.SelText(word);
    surface.SelStart(w);
    surface.SelLength(s);
    surface.SelText("");
    DongXep_ = surface.TextBetween(DauDong, DauDong + lineLength());
  }
  const bool right = rightBeginning(DongMau_, DongXep_) > BienDung_;
  shell_.messages.answerJudged({right ? 1 : 0, 1});
  if (right) {
    DongCu_ = DongXep_;
    ToXep(surface);
  } else {
    BoDat(surface);
  }
}

void XepTu::BoDat(Surface& surface) {
  surface.SelStart(DauDong);
  surface.SelLength(lineLength());
  surface.SelText(DongCu_);
  DongXep_ = DongCu_;
  state_.atHand.drop();
  ToXep(surface);
}

// -- The answer and the next sentence.

void XepTu::DapAnXep(Surface& surface) {
  const bool open = BienDung_ < static_cast<int>(DongXep_.size());
  surface.SelStart(surface.TextLength());
  if (open && XepChay) {
    surface.SelColor(look::Red);
    surface.SelText('!');
  }
  surface.SelColor(look::Body);
  surface.SelText("\r\r" + CauTiengAnh_);
  DaXong_ = true;
  sentencesOpened_ = 0;
}

void XepTu::pressEnter(Surface& surface) {
  if (!DaXong_) {
    DapAnXep(surface);
    return;
  }
  if (ChoCau_) VeXepTu(surface);
  ChoCau_ = true;
}

void XepTu::CauXepMoi(Surface& surface) {
  ChoCau_ = false;
  DapAnXep(surface);
  VeXepTu(surface);
}

// -- Keys.

void XepTu::pressCharacter(int& keyAscii) {
  const int pressed = keyAscii;
  if (pressed != key::Space) keyAscii = 0;
  Surface& Rxep = controls_.Rxep;
  if (pressed == key::Enter) {
    pressEnter(Rxep);
  } else if (pressed == key::Esc) {
    shell_.gestures.DongPhu(Rxep);
  } else {
    words_.openListOn(pressed);
  }
}

void XepTu::releaseKey(int keyCode, int shift) {
  words_.releaseKey(shift, controls_.Rxep);
  if (keyCode != key::F6) return;
  XepChay = !XepChay;
  GoiRxep();
}

// -- Mouse.

void XepTu::takeClick(const Surface& surface, SurfacePoint at) {
  state_.atHand.clickedAt(at, surface.SelStart());
  if (controls_.RHD.Visible()) words_.hidePopup();
}

void XepTu::arm() {
  // A word that was only looked up must not stand in the way of the one to be moved.
  state_.atHand.drop();
  state_.atHand.arm();
  shell_.steering.NhapTrai();
}

void XepTu::releaseMouse(MouseButton button, SurfacePoint at) {
  takeClick(controls_.Rxep, at);
  if (button == MouseButton::Right) {
    arm();
  } else {
    releaseLeft();
  }
}

void XepTu::releaseLeft() {
  Surface& Rxep = controls_.Rxep;
  const int p = Rxep.SelStart() + 1;
  const bool onRed = Rxep.SelColor() == look::Red;
  if (onRed && links.holdNext(p)) {
    BuocXep = 0;
    CauXepMoi(Rxep);
  } else if (onRed && links.holdBack(p)) {
    ++BuocXep;
    ChiSoCau = (ChiSoCau > 1 ? ChiSoCau : state_.text.SoCauVanBan) - 1;
    CauXepMoi(Rxep);
  } else if (state_.word.ChoGiai) {
    releaseArmed(Rxep);
  } else if (p > DauDong) {
    words_.lookUpShownWord(Rxep);
  }
}

void XepTu::releaseArmed(Surface& surface) {
  const CurrentWord& word = state_.word;
  state_.atHand.disarm();
  if (!XepChay || !ChoCau_) return;
  if (word.TuHienTai.empty()) {
    if (word.CoDupChuot) {
      BoDat(surface);
    } else if (DaXong_) {
      VeXepTu(surface);
    } else if (surface.SelStart() + 1 > DauDong + BienDung_) {
      shell_.wordPick.takeShownWord(surface);
      DatTu(surface);
    }
  }
  if (word.CoDupChuot) {
    state_.atHand.askForWord();
    surface.SelLength(0);
    state_.atHand.drop();
  }
}

void XepTu::declare(Variables& variables) const {
  variables.add("XepChay", &XepChay);
  variables.add("ChiSoCau", &ChiSoCau);
  variables.add("BuocXep", &BuocXep);
  variables.add("CauTiengAnh", &CauTiengAnh_);
  variables.add("CauTiengViet", &CauTiengViet_);
  variables.add("SoTu", &SoTu_);
  variables.add("DongXep", &DongXep_);
  variables.add("DongCu", &DongCu_);
  variables.add("DongMau", &DongMau_);
  variables.add("DauDong", &DauDong);
  variables.add("CuoiDong", &CuoiDong_);
  variables.add("BienDung", &BienDung_);
  variables.add("DaXong", &DaXong_);
  variables.add("ChoCau", &ChoCau_);
}

} // namespace talvora
