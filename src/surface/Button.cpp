#include "surface/Button.h"

#include "platform/Input.h"

#include <utility>

namespace talvora {

void Button::Caption(std::string caption) {
  caption_ = std::move(caption);
  changed(ControlChange::Text);
}

void Button::Font(FontSpec font) {
  font_ = std::move(font);
  changed(ControlChange::Look);
}

void Button::Picture(int bitmap) {
  if (picture_ == bitmap) return;
  picture_ = bitmap;
  changed(ControlChange::Look);
}

void Button::moveMouse(int, SurfacePoint) {
  if (MouseMove) MouseMove();
}

void Button::clickMouse() {
  if (Click) Click();
}

void Button::pressKey(int keyCode, int shift, char character) {
  if (character != 0) {
    int keyAscii = static_cast<unsigned char>(character);
    if (KeyPress) KeyPress(keyAscii);
    if (keyAscii == 0) return;
  }
  actOnKey(keyCode, shift);
}

void Button::actOnKey(int keyCode, int shift) {
  switch (keyCode) {
  case key::Enter:
  case key::Space:
    if (Click) Click();
    break;
  case key::Left:
  case key::Up:
    host().focusNeighbour(*this, -1);
    break;
  case key::Right:
  case key::Down:
    host().focusNeighbour(*this, 1);
    break;
  case key::Tab:
    host().focusNeighbour(*this, (shift & shift::Shift) != 0 ? -1 : 1);
    break;
  default:
    break;
  }
}

} // namespace talvora
