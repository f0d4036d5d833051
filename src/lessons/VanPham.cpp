#include "lessons/VanPham.h"

#include "formats/PackFiles.h"
#include "platform/FatalFailure.h"
#include "surface/Looks.h"
#include "surface/SectionNumbers.h"
#include "text/CharClass.h"
#include "text/Contains.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr int Lessons = static_cast<int>(CurrentList::LessonCount);
constexpr int FirstLineBar = 8;

} // namespace

VanPham::VanPham(LessonControls& controls, SharedState& state, const Stores& stores, Shell& shell,
                 PageServices services)
    : controls_(controls), state_(state), stores_(stores), shell_(shell),
      page_(controls, state, stores, shell, services) {
  wireEvents();
}

void VanPham::wireEvents() {
  Surface& RVP1 = controls_.RVP1;
  RVP1.KeyDown = [this](int& KeyCode, int) { pressKey(KeyCode); };
  RVP1.KeyUp = [this](int& KeyCode, int) {
    shell_.gestures.keyReleased();
    switch (KeyCode) {
    case key::Up:
    case key::Down:
    case key::Left:
    case key::Right:
    case key::Home:
    case key::End:
    case key::PgUp:
    case key::PgDn:
      ChonDongVP();
      break;
    default:
      break;
    }
  };
  RVP1.KeyPress = [this](int& KeyAscii) { pressCharacter(KeyAscii); };
  RVP1.MouseMove = [this, &RVP1](int, SurfacePoint at) { shell_.gestures.followPointer(RVP1, at); };
  RVP1.MouseUp = [this](MouseButton button, int, SurfacePoint) { releaseMouse(button); };
  shell_.pages.add({.surface = RVP1,
                    .textFont = true,
                    .font = FontStep::Smaller,
                    .parked = Parked::BelowAndBeside,
                    .pointerName = RVP1.Name(),
                    .hints = {{{"Enter/Chuột Trái=Mở bài đọc; Mũi tên Trái/phải=Tiêu đề"_x1,
                                "Gõ phím=Tra từ; Esc=thoát"_x1}}}});
  shell_.focusReturn.onReturnTo(FocusRank::LessonList, RVP1,
                                FocusReturn::unlessVisible(controls_.RVP2),
                                [this] { returnFocus(); });
  page_.leave = [this] { ExitRVP2(); };
}

// -- Entering and leaving.

void VanPham::open() {
  state_.places.MucMenu = section::Lessons;
  state_.atHand.disarm();
  BaiTuChon = true;
  Surface& RVP1 = controls_.RVP1;
  RVP1.FontSize(state_.measures.CoChu - 1);
  controls_.Frame1.BackColor(look::White);
  controls_.R1.Top(state_.measures.CaoMH);
  RVP1.Top(state_.measures.CaoMH);
  MoVanPham();
  shell_.transitions.MoRan(RVP1, controls_.Frame1);
  DanhSachGoc_ = RVP1.Text();
  shell_.gestures.remindOnFirstOpening(section::Lessons, RVP1);
}

void VanPham::MoVanPham() {
  const int CoChu = state_.measures.CoChu;
  controls_.RVP1.FontSize(state_.measures.largeScreen() ? CoChu - 5 : CoChu);
  page_.DocViTriVP();
  LapDanhSachVP();
}

void VanPham::GoiRVP2() {
  state_.atHand.keepListCaret(controls_.RVP1.SelStart());
  state_.atHand.enterPage();
  controls_.RHD.FontBold(false);
  page_.MoBaiVP(state_.list.SoBaiChon);
  shell_.transitions.MoRan(controls_.RVP2, controls_.Frame2);
  state_.atHand.drop();
  shell_.curtain.KeoMan(controls_.RVP2);
}

void VanPham::ExitRVP2() {
  Surface& RVP1 = controls_.RVP1;
  if (!controls_.RVP2.Visible()) return;
  state_.atHand.dropEntry();
  shell_.upward.DongNghia();
  state_.atHand.backToList();
  shell_.transitions.DongRan(controls_.RVP2, controls_.Frame2);
  RVP1.SelStart(state_.word.ViTriCaretR1);
  ChonDongVP();
  RVP1.SetFocus();
}

void VanPham::ExitRVP1() {
  controls_.Frame2.Visible(false);
  controls_.Frame3.Visible(false);
  shell_.transitions.DongRan(controls_.RVP1, controls_.Frame1);
  BaiTuChon = false;
  controls_.but(section::Lessons).SetFocus();
}

void VanPham::returnFocus() {
  controls_.RVP1.SelStart(state_.word.ViTriCaretR1);
  ChonDongVP();
  controls_.RVP1.SetFocus();
}

// -- The list.

