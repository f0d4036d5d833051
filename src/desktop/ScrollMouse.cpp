#include "desktop/ScrollMouse.h"

#include "desktop/SurfaceView.h"

#include <QMouseEvent>

#include <utility>

namespace talvora {

namespace {

constexpr int FirstPauseMs = 350; ///< until a held trough leads on
constexpr int PauseMs = 70;

} // namespace

ScrollMouse::ScrollMouse(EventBridge& bridge) : bridge_(bridge) {
  QObject::connect(&paging_, &QTimer::timeout, this, [this] { goOnByPage(); });
}

void ScrollMouse::heat(SurfaceView* view) {
  SurfaceView* const before = std::exchange(hot_, view);
  if (before == view) return;
  if (before != nullptr) before->setBarHot(false);
  if (view != nullptr) view->setBarHot(true);
}

void ScrollMouse::leave() {
  held_ = nullptr;
  paging_.stop();
  heat(nullptr);
}

void ScrollMouse::forget(const SurfaceView& view) {
  if (&view == held_ || &view == hot_) leave();
}

bool ScrollMouse::press(const QMouseEvent& event) {
  pointer_ = event.position();
  SurfaceView* const view = viewAt(pointer_);
  heat(view);
  if (view == nullptr) return false;
  if (event.button() != Qt::LeftButton) return true;
  held_ = view;
  const QRectF thumb = view->thumbRect().translated(view->pos());
  dragged_ = pointer_.y() >= thumb.top() && pointer_.y() < thumb.bottom();
  grip_ = pointer_.y() - thumb.top();
  if (!dragged_) {
    goOnByPage();
    paging_.start(FirstPauseMs);
  }
  return true;
}

bool ScrollMouse::move(const QMouseEvent& event) {
  pointer_ = event.position();
  if (held_ != nullptr && !event.buttons().testFlag(Qt::LeftButton)) leave();
  if (held_ == nullptr) {
    heat(viewAt(pointer_));
    return hot_ != nullptr;
  }
  if (dragged_) {
    bridge_.deliver([this] { held_->bringThumbTo(pointer_.y() - held_->y() - grip_); });
  }
  return true;
}

bool ScrollMouse::release(const QMouseEvent& event) {
  pointer_ = event.position();
  paging_.stop();
  if (held_ == nullptr) return viewAt(pointer_) != nullptr;
  held_ = nullptr;
  heat(viewAt(pointer_));
  return true;
}

// Up or down to the pointer, and no further.
void ScrollMouse::goOnByPage() {
  if (held_ == nullptr || !held_->isVisible()) {
    leave();
    return;
  }
  paging_.setInterval(PauseMs);
  const QRectF thumb = held_->thumbRect().translated(held_->pos());
  const int direction = pointer_.y() < thumb.top() ? -1 : pointer_.y() >= thumb.bottom() ? 1 : 0;
  if (direction == 0) return;
  bridge_.deliver([this, direction] { held_->page(direction); });
}

} // namespace talvora
