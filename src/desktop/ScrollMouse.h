// Lights the scroll bar under the pointer, and goes on by pages while a trough is held.
#pragma once

#include "desktop/EventBridge.h"
#include "fronts/BarMouse.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace talvora {

class SurfaceView;

class ScrollMouse final : public QObject {
 public:
  ScrollMouse(EventBridge& bridge, Form& form, const LineLayout& layout);

  /// Gives the view of a surface, or null; set by the form's view.
  std::function<SurfaceView*(const Surface&)> viewOf = [](const Surface&) -> SurfaceView* {
    return nullptr;
  };

  // At a point of the form in twips; each is true when the event belonged to a bar.
  bool press(SurfacePoint at, bool left);
  bool move(SurfacePoint at, bool leftHeld);
  bool release(SurfacePoint at);
  /// The pointer went elsewhere, or the press was lost.
  void leave();
  /// The surface is going.
  void forget(const Surface& surface);

 private:
  void heat(const Surface* surface);
  void goOnByPage();

  EventBridge& bridge_;
  BarMouse mouse_;
  const Surface* hot_ = nullptr; ///< under whose bar the pointer is
  QTimer paging_;
};

} // namespace talvora
