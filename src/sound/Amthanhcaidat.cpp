#include "sound/Amthanhcaidat.h"

#include "surface/Looks.h"
#include "surface/SectionNumbers.h"
#include "text/Bytes.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

namespace talvora {

using namespace literals;

namespace {

constexpr char Tab = chr(9);
constexpr std::string_view TestSentence = "Welcom to talvora 2.4";

// The cells by number.
constexpr int Heading = 1;
constexpr int SoundOn = 2;
constexpr int SoundOff = 3;
constexpr int SpeedHeading = 4;
constexpr int FirstLevel = 5;
constexpr int LastLevel = 14;

} // namespace

Amthanhcaidat::Amthanhcaidat(SoundControls& controls, SharedState& state, Platform& platform,
                             Stores& stores, Shell& shell, Speech& speech)
    : controls_(controls), state_(state), engine_(platform.speech), stores_(stores), shell_(shell),
      speech_(speech), panel_(controls.RAmthanh) {
  wireEvents();
}

void Amthanhcaidat::wireEvents() {
  shell_.pages.add({.surface = panel_, .textFont = true, .font = FontStep::Smaller});
  panel_.MouseUp = [this](MouseButton button, int, SurfacePoint) {
    if (button != MouseButton::Left) return;
    ChonMuc();
    DatMuc();
  };
  panel_.KeyDown = [this](int& KeyCode, int) { shell_.hints.showOnF2(KeyCode, panel_); };
  panel_.KeyUp = [this](int&, int) { shell_.gestures.keyReleased(); };
  panel_.KeyPress = [this](int& KeyAscii) {
    if (KeyAscii == key::Esc) ExitRAmThanh();
  };
}

// -- Opening and leaving.

void Amthanhcaidat::open() {
  panel_.FontSize(state_.measures.CoChu - 1);
  controls_.Frame1.BackColor(look::White);
  shell_.transitions.MoRan(panel_, controls_.Frame1);
  GoiCaiDat();
}

void Amthanhcaidat::GoiCaiDat() {
  writePanel();
  TextPanel = panel_.Text();
  CellChon = speech_.AmThanhBat == 0 ? SoundOff : SoundOn;
  panel_.SelStart(entry(CellChon - 1) + 2);
  ChonMuc();
  DatMuc();
  CellChon = speech_.TocDoDoc + SpeedHeading;
  DatMuc();
  CellChon = Heading;
  panel_.SelStart(0);
}

void Amthanhcaidat::writePanel() {
  panel_.Text("");
  SoCell = 0;
  writeCell("Nhấn chuột trái 1 lần vào mục muốn chọn:"_x1, Weight::Bold);
  // The list of starts tells the first choice from the heading two characters on, behind its tab.
  state_.list.BangViTri[Heading] += 2;
  writeCell("\r\t- Bật âm thanh"_x1, Weight::Normal);
  writeCell("\t- Tắt âm thanh\r"_x1, Weight::Normal);
  writeCell("\t+ Tọa độ đọc:\r"_x1, Weight::Bold);
  for (int level = 1; level <= LastLevel - SpeedHeading; ++level) {
    writeCell(Tab + Str(level), Weight::Normal);
  }
  writeCell("\r\tXong nhấn phim ESC để thoát."_x1, Weight::Normal);
}

void Amthanhcaidat::writeCell(std::string_view text, Weight weight) {
  panel_.SelFontName("x1");
  panel_.SelFontSize(state_.measures.CoChu + 5);
  panel_.SelBold(weight == Weight::Bold);
  panel_.SelText(text);
  ++SoCell;
  state_.list.BangViTri[static_cast<std::size_t>(SoCell)] = panel_.SelStart();
}

void Amthanhcaidat::store() {
  stores_.writeSetting(setting::SoundOn, speech_.AmThanhBat);
  stores_.writeSetting(setting::SpeedLevel, speech_.TocDoDoc);
}

void Amthanhcaidat::keep() {
  if (panel_.Visible()) store();
}

void Amthanhcaidat::ExitRAmThanh() {
  store();
  shell_.transitions.DongRan(panel_, controls_.Frame1);
  controls_.but(section::Settings).SetFocus();
}

// -- Finding a cell. Positions count from 1, carets from 0.

int Amthanhcaidat::entry(int k) const {
  return state_.list.BangViTri.at(static_cast<std::size_t>(k));
}

bool Amthanhcaidat::isTab(int position) const {
  const auto place = static_cast<std::size_t>(position);
  return position >= 1 && place <= TextPanel.size() && TextPanel[place - 1] == Tab;
}

void Amthanhcaidat::ChonMuc() {
  CellChon = Heading;
  if (panel_.SelBold()) return;
  int start = 1;
  for (int position = panel_.SelStart(); position >= 1; --position) {
    if (!isTab(position)) continue;
    start = position + 1;
    panel_.SelStart(start);
    break;
  }
  const int length = static_cast<int>(TextPanel.size());
  for (int position = panel_.SelStart(); position <= length; ++position) {
    if (!isTab(position)) continue;
    panel_.SelLength(position - start - 1);
    break;
  }
  for (int cell = 1; cell <= SoCell; ++cell) {
    if (entry(cell) <= panel_.SelStart()) continue;
    CellChon = cell;
    break;
  }
}

// -- Applying a cell.

bool Amthanhcaidat::isApplied(int cell) const {
  return cell != Heading && cell != SpeedHeading && cell != SoCell &&
         cell != speech_.SoGiong + FirstLevel;
}

void Amthanhcaidat::DatMuc() {
  const int cell = CellChon;
  if (!isApplied(cell)) {
    panel_.SelLength(0);
    return;
  }
  panel_.SelColor(look::Red);
  if (cell == SoundOn) {
    switchSoundOn();
  } else if (cell == SoundOff) {
    switchSoundOff();
  } else if (cell >= FirstLevel && cell <= LastLevel) {
    chooseLevel(cell);
  }
  if (speech_.AmThanhBat == 1) speakTest();
}

void Amthanhcaidat::switchSoundOn() {
  speech_.AmThanhBat = 1;
  blackenChoiceAt(entry(SoundOn) + 1);
  panel_.SelStart(entry(SoundOn - 1) + 2);
}

void Amthanhcaidat::switchSoundOff() {
  speech_.AmThanhBat = 0;
  stopIfSpeaking();
  blackenChoiceAt(entry(Heading) + 1);
  panel_.SelStart(entry(SoundOff - 1) + 2);
}

void Amthanhcaidat::blackenChoiceAt(int caret) {
  panel_.SelStart(caret);
  ChonMuc();
  panel_.SelColor(look::Black);
}

void Amthanhcaidat::chooseLevel(int cell) {
  speech_.TocDoDoc = cell - SpeedHeading;
  const int levels = entry(SpeedHeading) + 1;
  panel_.format({levels, levels + entry(LastLevel) - entry(SpeedHeading) + 1},
                {.color = look::Black});
  panel_.SelStart(entry(cell - 1) + 1);
  ChonMuc();
  panel_.SelColor(look::Red);
  panel_.SelLength(0);
}

void Amthanhcaidat::stopIfSpeaking() {
  if (engine_.IsSpeaking()) engine_.StopSpeaking();
}

void Amthanhcaidat::speakTest() {
  stopIfSpeaking();
  speech_.applySettings();
  engine_.Speak(TestSentence);
}

void Amthanhcaidat::declare(Variables& variables) const {
  variables.add("SoCell", [this] { return VariableValue(int{SoCell}); });
  variables.add("CellChon", &CellChon);
  variables.add("TextPanel", &TextPanel);
}

} // namespace talvora
