#include "desktop/StripButton.h"

#include "desktop/Palette.h"

#include <QFontMetricsF>
#include <QPainter>

namespace talvora {

StripButton::StripButton(StripSign sign, const QString& name, QWidget* parent)
    : QAbstractButton(parent), sign_(sign) {
  setFocusPolicy(Qt::NoFocus);
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);
  setAccessibleName(name);
}

int StripButton::widthIn(int height) const {
  if (sign_ != StripSign::None) return height * 17 / 10;
  return qRound(QFontMetricsF(font()).horizontalAdvance(text()) + height * 1.1);
}

void StripButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (underMouse()) {
    painter.fillRect(rect(), QColor::fromRgba(sign_ == StripSign::Close ? palette::StripCloseHot
                                                                        : palette::StripHot));
  }
  painter.setPen(QColor(palette::StripText));
  if (sign_ == StripSign::None) {
    painter.setFont(font());
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
  } else {
    paintSign(painter);
  }
}

void StripButton::paintSign(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(
      QPen(QColor(palette::StripText), qMax(height() / 16.0, 1.2), Qt::SolidLine, Qt::RoundCap));
  const QPointF middle = QRectF(rect()).center();
  const double arm = height() * 0.2;
  if (sign_ == StripSign::Close) {
    painter.drawLine(middle + QPointF(-arm, -arm), middle + QPointF(arm, arm));
    painter.drawLine(middle + QPointF(-arm, arm), middle + QPointF(arm, -arm));
  } else {
    painter.drawLine(middle + QPointF(-arm, arm), middle + QPointF(arm, arm));
  }
}

} // namespace talvora
