// The soft shadow under a card.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QRectF>
#include <QRegion>

class QPainter;

namespace talvora {

/// Paints the shadow of a card with round corners, all in pixels; it stays within `reach` of the
/// card. The painter is left without a pen.
void paintShadow(QPainter& painter, const QRectF& card, double radius, double reach);

/// A card that fills a page, with its shadow: its corners are painted once, into a picture, and
/// what lies between them is stretched from there, since round shapes of the size of a large screen
/// take long.
class CardPicture {
 public:
  /// Paints what of a card lies in a region, all in pixels.
  void paint(QPainter& painter, const QRegion& region, const QRect& card, double radius,
             double reach, const QColor& back);

 private:
  void draw(double ratio);

  double radius_ = 0;
  double reach_ = 0;
  QColor back_;
  int corner_ = 0; ///< side of a corner's square, which begins `rim_` pixels outside of the card
  int rim_ = 0;
  QPixmap picture_;
};

} // namespace talvora
