#include "desktop/Shadow.h"

#include "desktop/Palette.h"

#include <QPainter>

#include <array>
#include <cmath>

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

void CardPicture::paint(QPainter& painter, const QRegion& region, const QRect& card, double radius,
                        double reach, const QColor& back) {
  const double ratio = painter.device()->devicePixelRatioF();
  const bool same = radius == radius_ && reach == reach_ && back == back_ && !picture_.isNull() &&
                    picture_.devicePixelRatioF() == ratio;
  if (!same) {
    radius_ = radius;
    reach_ = reach;
    back_ = back;
    draw(ratio);
  }
  const QRect outer = card.adjusted(-rim_, -rim_, rim_, rim_);
  if (outer.width() < 2 * corner_ || outer.height() < 2 * corner_) {
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter, card, radius, reach);
    painter.setBrush(back);
    painter.drawRoundedRect(card, radius, radius);
    return;
  }
  const QRect middle = outer.adjusted(corner_, corner_, -corner_, -corner_);
  for (const QRect& rect : region.intersected(middle))
    painter.fillRect(rect, back);
  // Left, middle and right, or top, middle and bottom: where they go, and where they come from.
  const std::array columns{outer.left(), middle.left(), middle.right() + 1, outer.right() + 1};
  const std::array rows{outer.top(), middle.top(), middle.bottom() + 1, outer.bottom() + 1};
  const std::array source{0, corner_, corner_ + 1, 2 * corner_ + 1};
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t column = 0; column < 3; ++column) {
      if (row == 1 && column == 1) continue;
      const QRect target(QPoint(columns[column], rows[row]),
                         QPoint(columns[column + 1] - 1, rows[row + 1] - 1));
      if (!region.intersects(target)) continue;
      const QRectF piece(source[column] * ratio, source[row] * ratio,
                         (source[column + 1] - source[column]) * ratio,
                         (source[row + 1] - source[row]) * ratio);
      painter.drawPixmap(QRectF(target), picture_, piece);
    }
  }
}

// A card that is as small as its corners allow, with one pixel between them.
void CardPicture::draw(double ratio) {
  rim_ = static_cast<int>(std::ceil(reach_));
  // The shadow lies lower than the card.
  corner_ = 2 * rim_ + static_cast<int>(std::ceil(radius_));
  const int side = 2 * corner_ + 1;
  picture_ = QPixmap(QSize(side, side) * ratio);
  picture_.setDevicePixelRatio(ratio);
  picture_.fill(Qt::transparent);
  const QRectF card = QRectF(0, 0, side, side).adjusted(rim_, rim_, -rim_, -rim_);
  QPainter painter(&picture_);
  painter.setRenderHint(QPainter::Antialiasing);
  paintShadow(painter, card, radius_, reach_);
  painter.setBrush(back_);
  painter.drawRoundedRect(card, radius_, radius_);
}

} // namespace talvora
