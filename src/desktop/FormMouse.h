// The mouse on the form's view: what Qt tells of it, as the program takes it.
#pragma once

#include "desktop/EventBridge.h"
#include "surface/FormInput.h"

#include <QPointF>

#include <functional>

class QMouseEvent;
class QWheelEvent;

namespace talvora {

class FormMouse {
 public:
  FormMouse(FormInput& input, EventBridge& bridge) : input_(input), bridge_(bridge) {}

  /// Called with the point of the form, in twips, to which the learner brings the pointer.
  std::function<void(SurfacePoint at)> pointerCame = [](SurfacePoint) {};

  void setScale(double pixelsPerTwip) noexcept { scale_ = pixelsPerTwip; }

  void press(const QMouseEvent& event);
  void release(const QMouseEvent& event);
  void doubleClick(const QMouseEvent& event);
  void move(const QMouseEvent& event);
  void wheel(const QWheelEvent& event);

  [[nodiscard]] SurfacePoint pointOf(QPointF pixels) const;

 private:
  SurfacePoint take(QPointF pixels);

  FormInput& input_;
  EventBridge& bridge_;
  double scale_ = 1;
};

} // namespace talvora
