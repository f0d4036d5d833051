// A control view is the widget of one control. It only paints: keys go to the window and the mouse
// to the form's view, so that both find their control in the same way as every other front.
#pragma once

#include "surface/Control.h"

#include <QRectF>
#include <QWidget>

namespace talvora {

class ControlView : public QWidget {
 public:
  ControlView(const Control& control, QWidget* parent);

  /// Brings the widget to its control's place.
  void place(double pixelsPerTwip);
  /// Marks for repainting what is out of date. Called once for any number of changes of the
  /// control, before the next painting.
  virtual void refresh() { update(); }

 protected:
  [[nodiscard]] double pixelsPerTwip() const noexcept { return scale_; }
  /// The control's rectangle in the widget, in pixels.
  [[nodiscard]] QRectF body() const;
  /// The control's rectangle in pixels of the form. Edges are rounded, not sizes: what adjoins in
  /// twips adjoins in pixels.
  [[nodiscard]] QRect place() const;
  /// Moves the widget to where its control has come.
  virtual void moveWidget();
  /// Pixels that the widget reaches beyond its control on every side, for a shadow.
  [[nodiscard]] virtual int overhang() const { return 0; }

 private:
  const Control& control_;
  double scale_ = 0;
};

} // namespace talvora
