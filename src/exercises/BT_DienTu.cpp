#include "exercises/BT_DienTu.h"

#include "exercises/Blanks.h"
#include "exercises/ItemMask.h"
#include "exercises/ItemRecord.h"
#include "surface/Looks.h"
#include "text/Bytes.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

#include <utility>

namespace talvora {

namespace {

constexpr std::string_view UnknownKey = "_______";
/// Is at hand beside a hint: no word, and not nothing, so that the pointer takes the hint away.
constexpr std::string_view HintAtHand = " ";

/// Writes the English pronoun as a capital where its small letter stands between two marks.
void capitaliseFirst(std::string& text, std::string_view pronoun) {
  const auto at = text.find(pronoun);
  if (at != std::string::npos) text[at + 1] = 'I';
}

std::string withCapitalPronouns(std::string text) {
  for (int round = 0; round < 2; ++round) {
    for (const std::string_view pronoun : {" i ", "_i ", " i_"})
      capitaliseFirst(text, pronoun);
  }
  return text;
}

/// Whether an answer is what a key accepts: the key itself, as it is written, or one of the first
/// two of its forms.
bool accepts(std::string_view key, std::string_view answer) {
  if (key == answer) return true;
  const auto first = key.find('\\');
  if (first == std::string_view::npos) return false;
  const auto second = key.find('\\', first + 1);
  const auto length = second == std::string_view::npos ? second : second - first - 1;
  return answer == trim(key.substr(0, first)) || answer == trim(key.substr(first + 1, length));
}

} // namespace

BT_DienTu::BT_DienTu(ItemServices& services)
    : services_(services), RDT_(services.controls.RDT), item_(services.item),
      page_(services.controls.RDT, services) {
  wireEvents();
  page_.addToShell({.pointerName = "RDT",
                    .closing = CloseRank::FillIn,
                    .focus = FocusRank::FillIn,
                    .hints = {{{"chuột Trái (__) = đáp án; Chuột phải (__) = hướng dẫn"_x1,
                                "Chuột phải câu Anh = câu dịch; Chuột Trái\\Ctrl=Tra từ"_x1,
                                "Gõ phím=Tra từ"_x1},
                               [this] { return item_.DaCham; }},
                              {{"Chuột Trái=Tra từ; Chuột phải=Xem câu dịch; Next=Qua câu mới"_x1,
                                "Enter=đáp án (Rồi Nhấn F2)"_x1, " Esc = thoát"_x1}}}});
}

void BT_DienTu::wireEvents() {
  RDT_.KeyDown = [this](int& KeyCode, int Shift) { pressKey(KeyCode, Shift); };
  RDT_.KeyPress = [this](int& KeyAscii) { pressCharacter(KeyAscii); };
  RDT_.KeyUp = [this](int& KeyCode, int Shift) { releaseKey(KeyCode, Shift); };
  RDT_.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
}

// -- Drawing.

void BT_DienTu::show() {
  if (item_.LoaiBT == ItemKind::None) {
    RDT_.Text("");
    return;
  }
  item_.listsLessons = services_.run.bankListsLessons();
  VeDienTu(TachThan(services_.state.text.CauHoi));
}

void BT_DienTu::entered() {
  if (item_.SoGoiY > 0) HienGoiY(page_.position());
}

void BT_DienTu::VeDienTu(const std::string& body) {
  page_.writeHidden(body);
  drawCells();
  page_.goToFirstMark();
  LapOTrong(item_, services_.state.list.TenBaiHoc);
}

void BT_DienTu::drawCells() {
  const int length = static_cast<int>(item_.MatNa.size());
  for (int p = 1; p <= length; ++p) {
    if (item_.maskAt(p) == PlainText) continue;
    const int end = stretchEnd(item_.MatNa, p);
    RDT_.write({p - 1, end}, std::string(static_cast<std::size_t>(end - p + 1), '_'),
               {.color = look::Heading, .underline = true});
    p = end;
  }
}

void BT_DienTu::HienGoiY(int p) {
  const int blank = item_.OTrong.find(p);
  if (blank == 0) return;
  services_.state.atHand.take(HintAtHand);
  services_.state.atHand.keepCaret(RDT_.SelStart());
  services_.shell.hints.DatRDOS();
  Surface& RDOS = services_.controls.RDOS;
  RDOS.Text("");
  RDOS.SelAlignment(Alignment::Centred);
  RDOS.SelFontSize(services_.state.measures.CoChu);
  RDOS.SelColor(look::Body);
  RDOS.SelText("Điền dạng đúng của  "_x1);
  RDOS.SelColor(look::Red);
  RDOS.SelText(item_.hint(blank));
  RDOS.SelColor(look::Body);
  RDOS.SelText("  vào chỗ trống."_x1);
  RDOS.Visible(true);
}

bool BT_DienTu::givesHint(int p) const {
  return item_.SoGoiY > 0 && !services_.state.word.ChoGiai && !item_.DaCham &&
         item_.maskAt(p) != PlainText;
}

// -- Keys.

void BT_DienTu::pressKey(int& keyCode, int shift) {
  const int pressed = keyCode;
  if (pressed == key::Backspace && RDT_.SelLength() > 0) {
    keyCode = 0;
    return;
  }
  page_.pressKey(keyCode, shift);
  if (pressed == key::Delete) keyCode = 0;
  if (pressed == key::Backspace) {
    eraseCell();
    keyCode = 0;
  }
  if (pressed != key::Left && pressed != key::Right) return;
  if (givesHint(page_.position())) HienGoiY(page_.position());
}

void BT_DienTu::eraseCell() {
  const int p = page_.position();
  if (p < 3 || item_.maskAt(p - 1) == PlainText) return;
  const int cell = RDT_.SelStart() - 1;
  writeCell(cell, '_');
  RDT_.SelStart(cell);
}

void BT_DienTu::writeCell(int caret, char character) {
  RDT_.SelStart(caret);
  RDT_.SelLength(1);
  RDT_.SelUnderline(true);
  RDT_.SelText(character);
}

void BT_DienTu::pressCharacter(int& keyAscii) {
  const int pressed = std::exchange(keyAscii, 0);
  if (item_.DaCham) {
    pressAfterJudging(pressed);
    return;
  }
  if (RDT_.SelLength() > 0) return;
  if (pressed == key::Enter) {
    services_.controls.RDOS.Visible(false);
    ChamDienTu();
    item_.DaCham = true;
  } else if (pressed >= key::Space) {
    typeInto(chr(pressed));
  }
}

void BT_DienTu::pressAfterJudging(int keyAscii) {
  if (keyAscii != key::Enter) {
    page_.pressLetter(keyAscii, page_.position());
    return;
  }
  RDT_.SelLength(0);
  services_.answer.keepInBlank(RDT_);
  services_.run.next();
}

void BT_DienTu::typeInto(char character) {
  const int p = page_.position();
  if (item_.maskAt(p) == PlainText || item_.maskAt(p) == '\0') return;
  writeCell(p - 1, character);
}

void BT_DienTu::releaseKey(int keyCode, int shift) {
  page_.releaseKey(shift);
  // The release of Esc shows no hint, so that the item can be left.
  if (keyCode == key::Up || keyCode == key::Down || keyCode == key::Esc) return;
  if (givesHint(page_.position())) HienGoiY(page_.position());
}

// -- Judging.

void BT_DienTu::ChamDienTu() {
  item_.OSai.clear();
  item_.ODaLam.clear();
  const std::string typed = RDT_.Text();
  std::string& mask = item_.MatNa;
  Verdict verdict{0, 0};
  for (auto star = mask.find('*'); star != std::string::npos; star = mask.find('*', star)) {
    ++verdict.places;
    if (judgeBlank(static_cast<int>(star) + 1, typed)) ++verdict.right;
    mask[star] = ' ';
  }
  services_.run.CongDung();
  if (verdict.places > 0) services_.shell.messages.answerJudged(verdict);
}

bool BT_DienTu::judgeBlank(int p, const std::string& typed) {
  const int end = stretchEnd(item_.MatNa, p);
  std::string context;
  std::string wanted;
  std::string given;
  for (int i = p; i <= end; ++i) {
    const char k = item_.maskAt(i);
    const auto at = static_cast<std::size_t>(i - 1);
    const char t = at < typed.size() ? typed[at] : '_';
    context += k == '*' ? '_' : k;
    wanted += k == '*' || k == '_' ? ' ' : k;
    given += t == '_' ? ' ' : t;
  }
  item_.ODaLam.add(p, end, withCapitalPronouns(lower(context)));
  const int length = static_cast<int>(wanted.size());
  const std::string key(trim(lower(wanted)));
  const std::string answer(trim(lower(given)));
  if (accepts(key, answer)) {
    if (item_.KetQuaCau == 0) item_.KetQuaCau = 1;
    colourCells(p, length, look::Blue);
    return true;
  }
  item_.OSai.add(p, end, key.empty() ? std::string(UnknownKey) : key);
  item_.KetQuaCau = -1;
  colourCells(p, length, look::Red);
  return false;
}

void BT_DienTu::colourCells(int p, int length, Colour colour) {
  RDT_.format({p - 1, p - 1 + length}, {.color = colour});
}

// -- Mouse.

void BT_DienTu::releaseMouse(MouseButton button, SurfacePoint at) {
  const int p = page_.position();
  const ItemPage::Click click = page_.releaseMouse(button, at);
  if (click == ItemPage::Click::Done) return;
  const bool pastHeading = item_.pastHeading(p);
  if (click == ItemPage::Click::Explain) {
    if (pastHeading) services_.box.GiaiThich(p, RDT_);
    return;
  }
  if (givesHint(p)) {
    HienGoiY(p);
  } else if (pastHeading && item_.maskAt(p - 1) == PlainText) {
    page_.lookUp();
  } else if (pastHeading && item_.DaCham) {
    services_.box.GiaiThich(p, RDT_);
  }
}

} // namespace talvora
