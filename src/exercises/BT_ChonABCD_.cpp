#include "exercises/BT_ChonABCD_.h"

#include "exercises/Blanks.h"
#include "exercises/ItemMask.h"
#include "exercises/ItemRecord.h"
#include "surface/Looks.h"
#include "text/CharClass.h"
#include "text/Vietnamese.h"

#include <utility>

namespace talvora {

namespace {

constexpr int Options = 4;
constexpr int EarliestLabel = 10;
constexpr char WrongLabel = '0';
constexpr char RightLabel = '9';
constexpr char NoAnswer = '5';
constexpr CharClass OptionText("[1234]");
constexpr CharClass OptionOrLabel("[123409]");

} // namespace

BT_ChonABCD_::BT_ChonABCD_(ItemServices& services)
    : services_(services), RABCD_(services.controls.RABCD), item_(services.item),
      page_(services.controls.RABCD, services) {
  wireEvents();
  page_.addToShell(
      {.pointerName = "RABCD",
       .closing = CloseRank::Choice,
       .focus = FocusRank::Choice,
       .hints = {{{"Nhấn chuột Trái vào ( )=Xem đáp án; Nhấn chuột phải vào ( )=Xem hướng dẫn"_x1,
                   "Nhấn chuột phải vào câu Anh = Xem câu dịch"_x1}}}});
}

void BT_ChonABCD_::wireEvents() {
  RABCD_.KeyDown = [this](int& KeyCode, int Shift) { page_.pressKey(KeyCode, Shift); };
  RABCD_.KeyPress = [this](int& KeyAscii) {
    page_.pressLetter(std::exchange(KeyAscii, 0), RABCD_.SelStart());
  };
  RABCD_.KeyUp = [this](int&, int Shift) { page_.releaseKey(Shift); };
  RABCD_.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
}

// -- Drawing.

void BT_ChonABCD_::show() {
  std::string& CauHoi = services_.state.text.CauHoi;
  const std::string stem = TachThan(CauHoi);
  item_.GoiY = TachPhuongAn(CauHoi);
  item_.DapAnDung = keyOf(CauHoi);
  VeABCD(stem);
}

void BT_ChonABCD_::VeABCD(const std::string& stem) {
  page_.begin();
  item_.MatNa = item_.DeMuc + "\r\r" + stem + "\r";
  RABCD_.SelText(item_.MatNa);
  TaoMatNa(item_.MatNa);
  stemEnd_ = RABCD_.SelStart();
  for (int number = 1; number <= Options; ++number)
    writeOption(number);
  page_.writeFoot();
  colourOptions(stemEnd_);
  hideMarks(stemEnd_);
  item_.MatNa.replace(0, item_.DeMuc.size() + 2, item_.DeMuc.size() + 2, NoAnswer);
  page_.goTo(0);
  LapOTrong(item_, services_.state.list.TenBaiHoc);
}

void BT_ChonABCD_::writeOption(int number) {
  const char label = number == item_.DapAnDung ? RightLabel : WrongLabel;
  GhiMa({"(", 1}, label);
  const char letter = static_cast<char>('a' + number - 1);
  GhiMa({&letter, 1}, label);
  GhiMa(")\t", label);
  GhiMa(item_.hint(number), static_cast<char>('0' + number));
  GhiMa("\r", NoAnswer);
}

void BT_ChonABCD_::GhiMa(std::string_view text, char digit) {
  RABCD_.SelText(text);
  item_.MatNa.append(text.size(), digit);
}

void BT_ChonABCD_::colourOptions(int stemEnd) {
  const int end = item_.links.DauBack;
  for (int p = 1; p <= end; ++p) {
    if (item_.maskAt(p) == PlainText) continue;
    const int last = p > stemEnd ? end : stretchEnd(item_.MatNa, p);
    RABCD_.format({p - 1, last}, {.color = look::Blue});
    p = last;
  }
}

void BT_ChonABCD_::hideMarks(int stemEnd) {
  for (int p = 1; p <= stemEnd; ++p) {
    const char mark = item_.maskAt(p);
    if (mark != '*' && mark != '_') continue;
    RABCD_.write({p - 1, p}, " ");
    item_.MatNa[static_cast<std::size_t>(p - 1)] = PlainText;
  }
}

// -- Options.

void BT_ChonABCD_::TimPhuongAn(int p) {
  const int end = static_cast<int>(item_.MatNa.size());
  int first = p;
  if (OptionText.has(item_.maskAt(p))) {
    while (first > EarliestLabel && OptionText.has(item_.maskAt(first - 1)))
      --first;
  } else {
    while (first < end && !OptionText.has(item_.maskAt(first)))
      ++first;
  }
  int last = first;
  while (last < end && OptionText.has(item_.maskAt(last + 1)))
    ++last;
  DauPhuongAn_ = first;
  CuoiPhuongAn_ = last;
  PhuongAnChon_ = OptionText.has(item_.maskAt(last)) ? item_.maskAt(last) - '0' : 0;
  DungPhuongAn_ = PhuongAnChon_ == item_.DapAnDung;
}

void BT_ChonABCD_::ToPhuongAn(Colour colour) {
  const TextRange option{DauPhuongAn_ - 1, CuoiPhuongAn_ - 1};
  RABCD_.format(option, {.color = colour});
  if (DungPhuongAn_) RABCD_.format(option, {.bold = true});
  // What was selected has been answered.
  RABCD_.SelLength(0);
}

void BT_ChonABCD_::ChamABCD(int p) {
  TimPhuongAn(p);
  if (!DungPhuongAn_) {
    ToPhuongAn(look::Greyed);
    item_.KetQuaCau = -1;
    services_.shell.messages.answerJudged({0, 1});
    return;
  }
  // A label takes four positions.
  constexpr int LabelLength = 4;
  int label = stemEnd_ + 1;
  for (int number = 1; number <= Options && label <= static_cast<int>(item_.MatNa.size());
       ++number) {
    const auto found = item_.MatNa.find_first_of("09", static_cast<std::size_t>(label - 1));
    if (found == std::string::npos) break;
    label = static_cast<int>(found) + 1;
    TimPhuongAn(label);
    ToPhuongAn(DungPhuongAn_ ? look::Blue : look::Greyed);
    label += LabelLength;
  }
  TimPhuongAn(p);
  services_.shell.messages.answerJudged({1, 1});
  if (item_.KetQuaCau != 0) return;
  item_.KetQuaCau = 1;
  services_.run.CongDung();
}

void BT_ChonABCD_::GiaiABCD(int p) {
  const char mask = item_.maskAt(p);
  if (OptionOrLabel.has(mask)) {
    TimPhuongAn(p);
    item_.DaCham = true;
    services_.box.HienLoiGiai(item_.OTrong.at(PhuongAnChon_).Chu, RABCD_);
  } else if (mask == PlainText) {
    services_.box.HienLoiGiai("", RABCD_);
  }
}

void BT_ChonABCD_::releaseMouse(MouseButton button, SurfacePoint at) {
  const int p = page_.position();
  const ItemPage::Click click = page_.releaseMouse(button, at);
  if (click == ItemPage::Click::Done) return;
  if (click == ItemPage::Click::Explain) {
    GiaiABCD(p);
    return;
  }
  const char mask = item_.maskAt(p);
  if (mask == WrongLabel || mask == RightLabel) {
    ChamABCD(p);
  } else if (mask != NoAnswer && mask != '\0') {
    page_.lookUp();
  }
}

void BT_ChonABCD_::declare(Variables& variables) const {
  variables.add("DauPhuongAn", &DauPhuongAn_);
  variables.add("CuoiPhuongAn", &CuoiPhuongAn_);
  variables.add("PhuongAnChon", &PhuongAnChon_);
  variables.add("DungPhuongAn", &DungPhuongAn_);
}

} // namespace talvora
