#include "desktop/ControlView.h"

namespace talvora {

ControlView::ControlView(const Control& control, QWidget* parent)
    : QWidget(parent), control_(control) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  setObjectName(QString::fromStdString(control.Name()));
  hide();
}

void ControlView::place(double pixelsPerTwip) {
  if (scale_ != pixelsPerTwip) update();
  scale_ = pixelsPerTwip;
  moveWidget();
}

QRect ControlView::place() const {
  const auto pixel = [&](int twips) { return qRound(twips * scale_); };
  const int left = pixel(control_.Left());
  const int top = pixel(control_.Top());
  return {left, top, pixel(control_.Left() + control_.Width()) - left,
          pixel(control_.Top() + control_.Height()) - top};
}

void ControlView::moveWidget() {
  const int beyond = overhang();
  setGeometry(place().adjusted(-beyond, -beyond, beyond, beyond));
}

QRectF ControlView::body() const {
  const int beyond = overhang();
  return QRectF(rect()).adjusted(beyond, beyond, -beyond, -beyond);
}

} // namespace talvora
