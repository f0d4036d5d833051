// The view of the form: one widget for each control that was ever visible, in the form's stacking
// order. It collects what changes and brings it to the screen in one go.
#pragma once

#include "desktop/ButtonArt.h"
#include "desktop/ControlView.h"
#include "desktop/EventBridge.h"
#include "desktop/FormMouse.h"
#include "desktop/QtLineLayout.h"
#include "desktop/ScrollMouse.h"
#include "fronts/CameUp.h"
#include "surface/Form.h"

#include <QWidget>

#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace talvora {

/// Its size is the form's, scaled. Until the form is shown it shows no control.
class FormView final : public QWidget, public FormObserver {
 public:
  FormView(Form& form, FormInput& input, EventBridge& bridge, QtLineLayout& layout,
           QWidget* parent);
  FormView(const FormView&) = delete;
  FormView& operator=(const FormView&) = delete;
  ~FormView() override;

  std::function<void()> onCaptionChanged;
  std::function<void()> onFocusChanged;
  std::function<void()> onMiddleClick = [] {};
  /// Called with the point to which the learner brings the pointer.
  void onPointer(std::function<void(SurfacePoint at)> call) {
    mouse_.pointerCame = std::move(call);
  }
  /// Called with a surface that came up over a page, or changed there, without getting the
  /// keyboard.
  std::function<void(const Surface&)> onCameUp = [](const Surface&) {};

  /// Called when what has changed is on its way to the screen.
  std::function<void()> onSettled = [] {};

  /// Places every child anew.
  void setScale(double pixelsPerTwip);
  /// Makes the views of what is to be seen, ahead of the first painting.
  void prepare() { settle(); }
  /// Paints at once what has changed.
  void repaintNow();

  void controlChanged(Control& control, ControlChange change) override;
  void focusChanged() override;
  void captionChanged() override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void leaveEvent(QEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// Has `settle` called before the next painting.
  void settleSoon();
  /// Brings the widgets in line with their controls and marks what is to be painted.
  void settle();
  void settlePlace(Control& control);
  void showForm();
  [[nodiscard]] ControlView* viewOf(const Control& control) const;
  ControlView& makeView(Control& control);
  /// A view of the control's kind, owned by this widget.
  ControlView* newView(Control& control);
  /// The widget that already stands right in front of a control's place; null when none does.
  [[nodiscard]] ControlView* nextInFront(const Control& control) const;
  void updateCursor();
  [[nodiscard]] Qt::CursorShape cursorShape() const;
  /// The view of the surface whose scroll bar lies under a point; null when none does.
  bool pressesBar(const QMouseEvent& event);

  Form& form_;
  FormInput& input_;
  EventBridge& bridge_;
  QtLineLayout& layout_;
  FormMouse mouse_;
  ScrollMouse scrollMouse_;
  ButtonArt buttonArt_;
  double scale_ = 0;
  bool formShown_ = false;
  bool settling_ = false;          ///< a call of `settle` is on its way
  bool focusMoved_ = false;        ///< since the last call of `settle`
  const Control* focus_ = nullptr; ///< whoever was seen to have the keyboard
  std::unordered_map<const Control*, ControlView*> views_; ///< owned by this widget
  std::unordered_set<Control*> moved_;
  std::unordered_set<const Control*> changed_;
  CameUp cameUp_;
};

} // namespace talvora
