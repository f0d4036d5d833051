#include "reading/Reading.h"

#include "formats/GuideText.h"
#include "formats/Limits.h"
#include "surface/Looks.h"
#include "surface/SectionNumbers.h"
#include "text/CharClass.h"
#include "text/Contains.h"
#include "text/Vietnamese.h"

#include <algorithm>
#include <array>
#include <utility>

namespace talvora {

namespace {

constexpr int FirstAnalysedText = 4;
constexpr int GuideText = guidetext::Number;
constexpr int MostHeadings = 38;
// Texts from here on are the scripts of the recordings.
constexpr int FirstScript = limit::FirstRecordedText;

} // namespace

Reading::Reading(ReadingControls& controls, SharedState& state, Stores& stores, Shell& shell,
                 PageServices services, Clock& clock, LearnerData& own)
    : controls_(controls), state_(state), stores_(stores), shell_(shell), services_(services),
      own_(own), text_(stores, state.text), page_(controls, state, shell, services, text_, clock),
      vocabulary_(controls, state, stores, shell, services, text_, own.words) {
  wireEvents();
  addToShell();
}

void Reading::wireEvents() {
  Surface& R1 = controls_.R1;
  R1.KeyDown = [this](int& KeyCode, int) { pressKey(KeyCode); };
  R1.KeyUp = [this](int& KeyCode, int) { releaseKey(KeyCode); };
  R1.KeyPress = [this](int& KeyAscii) { pressCharacter(std::exchange(KeyAscii, 0)); };
  R1.MouseMove = [this, &R1](int, SurfacePoint at) { shell_.gestures.pointerMoved(R1, at); };
  R1.MouseUp = [this](MouseButton button, int, SurfacePoint) { releaseMouse(button); };
  page_.leave = [this] { ExitR2(); };
  page_.ThemTuVung = [this] { vocabulary_.ThemTuVung(); };
  vocabulary_.ensureListBuilt = [this] {
    if (!DaNapDanhSach) MoDanhSachBai();
  };
  vocabulary_.forgetList = [this] { DaNapDanhSach = false; };
}

void Reading::addToShell() {
  Surface& R1 = controls_.R1;
  shell_.pages.add(
      {.surface = R1,
       .textFont = true,
       .font = FontStep::Smaller,
       .parked = Parked::BelowAndBeside,
       .pointerName = R1.Name(),
       .caret = SharedCaret::OfList,
       .hints = {
           {{"Enter/Chuột Trái=Mở bài đọc; Chuột phải= Nghe Viết; Mũi tên Trái/phải=Tiêu đề"_x1,
             "Esc=thoát; Gõ phím=Tra từ (Sử dụng Roll chuột)"_x1}}}});
  shell_.focusReturn.onReturnTo(FocusRank::TextList, R1, FocusReturn::unlessVisible(controls_.R2),
                                [this, &R1] {
                                  R1.SelStart(state_.word.ViTriCaretR1);
                                  ChonDongR1(R1);
                                  R1.SetFocus();
                                });
}

// -- Entering and leaving.

void Reading::BatdauBut() {
  page_.clearStepFlags();
  Surface& R1 = controls_.R1;
  R1.FontSize(state_.measures.CoChu - 1);
  controls_.Frame1.BackColor(look::White);
  MoDanhSachBai();
  shell_.transitions.MoRan(R1, controls_.Frame1);
  R1.SelStart(ViTriDanhSachBai);
  ChonDongR1(R1);
  shell_.gestures.remindOnFirstOpening(state_.places.MucMenu, R1);
}

void Reading::MoDanhSachBai() {
  Surface& R1 = controls_.R1;
  R1.Visible(false);
  R1.Top(state_.measures.parkedTop());
  ViTriDanhSachBai = stores_.readSetting(caretRecord());
  if (!DaNapDanhSach) {
    stores_.NapViTriBai();
    controls_.R2.FontSize(state_.measures.CoChu);
    XayDanhSachBai();
    vocabulary_.NapTuVung();
    DaNapDanhSach = true;
  }
  R1.Visible(true);
}

int Reading::caretRecord() const {
  if (state_.places.MucMenu == section::Analysis) return setting::AnalysisCaret;
  return stores_.FileChiSo == file::SpeakingPositions ? setting::SpeakingCaret
                                                      : setting::ReadingCaret;
}

void Reading::ExitR1() {
  if (controls_.R2.Visible()) {
    ExitR2();
    return;
  }
  vocabulary_.LuuTuVung();
  storeCaret();
  DaNapDanhSach = false;
  shell_.transitions.DongRan(controls_.R1, controls_.Frame1);
  controls_.Frame2.Visible(false);
  controls_.Frame3.Visible(false);
  const int section = state_.places.MucMenu;
  if (section == section::Reading || section == section::Analysis || section == section::Writing ||
      section == section::Speaking) {
    controls_.but(section).SetFocus();
  }
}

void Reading::storeCaret() {
  ViTriDanhSachBai = controls_.R1.SelStart();
  own_.lists.store(caretRecord(), ViTriDanhSachBai, state_.list.SoBaiChon);
}

void Reading::keep() {
  vocabulary_.keep();
  const int section = state_.places.MucMenu;
  const bool listOpen =
      section == section::Reading || section == section::Analysis || section == section::Speaking;
  if (DaNapDanhSach && listOpen) storeCaret();
}

void Reading::GoiR2() {
  shell_.hints.AnRDOS(controls_.R1);
  state_.atHand.keepListCaret(controls_.R1.SelStart());
  state_.atHand.dropEntry();
  state_.atHand.keepCaret(0);
  const int number = state_.list.SoBaiChon;
  const bool analysed = state_.places.MucMenu == section::Analysis;
  if (analysed && number < FirstAnalysedText) return;
  page_.LaBaiHuongDan = stores_.FileChiSo == file::TextPositions && number == GuideText;
  openVoice();
  text_.DocBai(number);
  page_.showText();
  if (analysed) page_.loadExplanations(number - FirstAnalysedText + 1);
  text_.DocDich(number);
  shell_.transitions.MoRan(controls_.R2, controls_.Frame2);
  state_.atHand.drop();
  controls_.RDOS.FontSize(controls_.R2.Font().size);
  controls_.RDOS.FontName("x1");
  shell_.curtain.KeoMan(controls_.R2);
}

void Reading::openVoice() {
  // A recording that another section has left open belongs to no text from here on.
  services_.voice.AmThanhThuc = false;
  const int text = state_.list.SoBaiChon;
  // The learner's own texts come behind the scripts.
  const bool isScript = text >= FirstScript && text <= Stores::ReadingTexts;
  if (stores_.FileChiSo == file::TextPositions && isScript)
    services_.voice.MoAm(1 + text - FirstScript);
}

void Reading::ExitR2() {
  services_.speech.DungDoc();
  if (services_.voice.AmThanhThuc) services_.voice.DongAm();
  page_.LaBaiHuongDan = false;
  state_.atHand.dropEntry();
  shell_.upward.DongNghia();
  state_.atHand.backToList();
  shell_.transitions.DongRan(controls_.R2, controls_.Frame2);
  controls_.Frame3.Visible(false);
  controls_.R1.SelStart(state_.word.ViTriCaretR1);
  ChonDongR1(controls_.R1);
  controls_.R1.SetFocus();
}

// -- The list.

void Reading::XayDanhSachBai() {
  if (state_.places.MucMenu == section::Vocabulary) return;
  state_.list.DanhSachBai.clear();
  state_.list.SoNhom = 0;
  for (int i = 1; i <= stores_.SoBai; ++i)
    appendTitle(i);
  showList();
}

void Reading::appendTitle(int i) {
  CurrentList& list = state_.list;
  std::string prefix = "\t\t";
  std::string line;
  PieceReader reader(stores_.fileOf(stores_.FileVanBan),
                     std::int64_t{stores_.ViTriBai[static_cast<std::size_t>(i)]} + 1, LongestTitle);
  for (bool ended = false; !ended;) {
    const auto piece = reader.next();
    ended = !piece || *piece == "\r";
    if (piece && *piece == "*") {
      prefix.clear();
      ++list.SoNhom;
      list.ViTriNhom[static_cast<std::size_t>(list.SoNhom)] =
          static_cast<std::int32_t>(list.DanhSachBai.size());
      // The next heading starts the table over, so that only the last ones are formatted.
      if (list.SoNhom > MostHeadings) list.SoNhom = 0;
    }
    line += !piece ? "\r" : *piece == "|" ? " " : *piece;
  }
  list.DanhSachBai += prefix + line;
  list.BangViTri[static_cast<std::size_t>(i)] = static_cast<std::int32_t>(list.DanhSachBai.size());
}

void Reading::showList() {
  Surface& R1 = controls_.R1;
  R1.Text("");
  if (state_.measures.largeScreen()) R1.FontBold(true);
  R1.SelProtected(true);
  R1.SelText(state_.list.DanhSachBai);
  R1.format({0, R1.TextLength()}, {.color = look::Body});
  VeDauMuc();
}

void Reading::VeDauMuc() {
  Surface& R1 = controls_.R1;
  for (int heading = 1; heading <= state_.list.SoNhom; ++heading) {
    styleHeading(state_.list.ViTriNhom[static_cast<std::size_t>(heading)]);
  }
  if (state_.places.MucMenu == section::Analysis) {
    R1.format({guidetext::GreyedFrom, guidetext::GreyedTo}, {.color = look::Greyed});
  }
  R1.SelStart(0);
}

void Reading::styleHeading(int caret) {
  Surface& R1 = controls_.R1;
  const int end = R1.paragraphStart(R1.paragraphOf(caret) + 1);
  R1.format({caret, end}, {.color = look::Heading,
                           .bold = true,
                           .protectedText = false,
                           .fontSize = R1.Font().size + 3});
}

void Reading::ChonDongR1(Surface& surface) {
  const std::string& list = state_.list.DanhSachBai;
  if (surface.SelStart() == surface.TextLength()) surface.SelStart(surface.SelStart() - 2);
  const int caret = std::min<int>(surface.SelStart(), static_cast<int>(list.size()));
  const auto lineEndBefore =
      caret > 0 ? list.rfind('\r', static_cast<std::size_t>(caret - 1)) : std::string::npos;
  // Positions count from 1 and carets from 0: the caret so comes to stand behind the line's first
  // character, which is a tab or the heading's mark.
  const int lineStart =
      lineEndBefore == std::string::npos ? 0 : static_cast<int>(lineEndBefore) + 2;
  ViTriDanhSachBai = lineStart;
  const auto lineEnd = list.find('\r', static_cast<std::size_t>(lineStart));
  surface.SelStart(lineStart);
  if (lineEnd != std::string::npos) {
    surface.SelLength(static_cast<int>(lineEnd) + 1 - lineStart);
  }
  state_.atHand.keepListCaret(lineStart);
  for (int i = 1; i <= stores_.SoBai; ++i) {
    if (lineStart < state_.list.BangViTri[static_cast<std::size_t>(i)]) {
      state_.list.SoBaiChon = i;
      break;
    }
  }
}

// -- Keys and mouse.

bool Reading::lineOpens() const {
  const Surface& R1 = controls_.R1;
  return state_.measures.largeScreen() ? R1.SelColor() != look::Heading : !R1.SelBold();
}

void Reading::openLine() {
  if (lineOpens()) GoiR2();
}

void Reading::pressKey(int& keyCode) {
  shell_.hints.showOnF2(keyCode, controls_.R1);
  if (keyCode != key::Right && keyCode != key::Left) return;
  if (keyCode == key::Right) {
    jumpToNextHeading();
  } else {
    jumpToPreviousHeading();
  }
  // The surface's own step would take the caret off the heading again.
  keyCode = 0;
}

void Reading::releaseKey(int keyCode) {
  shell_.gestures.keyReleased();
  constexpr std::array moves = {key::Up, key::Down, key::PgUp, key::PgDn, key::Home, key::End};
  if (contains(moves, keyCode)) ChonDongR1(controls_.R1);
}

void Reading::pressCharacter(int pressed) {
  if (pressed == key::Esc) pressEsc();
  if (pressed == key::Enter) openLine();
  if (Letters.has(chr(pressed))) services_.dictionary.MoDanhSachTu(chr(pressed));
}

void Reading::pressEsc() {
  if (shell_.gestures.DongPhu(controls_.R1)) return;
  if (controls_.RAmthanh.Visible()) return;
  if (controls_.R2.Visible()) {
    ExitR2();
  } else {
    ExitR1();
  }
}

void Reading::releaseMouse(MouseButton button) {
  if (button == MouseButton::Right) {
    state_.atHand.arm();
    shell_.steering.NhapTrai();
    return;
  }
  state_.atHand.dropEntry();
  ChonDongR1(controls_.R1);
  if (state_.atHand.takeArmed()) {
    if (MoNgheViet && lineOpens()) MoNgheViet();
    return;
  }
  openLine();
}

void Reading::jumpToNextHeading() {
  const CurrentList& list = state_.list;
  if (list.SoNhom == 0) return;
  const auto first = list.ViTriNhom.begin() + 1;
  const auto last = first + list.SoNhom;
  const auto next = std::find_if(
      first, last, [caret = controls_.R1.SelStart()](int heading) { return heading > caret; });
  jumpTo(next == last ? *(last - 1) : *next);
}

void Reading::jumpToPreviousHeading() {
  const CurrentList& list = state_.list;
  const int caret = controls_.R1.SelStart() - 1;
  int target = 0;
  for (int heading = 1; heading <= list.SoNhom; ++heading) {
    const int at = list.ViTriNhom[static_cast<std::size_t>(heading)];
    if (at < caret) target = at;
  }
  jumpTo(target);
}

void Reading::jumpTo(int caret) {
  Surface& R1 = controls_.R1;
  R1.SelStart(R1.TextLength() - 2);
  R1.SelStart(caret);
}

void Reading::declare(Variables& variables) const {
  variables.add("DaNapDanhSach", &DaNapDanhSach);
  variables.add("ViTriDanhSachBai", &ViTriDanhSachBai);
  page_.declare(variables);
  vocabulary_.declare(variables);
}

} // namespace talvora
