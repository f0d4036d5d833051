#include "fronts/BarMouse.h"

namespace talvora {

Surface* BarMouse::surfaceAt(SurfacePoint at) const {
  auto* const surface = as<Surface>(form_.controlAt(at));
  if (surface == nullptr) return nullptr;
  const bool onStrip = at.x >= surface->Left() + surface->Width() - ScrollBar::StripWidth;
  return onStrip && ScrollBar(*surface, layout_).extent().scrolls ? surface : nullptr;
}

bool BarMouse::press(SurfacePoint at) {
  held_ = surfaceAt(at);
  if (held_ == nullptr) return false;
  pointer_ = at;
  const ScrollBar bar(*held_, layout_);
  grip_ = at.y - held_->Top() - bar.thumb(bar.extent()).top;
  dragged_ = grip_ >= 0 && grip_ < bar.thumb(bar.extent()).length;
  goOnByPage();
  return true;
}

void BarMouse::drag(SurfacePoint at) {
  pointer_ = at;
  if (held_ == nullptr || !dragged_) return;
  ScrollBar bar(*held_, layout_);
  bar.bringThumbTo(at.y - held_->Top() - grip_, bar.extent());
}

void BarMouse::goOnByPage() {
  if (!holdsTrough()) return;
  ScrollBar bar(*held_, layout_);
  const ScrollBar::Thumb thumb = bar.thumb(bar.extent());
  const double below = pointer_.y - held_->Top() - thumb.top;
  if (below < 0) bar.page(-1);
  if (below >= thumb.length) bar.page(1);
}

} // namespace talvora
