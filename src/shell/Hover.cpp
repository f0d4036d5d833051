#include "shell/Hover.h"

#include "shell/Names.h"

namespace talvora {

namespace {

constexpr int LitFrame = 14;
constexpr int LitFrameButton = 18;
constexpr int LastLeftFace = 15;

} // namespace

void Hover::NutSang(Button& button) {
  if (places_.waitkd || places_.DangBan) return;
  if (steering_.arrowDown()) {
    steering_.XaPhim();
    TraHinhNut(0);
  } else {
    if (HoverDem > 0) {
      // An animation is going already, further out on the stack: the focus tells it to stop.
      button.SetFocus();
      HoverDem = 0;
      return;
    }
    if (SoTrongTen(button.Name()) == HoverSo) return;
  }
  button.SetFocus();
  animate(button);
  HoverDem = 0;
}

void Hover::animate(Button& button) {
  for (;;) {
    if (SoTrongTen(button.Name()) != HoverSo) TraHinhNut(0);
    KhungNut(button, LitFrame);
    HoverSo = SoTrongTen(button.Name());
    HoverTen = button.Caption();
    HoverDem = 0;
    if (!playFrames(button, LitFrame, LitFrame) || !playFrames(button, 8, 13) ||
        !playFrames(button, 12, 8) || !playFrames(button, LitFrame, LitFrame) ||
        !playFrames(button, 7, 1) || !playFrames(button, 2, 7)) {
      return;
    }
  }
}

bool Hover::playFrames(Button& button, int first, int last) {
  const int step = first <= last ? 1 : -1;
  for (int frame = first; frame != last + step; frame += step) {
    if (!mayGoOn()) return false;
    KhungNut(button, frame);
  }
  return true;
}

bool Hover::mayGoOn() {
  const Flow flow = events_.letEventsRunUntilNextFrame();
  return flow == Flow::Continue && !DungSang();
}

bool Hover::DungSang() {
  return !form_.hasFocus(controls_.but(HoverSo)) || steering_.CoMuiTen();
}

void Hover::buttonGotFocus(int number) {
  if (number <= 2) TraHinhNut(number);
  if (!steering_.CoMuiTen()) return;
  steering_.pointAtButton(number);
  form_.steerTo(controls_.but(number), steering_.placeOfButton(number));
}

void Hover::KhungNut(Button& button, int frame) {
  const int keeper = frame == LitFrame ? LitFrameButton : frame;
  button.Picture(controls_.but(keeper).StoredPicture());
  ++HoverDem;
  narrator_.frameShown(SoTrongTen(button.Name()), frame);
  form_.Refresh();
}

void Hover::TraHinhNut(int except) {
  for (int number = 1; number <= Controls::ButtonCount; ++number) {
    if (number == except) continue;
    const int keeper = number <= LastLeftFace ? 16 : 17;
    controls_.but(number).Picture(controls_.but(keeper).StoredPicture());
  }
}

void Hover::declare(Variables& variables) const {
  variables.add("HoverDem", &HoverDem);
  variables.add("HoverTen", &HoverTen);
  variables.add("HoverSo", &HoverSo);
}

} // namespace talvora
