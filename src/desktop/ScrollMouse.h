// The mouse on scroll bars: the thumb is dragged, and the trough leads on by pages for as long as
// it is held. What happens there never reaches the surface beneath.
#pragma once

#include "desktop/EventBridge.h"

#include <QObject>
#include <QPointF>
#include <QTimer>

#include <functional>

class QMouseEvent;

namespace talvora {

class SurfaceView;

class ScrollMouse final : public QObject {
 public:
  explicit ScrollMouse(EventBridge& bridge);

  /// Tells which surface's view lies under a point of the form, or null; set by the form's view.
  std::function<SurfaceView*(QPointF)> viewAt = [](QPointF) -> SurfaceView* { return nullptr; };

  // Each is true when the event belonged to a bar.
  bool press(const QMouseEvent& event);
  bool move(const QMouseEvent& event);
  bool release(const QMouseEvent& event);
  /// The pointer went elsewhere, or the press was lost.
  void leave();
  /// The view is going.
  void forget(const SurfaceView& view);

 private:
  void heat(SurfaceView* view);
  void goOnByPage();

  EventBridge& bridge_;
  SurfaceView* hot_ = nullptr;  ///< under whose bar the pointer is
  SurfaceView* held_ = nullptr; ///< whose bar the press was on
  bool dragged_ = false;        ///< the thumb, not the trough
  double grip_ = 0;             ///< from the thumb's upper edge to the pointer, in pixels
  QPointF pointer_;
  QTimer paging_;
};

} // namespace talvora
