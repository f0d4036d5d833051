#include "desktop/Shadow.h"

#include "desktop/Palette.h"

#include <QPainter>

namespace talvora {

namespace {

constexpr int Steps = 7;
constexpr int Opacity = 9; // of one step, from 0 to 255

} // namespace

void paintShadow(QPainter& painter, const QRectF& card, double radius, double reach) {
  QColor shadow(palette::Shadow);
  shadow.setAlpha(Opacity);
  painter.setPen(Qt::NoPen);
  painter.setBrush(shadow);
  for (int step = Steps; step > 0; --step) {
    const double spread = reach * 0.7 * step / Steps;
    const double drop = reach * 0.25;
    const QRectF box = card.adjusted(-spread, -spread + drop, spread, spread + drop);
    painter.drawRoundedRect(box, radius + spread, radius + spread);
  }
}

} // namespace talvora
