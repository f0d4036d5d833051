// The mouse on the form: which control a press, a move or a turn of the wheel belongs to.
#pragma once

#include "desktop/EventBridge.h"
#include "surface/Button.h"
#include "surface/Form.h"

#include <QPointF>

#include <functional>

class QMouseEvent;
class QWheelEvent;

namespace talvora {

class FormMouse {
 public:
  FormMouse(Form& form, EventBridge& bridge) : form_(form), bridge_(bridge) {}

  /// Called with the point of the form, in twips, to which the learner brings the pointer.
  std::function<void(SurfacePoint at)> pointerCame = [](SurfacePoint) {};

  /// The button that a moved pointer means, whatever lies under it; null for what lies there.
  std::function<Button*()> steeredButton = []() -> Button* { return nullptr; };

  void setScale(double pixelsPerTwip) noexcept { scale_ = pixelsPerTwip; }

  void press(const QMouseEvent& event);
  /// The control that took the press gets the release; a button is clicked when it is still under
  /// the pointer.
  void release(const QMouseEvent& event);
  void doubleClick(const QMouseEvent& event);
  void move(const QMouseEvent& event);
  void wheel(const QWheelEvent& event);

  /// A press whose release goes elsewhere is over: a box has opened, or another window is in front.
  void endPress() noexcept { pressed_ = nullptr; }
  /// Told when the keyboard has passed to another control, which ends a press that did not do so
  /// itself.
  void focusMoved();

  /// The control under the pointer, or null.
  [[nodiscard]] Control* hovered() const { return form_.controlAt(pointer_); }
  /// Where the pointer is, in twips of the form.
  [[nodiscard]] SurfacePoint pointer() const noexcept { return pointer_; }
  /// A control was pressed and has not got its release yet.
  [[nodiscard]] bool holdsPress() const noexcept { return pressed_ != nullptr; }
  [[nodiscard]] SurfacePoint pointOf(QPointF pixels) const;

 private:
  void take(SurfacePoint point);
  /// What a press does to the program.
  void deliverPress(const std::function<void()>& deed);

  Form& form_;
  EventBridge& bridge_;
  double scale_ = 1;
  SurfacePoint pointer_; ///< in twips of the form
  Control* pressed_ = nullptr;
  bool pressing_ = false; ///< the program answers a press
};

} // namespace talvora
