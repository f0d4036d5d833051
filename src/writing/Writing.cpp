#include "writing/Writing.h"

#include "surface/Looks.h"
#include "surface/SectionNumbers.h"
#include "text/Vietnamese.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

/// Characters of the first line that are selected, whatever its length.
constexpr int FirstLineLength = 13;

} // namespace

Writing::Writing(Form& form, WritingControls& controls, SharedState& state, const Stores& stores,
                 Shell& shell, PageServices services, XepTu& ordering)
    : form_(form), controls_(controls), state_(state), stores_(stores), shell_(shell),
      services_(services), words_(controls, state, shell, services), ordering_(ordering),
      text_(stores, state.text) {
  wireList();
  wireTask();
}

void Writing::wireList() {
  Surface& RW1 = controls_.RW1;
  RW1.KeyDown = [this, &RW1](int& KeyCode, int) { shell_.hints.showOnF2(KeyCode, RW1); };
  RW1.KeyPress = [this](int& KeyAscii) { pressOnList(KeyAscii); };
  RW1.KeyUp = [this](int& KeyCode, int) {
    shell_.gestures.keyReleased();
    switch (KeyCode) {
    case key::Up:
    case key::Down:
    case key::Home:
    case key::End:
    case key::PgUp:
    case key::PgDn:
      ChonDongViet();
      break;
    default:
      break;
    }
  };
  RW1.MouseUp = [this](MouseButton button, int, SurfacePoint) {
    if (button != MouseButton::Left) return;
    ChonDongViet();
    openLine();
  };
  shell_.pages.add({.surface = RW1, .textFont = true, .parked = Parked::BelowAndBeside});
  shell_.focusReturn.onReturnTo(FocusRank::WritingList, RW1,
                                FocusReturn::unlessVisible(controls_.RW2), [this, &RW1] {
                                  RW1.SelStart(state_.word.ViTriCaretR1);
                                  ChonDongViet();
                                  RW1.SetFocus();
                                });
}

void Writing::wireTask() {
  Surface& RW2 = controls_.RW2;
  RW2.KeyDown = [this, &RW2](int& KeyCode, int Shift) {
    shell_.hints.showOnF2(KeyCode, RW2);
    words_.showOnCtrl(KeyCode, Shift, RW2);
  };
  RW2.KeyPress = [this](int& KeyAscii) { pressOnTask(KeyAscii); };
  RW2.KeyUp = [this, &RW2](int& KeyCode, int Shift) {
    words_.releaseKey(Shift, RW2);
    if (KeyCode != key::F6) return;
    ordering_.XepChay = !ordering_.XepChay;
    openTask();
  };
  RW2.MouseMove = [this, &RW2](int, SurfacePoint at) { shell_.gestures.followPointer(RW2, at); };
  RW2.MouseUp = [this](MouseButton button, int, SurfacePoint at) { releaseMouse(button, at); };
  RW2.DblClick = [this] { state_.atHand.askForSentence(); };
  shell_.pages.add({.surface = RW2,
                    .textFont = true,
                    .font = FontStep::Larger,
                    .parked = Parked::BelowTheScreen,
                    .pointerName = RW2.Name(),
                    .hints = {{{"Chuột phải= Giảng cách viết; 2Chuột Trái=Xem câu Anh"_x1,
                                "Gõ phím=Tra từ; Esc=thoát."_x1}}}});
  shell_.gestures.onClose(CloseRank::Writing, RW2, [this](Surface&) { ThoatViet2(); });
}

// -- The list.

void Writing::ChonDongViet() {
  Surface& RW1 = controls_.RW1;
  CurrentList& list = state_.list;
  if (RW1.SelStart() == RW1.TextLength()) RW1.SelStart(RW1.SelStart() - 2);
  if (RW1.SelStart() <= FirstLineLength) {
    list.SoBaiChon = 1;
    RW1.SelStart(0);
    RW1.SelLength(FirstLineLength);
    return;
  }
  const std::string& text = list.DanhSachBai;
  const auto before = text.rfind('\r', static_cast<std::size_t>(RW1.SelStart() - 1));
  // Positions count from 1 and carets from 0: the caret comes to stand behind the line's first
  // character.
  const int start = before == std::string::npos ? RW1.SelStart() : static_cast<int>(before) + 2;
  RW1.SelStart(start);
  const auto end = text.find('\r', static_cast<std::size_t>(start));
  if (end != std::string::npos) RW1.SelLength(static_cast<int>(end) + 1 - start);
  const auto first = list.BangViTri.begin() + 1;
  const auto last = first + std::clamp(stores_.SoBai, 0, static_cast<int>(CurrentList::MaxLines));
  const auto line = std::find_if(first, last, [start](int length) { return length > start; });
  if (line != last) list.SoBaiChon = static_cast<int>(line - list.BangViTri.begin());
}