void VanPham::LapDanhSachVP() {
  CurrentList& list = state_.list;
  list.DanhSachBai.clear();
  list.SoNhom = 0;
  TrangThaiVP_.fill(LessonMark::NotMarkable);
  for (int n = 1; n <= Lessons; ++n)
    appendLine(n);
  if (state_.places.MucMenu != section::Analysis) showList(list.DanhSachBai);
}

void VanPham::appendLine(int n) {
  CurrentList& list = state_.list;
  const auto place = static_cast<std::size_t>(n);
  // A heading keeps the number that the next line is to have.
  const int number = n - list.SoNhom;
  std::string prefix = Str(number) + "\t\t";
  std::string title;
  PieceReader reader(stores_.fileOf(file::Lessons), std::int64_t{page_.ViTriVP[place]} + 1,
                     LongestTitle);
  bool first = true;
  while (const auto piece = reader.next()) {
    if (*piece == "\r") break;
    if (*piece == "." && first) {
      prefix = Str(number) + ".\t\t";
      TrangThaiVP_[place] = LessonMark::Unmarked;
    } else {
      if (*piece == "*" && !prefix.empty()) {
        prefix.clear();
        addHeading(n);
      }
      title += *piece;
    }
    first = false;
  }
  list.DanhSachBai += prefix + title + "\r";
  list.TenBaiHoc[place] = std::move(title);
  list.BangViTri[place] = static_cast<std::int32_t>(list.DanhSachBai.size());
}

void VanPham::addHeading(int n) {
  CurrentList& list = state_.list;
  if (list.SoNhom == static_cast<int>(CurrentList::MaxHeadings)) {
    throw FatalFailure(stores_.pathOf(packfile::Lessons) + ": lesson " + std::to_string(n) +
                       " is one heading more than the list has room for");
  }
  ++list.SoNhom;
  list.ViTriNhom[static_cast<std::size_t>(list.SoNhom)] =
      static_cast<std::int32_t>(list.DanhSachBai.size());
}

void VanPham::showList(const std::string& list) {
  Surface& RVP1 = controls_.RVP1;
  RVP1.Text("");
  RVP1.SelColor(look::Body);
  RVP1.SelBold(state_.measures.largeScreen());
  RVP1.SelText(list);
  RVP1.SelStart(0);
  ToMauNhom();
}

void VanPham::ToMauNhom() {
  Surface& RVP1 = controls_.RVP1;
  const double size = RVP1.Font().size;
  for (int heading = 1; heading <= state_.list.SoNhom; ++heading) {
    const int from = state_.list.ViTriNhom[static_cast<std::size_t>(heading)];
    const int to = RVP1.paragraphStart(RVP1.paragraphOf(from) + 1);
    RVP1.format({from, to}, {.color = look::Heading, .bold = true, .fontSize = size + 3});
  }
}

void VanPham::ChonDongVP() {
  Surface& RVP1 = controls_.RVP1;
  CurrentList& list = state_.list;
  const std::string& text = list.DanhSachBai;
  if (RVP1.SelStart() == RVP1.TextLength()) RVP1.SelStart(RVP1.SelStart() - 2);
  if (RVP1.SelStart() <= FirstLineBar) {
    list.SoBaiChon = 1;
    RVP1.SelStart(0);
    RVP1.SelLength(FirstLineBar);
    return;
  }
  const auto caret = static_cast<std::size_t>(RVP1.SelStart());
  // Positions count from 1 and carets from 0, so that the bar begins behind the line's first
  // character.
  const auto endBefore = text.rfind('\r', caret - 1);
  const std::size_t start = endBefore == std::string::npos ? caret : endBefore + 2;
  const auto end = text.find('\r', start);
  RVP1.SelStart(static_cast<int>(start));
  if (end != std::string::npos) RVP1.SelLength(static_cast<int>(end + 1 - start));
  for (int n = 1; n <= Lessons; ++n) {
    if (list.BangViTri[static_cast<std::size_t>(n)] > RVP1.SelStart()) {
      list.SoBaiChon = n;
      break;
    }
  }
}

// -- Keys.

void VanPham::pressKey(int keyCode) {
  shell_.hints.showOnF2(keyCode, controls_.RVP1);
  // The surface's own step follows, and the places below allow for it.
  if (keyCode == key::Right) jumpToNextHeading();
  if (keyCode == key::Left) jumpToPreviousHeading();
}

void VanPham::jumpToNextHeading() {
  const CurrentList& list = state_.list;
  const int caret = controls_.RVP1.SelStart();
  const int last = list.ViTriNhom[static_cast<std::size_t>(list.SoNhom)];
  if (caret >= last - 1) {
    controls_.RVP1.SelStart(caret - 1);
    state_.atHand.keepCaret(controls_.RVP1.SelStart());
    return;
  }
  const auto first = list.ViTriNhom.begin() + 1;
  jumpTo(*std::find_if(first, first + list.SoNhom - 1,
                       [caret](int heading) { return heading > caret; }));
}

