#include "lessons/LessonPage.h"

#include "lessons/LessonMarkup.h"
#include "surface/Looks.h"
#include "text/Vietnamese.h"

#include <utility>

namespace talvora {

LessonPage::LessonPage(LessonControls& controls, SharedState& state, const Stores& stores,
                       Shell& shell, PageServices services)
    : controls_(controls), state_(state), stores_(stores), shell_(shell),
      words_(controls, state, shell, services) {
  wireEvents();
  addToShell();
}

void LessonPage::wireEvents() {
  Surface& RVP2 = controls_.RVP2;
  RVP2.KeyDown = [this](int& KeyCode, int Shift) { pressKey(KeyCode, Shift); };
  RVP2.KeyPress = [this](int& KeyAscii) { pressCharacter(KeyAscii); };
  RVP2.KeyUp = [this, &RVP2](int&, int Shift) {
    shell_.gestures.keyReleased();
    if (!state_.word.DaChonRTD) words_.hidePopup();
    words_.closeWithoutCtrl(Shift, RVP2);
  };
  RVP2.MouseMove = [this, &RVP2](int, SurfacePoint at) { shell_.gestures.followPointer(RVP2, at); };
  RVP2.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
  RVP2.DblClick = [this] { state_.atHand.askForSentence(); };
  RVP2.SelChange = [this, &RVP2] {
    if (RVP2.SelLength() == 0) state_.atHand.drop();
  };
}

void LessonPage::addToShell() {
  Surface& RVP2 = controls_.RVP2;
  shell_.pages.add({.surface = RVP2,
                    .textFont = true,
                    .parked = Parked::BelowTheScreen,
                    .pointerName = RVP2.Name(),
                    .cardOverPage = &controls_.Frame3,
                    .hints = {{{"Chuột Trái=Tra từ; Ctrl=Tra từ; Chuột phải= đọc lại"_x1,
                                "Gõ phím=Tra từ; Esc=thoát."_x1}}}});
  // A lesson over an item or a text covers all of the page that has opened it.
  shell_.focusReturn.onReturnTo(FocusRank::LinkedLesson, RVP2,
                                [this] { return shell_.pages.pageOverPage(); });
  shell_.focusReturn.onReturnTo(FocusRank::Lesson, RVP2);
}

// -- Keys and mouse.

void LessonPage::pressKey(int keyCode, int shift) {
  Surface& RVP2 = controls_.RVP2;
  // A pick from the look-up list holds the popup only until the next key.
  state_.atHand.endPick();
  words_.hidePopup();
  shell_.hints.showOnF2(keyCode, RVP2);
  words_.showOnCtrl(keyCode, shift, RVP2);
}

void LessonPage::pressCharacter(int& keyAscii) {
  const int pressed = std::exchange(keyAscii, 0);
  state_.atHand.keepCaret(controls_.RVP2.SelStart());
  if (pressed == key::Esc) {
    // A lesson over an exercise is an extra, which the shared table closes.
    if (!shell_.gestures.DongPhu(controls_.RVP2)) leave();
    return;
  }
  words_.openListOn(pressed);
}

void LessonPage::releaseMouse(MouseButton button, SurfacePoint at) {
  shell_.gestures.keyReleased();
  if (button == MouseButton::Right) {
    if (!state_.word.TuHienTai.empty()) words_.speak();
    return;
  }
  state_.atHand.clickedAt(at, controls_.RVP2.SelStart());
  words_.hidePopup();
  if (state_.atHand.takeDoubleClick()) {
    shell_.wordPick.LayTuChon(controls_.RVP2);
  } else {
    words_.lookUpAtCaret(controls_.RVP2);
  }
}

// -- The page.

void LessonPage::DocViTriVP() {
  const RecordFile& positions = stores_.fileOf(file::LessonPositions);
  for (std::size_t n = 1; n <= CurrentList::LessonCount; ++n) {
    ViTriVP[n] = positions.integer(static_cast<std::int64_t>(n));
  }
}

void LessonPage::MoBaiVP(int n) {
  if (n < 0 || n > static_cast<int>(CurrentList::LessonCount)) return;
  ViTriVan = ViTriVP[static_cast<std::size_t>(n)];
  std::string& CauHoi = state_.text.CauHoi;
  CauHoi = "_";
  PieceReader reader(stores_.fileOf(file::Lessons), std::int64_t{ViTriVan} + 1);
  while (const auto piece = reader.next()) {
    if (*piece == "@") break;
    CauHoi += *piece;
  }
  Surface& RVP2 = controls_.RVP2;
  RVP2.FontName("x1");
  RVP2.FontSize(state_.measures.CoChu);
  RVP2.Text("");
  RVP2.SelIndent(look::BodyIndent);
  RVP2.SelBold(state_.measures.largeScreen());
  HienBaiVP(CauHoi);
}

void LessonPage::HienBaiVP(std::string_view text) {
  Surface& RVP2 = controls_.RVP2;
  for (const ColouredPiece& piece : layOutLesson(text)) {
    RVP2.SelColor(piece.color);
    RVP2.SelText(piece.text);
  }
  deleteFirst();
  const bool hasItems = text.size() > 1 && text[1] == '.';
  if (hasItems) deleteFirst();
  styleTitle();
  RVP2.SelStart(RVP2.TextLength());
  RVP2.SelText('\r');
  RVP2.SelStart(0);
}

void LessonPage::deleteFirst() {
  Surface& RVP2 = controls_.RVP2;
  RVP2.write({0, 1}, "");
}

void LessonPage::styleTitle() {
  Surface& RVP2 = controls_.RVP2;
  // Without a line end the whole page is the title.
  const TextRange title{0, RVP2.paragraphStart(1)};
  RVP2.formatParagraphs(title, {.align = Alignment::Centred});
  RVP2.format(title, {.color = look::Heading,
                      .bold = true,
                      .fontSize = static_cast<double>(state_.measures.CoChu + 3)});
}

void LessonPage::declare(Variables& variables) const {
  variables.addTable("ViTriVP", &ViTriVP);
  variables.add("ViTriVan", &ViTriVan);
}

} // namespace talvora