void Writing::openLine() {
  // A bold line is a heading.
  if (!controls_.RW1.SelBold()) MoViet();
}

void Writing::pressOnList(int& keyAscii) {
  const int pressed = std::exchange(keyAscii, 0);
  if (pressed == key::Enter) {
    openLine();
  } else if (pressed == key::Esc) {
    controls_.RHD.Visible(false);
    controls_.RTD.Visible(false);
    if (!shell_.gestures.DongPhu(controls_.RW1)) ExitRW1();
  } else {
    words_.openListOn(pressed);
  }
}

void Writing::ExitRW1() {
  if (controls_.RW2.Visible()) {
    ThoatViet2();
    return;
  }
  shell_.transitions.DongRan(controls_.RW1, controls_.Frame1);
  controls_.Frame2.Visible(false);
  controls_.Frame3.Visible(false);
  controls_.but(section::Writing).SetFocus();
}

// -- The task.

void Writing::MoViet() {
  state_.atHand.keepListCaret(controls_.RW1.SelStart());
  ordering_.XepChay = true;
  openTask();
}

void Writing::openTask() {
  state_.atHand.dropEntry();
  state_.atHand.askForWord();
  controls_.RHD.FontBold(false);
  text_.DocBai(state_.list.SoBaiChon);
  text_.DocDich(state_.list.SoBaiChon);
  services_.voice.AmThanhThuc = false;
  controls_.RDOS.FontSize(form_.Font().size);
  controls_.RDOS.FontName("x1");
  VeViet(controls_.RW2);
  shell_.transitions.MoRan(controls_.RW2, controls_.Frame3);
}

void Writing::ThoatViet2() {
  state_.atHand.drop();
  services_.speech.DungDoc();
  shell_.transitions.DongRan(controls_.RW2, controls_.Frame3);
  controls_.RW1.SelStart(state_.word.ViTriCaretR1);
  ChonDongViet();
  controls_.RW1.SetFocus();
}

void Writing::pressOnTask(int& keyAscii) {
  const int pressed = keyAscii;
  if (pressed != key::Space) keyAscii = 0;
  if (pressed == key::Enter) {
    ordering_.pressEnter(controls_.RW2);
  } else if (pressed == key::Esc) {
    shell_.gestures.DongPhu(controls_.RW2);
  } else {
    words_.openListOn(pressed);
  }
}

void Writing::releaseMouse(MouseButton button, SurfacePoint at) {
  ordering_.takeClick(controls_.RW2, at);
  if (button == MouseButton::Right) {
    ordering_.arm();
  } else {
    releaseLeft();
  }
}

void Writing::releaseLeft() {
  Surface& RW2 = controls_.RW2;
  const int p = RW2.SelStart() + 1;
  const bool onRed = RW2.SelColor() == look::Red;
  if (state_.word.ChoGiai) {
    ordering_.releaseArmed(RW2);
  } else if (RW2.SelStart() < ordering_.DauDong) {
    words_.lookUpShownWord(RW2);
  } else if (onRed && ordering_.links.holdNext(p)) {
    ordering_.BuocXep = 0;
    ordering_.CauXepMoi(RW2);
  } else if (onRed && ordering_.links.holdBack(p)) {
    stepBack();
    ordering_.CauXepMoi(RW2);
  }
}

void Writing::stepBack() {
  ++ordering_.BuocXep;
  int& sentence = ordering_.ChiSoCau;
  sentence = sentence >= 2 ? sentence - 2 : std::max(state_.text.SoCauVanBan - 2, 0);
}

} // namespace talvora
