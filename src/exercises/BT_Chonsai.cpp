#include "exercises/BT_Chonsai.h"

#include "exercises/Blanks.h"
#include "exercises/ItemMask.h"
#include "exercises/ItemRecord.h"
#include "surface/Looks.h"
#include "text/Vietnamese.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr char WrongPhrase = '`';

} // namespace

BT_Chonsai::BT_Chonsai(ItemServices& services)
    : services_(services), Rsai_(services.controls.Rsai), item_(services.item),
      page_(services.controls.Rsai, services, HeadingAnswers::No) {
  wireEvents();
  // It shares the fill-in's pointer; that is meant.
  page_.addToShell(
      {.pointerName = "RDT",
       .closing = CloseRank::Mistake,
       .focus = FocusRank::Mistake,
       .hints = {{{"Chuột Trái=Chọn câu; Chuột phải=Xem hướng dẫn"_x1,
                   "Nhấn chuột phải vào câu Anh = câu dịch; Chuột Trái\\Ctrl=Tra từ"_x1}}}});
}

void BT_Chonsai::wireEvents() {
  Rsai_.KeyDown = [this](int& KeyCode, int Shift) { page_.pressKey(KeyCode, Shift); };
  Rsai_.KeyPress = [this](int& KeyAscii) {
    page_.pressLetter(std::exchange(KeyAscii, 0), Rsai_.SelStart());
  };
  Rsai_.KeyUp = [this](int&, int Shift) { page_.releaseKey(Shift); };
  Rsai_.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
}

// -- Drawing.

void BT_Chonsai::show() {
  std::string& CauHoi = services_.state.text.CauHoi;
  const std::string body = TachThan(CauHoi);
  item_.DapAnDung = keyOf(CauHoi);
  VeChonSai(body);
}

void BT_Chonsai::VeChonSai(const std::string& body) {
  page_.writeHidden(body);
  drawPhrases();
  page_.goToFirstMark();
  LapOTrong(item_, services_.state.list.TenBaiHoc);
  DanhDauSai();
}

void BT_Chonsai::drawPhrases() {
  const int length = static_cast<int>(item_.MatNa.size());
  for (int p = 1; p <= length; ++p) {
    if (item_.maskAt(p) == PlainText) continue;
    const int end = stretchEnd(item_.MatNa, p);
    std::string phrase =
        item_.MatNa.substr(static_cast<std::size_t>(p - 1), static_cast<std::size_t>(end - p + 1));
    for (char& character : phrase) {
      if (character == '*' || character == '_') character = ' ';
    }
    Rsai_.write({p - 1, end}, phrase, {.color = look::Blue, .underline = true});
    p = end;
  }
}

void BT_Chonsai::DanhDauSai() {
  std::string& mask = item_.MatNa;
  auto star = mask.find('*');
  for (int number = 1; number < item_.DapAnDung && star != std::string::npos; ++number) {
    star = mask.find('*', star + 1);
  }
  if (star == std::string::npos || item_.DapAnDung < 1) return;
  const int end = stretchEnd(mask, static_cast<int>(star) + 1);
  std::fill(mask.begin() + static_cast<std::ptrdiff_t>(star), mask.begin() + end, WrongPhrase);
}

// -- Choosing.

int BT_Chonsai::phraseStart(int c) const {
  int plain = c;
  while (plain > 0 && item_.maskAt(plain) != PlainText)
    --plain;
  const auto from = static_cast<std::size_t>(std::max(plain - 1, 1) - 1);
  return static_cast<int>(item_.MatNa.find('*', from) + 1);
}

void BT_Chonsai::ChamChonSai(Choice choice) {
  const int c = Rsai_.SelStart();
  if (c < 1 || c > item_.links.DauBack - 1) return;
  const bool wrongPhrase = item_.maskAt(c + 1) == WrongPhrase || item_.maskAt(c - 1) == WrongPhrase;
  const int start =
      wrongPhrase ? static_cast<int>(item_.MatNa.find(WrongPhrase)) + 1 : phraseStart(c);
  if (choice == Choice::Made && wrongPhrase && item_.KetQuaCau == 0) {
    item_.KetQuaCau = 1;
    services_.run.CongDung();
  } else if (choice == Choice::Made && !wrongPhrase) {
    item_.KetQuaCau = -1;
  }
  if (start < 1) return;
  if (choice == Choice::Made) services_.shell.messages.answerJudged({wrongPhrase ? 1 : 0, 1});
  const int length = stretchEnd(item_.MatNa, start) - start + 1;
  services_.answer.emphasise(Rsai_, start - 1, length + 1, wrongPhrase ? look::Red : look::Blue);
}

void BT_Chonsai::GiaiChonSai(int p) {
  item_.DaCham = true;
  if (!item_.pastHeading(p) || item_.OTrong.count() == 0) return;
  const int number = item_.OTrong.find(p);
  if (number > 0) ChamChonSai(Choice::Explained);
  services_.box.HienLoiGiai(item_.OTrong.at(number).Chu, Rsai_);
}

void BT_Chonsai::releaseMouse(MouseButton button, SurfacePoint at) {
  const int p = page_.position();
  const ItemPage::Click click = page_.releaseMouse(button, at);
  if (click == ItemPage::Click::Done) return;
  if (click == ItemPage::Click::Explain) {
    GiaiChonSai(p);
    return;
  }
  if (!item_.pastHeading(p)) return;
  if (item_.maskAt(p - 1) == PlainText) {
    page_.lookUp();
  } else {
    ChamChonSai(Choice::Made);
  }
}

} // namespace talvora
