// The soft shadow under a card.
#pragma once

#include <QRectF>

class QPainter;

namespace talvora {

/// Paints the shadow of a card with round corners, all in pixels; it stays within `reach` of the
/// card. The painter is left without a pen.
void paintShadow(QPainter& painter, const QRectF& card, double radius, double reach);

} // namespace talvora
