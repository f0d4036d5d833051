#include "desktop/ScrollMouse.h"

#include "desktop/SurfaceView.h"

#include <utility>

namespace talvora {

namespace {

constexpr int FirstPauseMs = 350; ///< until a held trough leads on
constexpr int PauseMs = 70;

} // namespace

ScrollMouse::ScrollMouse(EventBridge& bridge, Form& form, const LineLayout& layout)
    : bridge_(bridge), mouse_(form, layout) {
  QObject::connect(&paging_, &QTimer::timeout, this, [this] { goOnByPage(); });
}

void ScrollMouse::heat(const Surface* surface) {
  const Surface* const before = std::exchange(hot_, surface);
  if (before == surface) return;
  for (const Surface* const each : {before, surface}) {
    SurfaceView* const view = each == nullptr ? nullptr : viewOf(*each);
    if (view != nullptr) view->setBarHot(each == surface);
  }
}

void ScrollMouse::leave() {
  mouse_.release();
  paging_.stop();
  heat(nullptr);
}

void ScrollMouse::forget(const Surface& surface) {
  if (&surface == mouse_.held() || &surface == hot_) leave();
}

bool ScrollMouse::press(SurfacePoint at, bool left) {
  heat(mouse_.surfaceAt(at));
  if (hot_ == nullptr || !left) return hot_ != nullptr;
  bridge_.deliver([&] { mouse_.press(at); });
  if (mouse_.holdsTrough()) paging_.start(FirstPauseMs);
  return true;
}

bool ScrollMouse::move(SurfacePoint at, bool leftHeld) {
  if (!leftHeld) mouse_.release();
  if (mouse_.held() == nullptr) {
    paging_.stop();
    heat(mouse_.surfaceAt(at));
    return hot_ != nullptr;
  }
  bridge_.deliver([&] { mouse_.drag(at); });
  return true;
}

bool ScrollMouse::release(SurfacePoint at) {
  paging_.stop();
  const bool was = mouse_.held() != nullptr;
  mouse_.release();
  heat(mouse_.surfaceAt(at));
  return was || hot_ != nullptr;
}

void ScrollMouse::goOnByPage() {
  paging_.setInterval(PauseMs);
  bridge_.deliver([this] { mouse_.goOnByPage(); });
}

} // namespace talvora
