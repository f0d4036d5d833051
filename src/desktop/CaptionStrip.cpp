#include "desktop/CaptionStrip.h"

#include "desktop/Fonts.h"

#include <QMouseEvent>
#include <QPainter>

namespace talvora {

namespace {

const QColor StripColour(0x1F, 0x3A, 0x4D);
const QColor StripText(0xF4, 0xF1, 0xE8);
const QColor HotClose(0xB3, 0x3A, 0x2E);

} // namespace

CaptionStrip::CaptionStrip(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName(QStringLiteral("Talvora"));
}

void CaptionStrip::setCaption(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  update();
}

QRect CaptionStrip::closeBox() const {
  const int side = height();
  return {width() - side * 3 / 2, 0, side * 3 / 2, side};
}

void CaptionStrip::setHot(bool hot) {
  if (hot_ == hot) return;
  hot_ = hot;
  update(closeBox());
}

void CaptionStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), StripColour);
  QFont font = fontFor(FontSpec{"x1", 10, false});
  font.setPixelSize(qMax(height() * 6 / 10, 1));
  painter.setFont(font);
  painter.setPen(StripText);
  const int margin = height() / 2;
  painter.drawText(rect().adjusted(margin, 0, -closeBox().width(), 0),
                   Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, caption_);

  if (hot_) painter.fillRect(closeBox(), HotClose);
  const QPointF middle = QRectF(closeBox()).center();
  const double arm = height() * 0.2;
  painter.setPen(QPen(StripText, qMax(height() / 16.0, 1.2), Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(middle + QPointF(-arm, -arm), middle + QPointF(arm, arm));
  painter.drawLine(middle + QPointF(-arm, arm), middle + QPointF(arm, -arm));
}

void CaptionStrip::mouseMoveEvent(QMouseEvent* event) {
  setHot(closeBox().contains(event->position().toPoint()));
}

void CaptionStrip::leaveEvent(QEvent*) {
  setHot(false);
}

void CaptionStrip::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && closeBox().contains(event->position().toPoint())) {
    closeClicked();
  }
}

} // namespace talvora
