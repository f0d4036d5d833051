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
  // Edges are rounded, not sizes: what adjoins in twips adjoins in pixels.
  const auto pixel = [&](int twips) { return qRound(twips * scale_); };
  const int left = pixel(control_.Left());
  const int top = pixel(control_.Top());
  const QRect box(left, top, pixel(control_.Left() + control_.Width()) - left,
                  pixel(control_.Top() + control_.Height()) - top);
  const int beyond = overhang();
  setGeometry(box.adjusted(-beyond, -beyond, beyond, beyond));
}

QRectF ControlView::body() const {
  const int beyond = overhang();
  return QRectF(rect()).adjusted(beyond, beyond, -beyond, -beyond);
}

} // namespace talvora