void VanPham::jumpToPreviousHeading() {
  const CurrentList& list = state_.list;
  const int caret = controls_.RVP1.SelStart() - 1;
  if (caret < 0) return;
  int target = 0;
  for (int heading = 1; heading <= list.SoNhom; ++heading) {
    const int at = list.ViTriNhom[static_cast<std::size_t>(heading)];
    if (at < caret) target = at + 1;
  }
  jumpTo(target + 1);
}

void VanPham::jumpTo(int caret) {
  Surface& RVP1 = controls_.RVP1;
  RVP1.SelStart(static_cast<int>(state_.list.DanhSachBai.size()) - 2);
  RVP1.SelStart(caret);
  state_.atHand.keepCaret(caret);
}

void VanPham::pressCharacter(int& keyAscii) {
  const int pressed = std::exchange(keyAscii, 0);
  if (pressed == key::Enter) {
    pressEnter();
  } else if (pressed == key::Esc) {
    pressEsc();
  } else if (Letters.has(chr(pressed))) {
    state_.atHand.keepListCaret(controls_.RVP1.SelStart());
    page_.openListOn(pressed);
  }
}

void VanPham::pressEnter() {
  if (!ConBaiChon()) {
    GoiRVP2();
    return;
  }
  state_.atHand.keepListCaret(controls_.RVP1.SelStart());
  BatDauChon();
}

void VanPham::pressEsc() {
  if (controls_.RTD.Visible()) return;
  if (controls_.RHD.Visible()) {
    shell_.upward.DongNghia();
  } else if (controls_.RVP2.Visible()) {
    ExitRVP2();
  } else if (controls_.RDOS.Visible()) {
    shell_.hints.AnRDOS(controls_.RVP1);
  } else if (ConBaiChon()) {
    BoChonBai();
  } else {
    state_.atHand.disarm();
    ExitRVP1();
  }
}

// -- Marks.

LessonMark& VanPham::markOf(int lesson) {
  return TrangThaiVP_[static_cast<std::size_t>(std::clamp(lesson, 0, Lessons))];
}

bool VanPham::isMarked(int lesson) const {
  return lesson >= 1 && lesson <= Lessons &&
         TrangThaiVP_[static_cast<std::size_t>(lesson)] == LessonMark::Marked;
}

bool VanPham::ConBaiChon() const {
  return contains(TrangThaiVP_, LessonMark::Marked);
}

void VanPham::BoChonBai() {
  if (!ConBaiChon()) return;
  std::replace(TrangThaiVP_.begin(), TrangThaiVP_.end(), LessonMark::Marked, LessonMark::Unmarked);
  showList(DanhSachGoc_);
  controls_.RVP1.SelStart(state_.word.ViTriCaretR1);
  state_.atHand.disarm();
  controls_.RVP1.SetFocus();
}

void VanPham::releaseMouse(MouseButton button) {
  if (button == MouseButton::Right) {
    state_.atHand.arm();
    shell_.steering.NhapTrai();
  } else if (state_.word.ChoGiai || ConBaiChon()) {
    // A pick from the look-up list clears the flag, and not the marks.
    state_.atHand.arm();
    toggleMark();
  } else {
    openClickedLine();
  }
}

void VanPham::toggleMark() {
  Surface& RVP1 = controls_.RVP1;
  ChonDongVP();
  LessonMark& mark = markOf(state_.list.SoBaiChon);
  if (mark == LessonMark::NotMarkable) {
    armWhileMarked();
    return;
  }
  if (RVP1.SelColor() == look::Blue) {
    RVP1.SelColor(look::Body);
    if (mark == LessonMark::Marked) mark = LessonMark::Unmarked;
    armWhileMarked();
  } else {
    RVP1.SelColor(look::Blue);
    mark = LessonMark::Marked;
  }
  if (state_.word.ChoGiai) RVP1.SelLength(0);
}

void VanPham::armWhileMarked() {
  if (ConBaiChon()) {
    state_.atHand.arm();
  } else {
    state_.atHand.disarm();
  }
}

void VanPham::openClickedLine() {
  Surface& RVP1 = controls_.RVP1;
  const int caret = RVP1.SelStart();
  shell_.upward.DongNghia();
  shell_.gestures.keyReleased();
  RVP1.SetFocus();
  // Closing the popup gives the caret of the list back; the click is what counts.
  RVP1.SelStart(caret);
  ChonDongVP();
  GoiRVP2();
}

void VanPham::declare(Variables& variables) const {
  page_.declare(variables);
  variables.addTable("TrangThaiVP", &TrangThaiVP_);
  variables.add("DanhSachGoc", &DanhSachGoc_);
  variables.add("BaiTuChon", &BaiTuChon);
}

} // namespace talvora
