#include "surface/Control.h"

#include <utility>

namespace talvora {

template <class Value>
void Control::set(Value& field, Value value, ControlChange change) {
  if (field == value) return;
  field = value;
  changed(change);
}

void Control::Visible(bool visible) {
  set(visible_, visible, ControlChange::Place);
}

void Control::Enabled(bool enabled) {
  set(enabled_, enabled, ControlChange::Look);
}

void Control::Left(int twips) {
  set(left_, twips, ControlChange::Place);
}

void Control::Top(int twips) {
  set(top_, twips, ControlChange::Place);
}

void Control::Width(int twips) {
  if (width_ == twips) return;
  width_ = twips;
  resized();
  changed(ControlChange::Place);
}

void Control::Height(int twips) {
  if (height_ == twips) return;
  height_ = twips;
  resized();
  changed(ControlChange::Place);
}

void Control::BackColor(Colour colour) {
  set(backColor_, colour, ControlChange::Look);
}

void Label::Caption(std::string caption) {
  caption_ = std::move(caption);
  changed(ControlChange::Text);
}

void Label::Font(FontSpec font) {
  font_ = std::move(font);
  changed(ControlChange::Look);
}

void Label::ForeColor(Colour colour) {
  foreColor_ = colour;
  changed(ControlChange::Look);
}

void Panel::Alpha(int alpha) {
  alpha_ = alpha;
  changed(ControlChange::Look);
}

} // namespace talvora
