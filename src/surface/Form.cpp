#include "surface/Form.h"

#include "text/Contains.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace talvora {

namespace {

/// By how many pixels a pointer may miss its place on a screen of another scale.
constexpr int ScalingError = 1;

bool takesKeys(const Control& control) {
  return control.Visible() && control.Enabled() && control.TakesKeys();
}

bool takesMouse(const Control& control) {
  return control.Visible() && control.Enabled() && control.takesMouse();
}

bool holds(const Control& control, SurfacePoint point) {
  return point.x >= control.Left() && point.x < control.Left() + control.Width() &&
         point.y >= control.Top() && point.y < control.Top() + control.Height();
}

} // namespace

void Form::Caption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  if (observer_ != nullptr) observer_->captionChanged();
}

void Form::Show() {
  visible_ = true;
  screen_.Refresh();
}

void Form::add(Control& control, Layer layer) {
  layers_.take(layer, &control, control.Name());
  Control* const* const above = layers_.above(layer);
  const auto place =
      above == nullptr ? controls_.end() : std::find(controls_.begin(), controls_.end(), *above);
  controls_.insert(place, &control);
}

Control* Form::find(std::string_view name) const noexcept {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const Control* control) { return control->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

Control* Form::controlAt(SurfacePoint point) const noexcept {
  const auto found =
      std::find_if(controls_.rbegin(), controls_.rend(), [&](const Control* control) {
        return takesMouse(*control) && holds(*control, point);
      });
  return found == controls_.rend() ? nullptr : *found;
}

Control* Form::steeredFrom(SurfacePoint point) const {
  if (steered_.control == nullptr || focus_ != steered_.control) return nullptr;
  const PixelPoint pixel = virtualScreen().toPixel(point);
  const bool atPlace = std::abs(pixel.x - steered_.place.x) <= ScalingError &&
                       std::abs(pixel.y - steered_.place.y) <= ScalingError;
  return atPlace ? steered_.control : nullptr;
}

void Form::giveFocus(Control& control) {
  if (focus_ == &control || !takesKeys(control)) return;
  Control* const before = std::exchange(focus_, &control);
  if (before != nullptr && before->LostFocus) before->LostFocus();
  // The one that lost the keyboard may have handed it on.
  if (focus_ != &control) return;
  tellFocus();
  if (control.GotFocus) control.GotFocus();
}

void Form::focusNeighbour(Control& control, int step) {
  std::vector<Control*> ring;
  std::copy_if(controls_.begin(), controls_.end(), std::back_inserter(ring),
               [](const Control* each) { return each->TabIndex() > 0 && takesKeys(*each); });
  std::sort(ring.begin(), ring.end(), [](const Control* left, const Control* right) {
    return left->TabIndex() < right->TabIndex();
  });
  const auto here = std::find(ring.begin(), ring.end(), &control);
  if (here == ring.end()) return;
  const auto size = static_cast<std::ptrdiff_t>(ring.size());
  const auto next = (here - ring.begin() + step + size) % size;
  giveFocus(*ring[static_cast<std::size_t>(next)]);
}

void Form::controlChanged(Control& control, ControlChange change) {
  if (observer_ != nullptr) observer_->controlChanged(control, change);
  if (focus_ == &control && !takesKeys(control)) dropFocus();
}

void Form::dropFocus() {
  Control* const before = std::exchange(focus_, nullptr);
  if (before->LostFocus) before->LostFocus();
  if (focus_ != nullptr) return;
  if (Control* const heir = foremostSurface()) {
    giveFocus(*heir);
  } else {
    tellFocus();
  }
}

void Form::tellFocus() {
  ++focusMoves_;
  if (observer_ != nullptr) observer_->focusChanged();
}

Control* Form::foremostSurface(std::span<const Control* const> butNot) const noexcept {
  const auto found =
      std::find_if(controls_.rbegin(), controls_.rend(), [butNot](const Control* control) {
        return takesKeys(*control) && control->kind() == ControlKind::Surface &&
               !contains(butNot, control);
      });
  return found == controls_.rend() ? nullptr : *found;
}

void Form::pressKey(int keyCode, int shift, char character) {
  if (focus_ != nullptr) focus_->pressKey(keyCode, shift, character);
}

void Form::releaseKey(int keyCode, int shift) {
  if (focus_ != nullptr) focus_->releaseKey(keyCode, shift);
}

} // namespace talvora
