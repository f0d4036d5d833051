#include "exercises/UnitList.h"

#include "formats/ListeningPage.h"
#include "formats/PackFiles.h"
#include "surface/Looks.h"
#include "surface/SectionNumbers.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr int ListeningCaret = 10;
// The instruction of the listening template, which the labels follow.

} // namespace

UnitList::UnitList(ExerciseControls& controls, SharedState& state, Stores& stores, Shell& shell,
                   Scoring& scoring)
    : controls_(controls), state_(state), stores_(stores), shell_(shell), scoring_(scoring) {
  wireEvents();
}

void UnitList::wireEvents() {
  Surface& RN1 = controls_.RN1;
  shell_.pages.add(
      {.surface = RN1, .textFont = true, .font = FontStep::Same, .parked = Parked::BelowTheScreen});
  RN1.KeyDown = [this](int& KeyCode, int) {
    if (KeyCode == key::Up || KeyCode == key::Down) shell_.steering.ChonDong();
  };
  RN1.KeyUp = [this](int&, int) { shell_.gestures.keyReleased(); };
  RN1.KeyPress = [this, &RN1](int& KeyAscii) {
    const int pressed = std::exchange(KeyAscii, 0);
    if (pressed == key::Enter) GoiRN2();
    if (pressed != key::Esc || shell_.gestures.DongPhu(RN1)) return;
    if (listening_ == nullptr || !listening_->leaveText()) ThoatNghe();
  };
  RN1.MouseUp = [this](MouseButton button, int, SurfacePoint) {
    if (button == MouseButton::Left) GoiRN2();
  };
}

// -- The list.

void UnitList::HienBT(int SoCauBT) {
  Surface& Rchon = controls_.Rchon;
  Rchon.LoadFile(stores_.holdPage(packfile::ListeningPage));
  Rchon.format(
      {0, Rchon.TextLength()},
      {.bold = true,
       .fontSize = listening_ != nullptr ? listening_->page().Font().size : state_.measures.CoChu});
  state_.atHand.drop();
  Rchon.format({listeningpage::LabelsFrom, listeningpage::LabelsFrom + listeningpage::LabelsLength},
               {.color = look::Blue});
  if (state_.places.MucMenu == section::Listening) {
    LietKeUnit();
    if (listening_ != nullptr) listening_->setUp();
  } else {
    LietKeBai(SoCauBT / ItemsPerUnit);
  }
}

void UnitList::LietKeBai(int units) {
  writeList(units, "Bài Tập "_x1);
}

void UnitList::LietKeUnit() {
  writeList(ListeningUnits, "Unit ");
}

void UnitList::writeList(int units, std::string_view word) {
  CurrentList& list = state_.list;
  std::string& text = list.DanhSachBai;
  text.clear();
  const int most = std::min(units, static_cast<int>(CurrentList::MaxLines));
  for (int unit = 1; unit <= most; ++unit) {
    text += '\t';
    text += word;
    text += Str(unit) + '\r';
    list.BangViTri[static_cast<std::size_t>(unit)] = static_cast<std::int32_t>(text.size());
  }
  Surface& RN1 = controls_.RN1;
  RN1.Text("");
  RN1.SelBold(state_.measures.largeScreen());
  RN1.SelColor(look::Body);
  RN1.SelBullet(true);
  RN1.SelIndent(look::BodyIndent);
  RN1.SelProtected(state_.places.MucMenu == section::Listening);
  RN1.SelText(text);
  RN1.SelStart(0);
}

void UnitList::open() {
  state_.atHand.endPick();
  controls_.Frame1.BackColor(look::White);
  shell_.transitions.MoRan(controls_.RN1, controls_.Frame1);
  DocViTriList();
  shell_.steering.ChonDong();
}

int UnitList::caretRecord() const {
  const int section = state_.places.MucMenu;
  return section == section::Listening ? ListeningCaret : section + 1;
}

void UnitList::DocViTriList() {
  controls_.RN1.SelStart(stores_.readSetting(caretRecord()));
}

void UnitList::GhiViTriList() {
  stores_.writeSetting(caretRecord(), controls_.RN1.SelStart());
}

// -- Opening and leaving.

void UnitList::GoiRN2() {
  Surface& RN1 = controls_.RN1;
  if (RN1.TextLength() == 0) return;
  GhiViTriList();
  scoring_.ChuPhu();
  scoring_.SoDung = 0;
  int& SoBaiChon = state_.list.SoBaiChon;
  SoBaiChon = RN1.GetLineFromChar(RN1.SelStart()) + 1;
  const int section = state_.places.MucMenu;
  if (isBankSection(section)) BatDauBai();
  if (listening_ == nullptr) return;
  if (section == section::Listening) listening_->openUnit();
  // The banks remind like the listening section, as long as its text was not moved over; that is
  // meant.
  shell_.gestures.remindOnFirstOpening(section, listening_->page());
}

void UnitList::ThoatNghe() {
  scoring_.ChuPhu();
  controls_.R1.Visible(false);
  controls_.R1.Top(state_.measures.CaoMH);
  shell_.transitions.DongRan(controls_.RN1, controls_.Frame1);
  state_.atHand.disarm();
  state_.atHand.endPick();
  // The banks go back to the listening button too; that is meant.
  controls_.but(section::Listening).SetFocus();
  if (listening_ != nullptr) listening_->close();
}

} // namespace talvora
