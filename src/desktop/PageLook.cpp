#include "desktop/PageLook.h"

#include <QPainter>

#include <array>

namespace talvora {

namespace {

const QColor PureBlue(0, 0, 255);
constexpr double SignPen = 30;         // twips
constexpr double UnderlineDrop = 0.86; ///< from a line's upper edge, in heights of the line

/// Left of the line's text, in the margin.
void paintTick(QPainter& painter, const QRectF& text) {
  const double size = text.height() * 0.3;
  const QPointF at(text.left() - size * 1.25, text.center().y());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(PureBlue, SignPen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(std::array{at + QPointF(0, size * 0.1),
                                  at + QPointF(size * 0.35, size * 0.45),
                                  at + QPointF(size, -size * 0.5)}
                           .data(),
                       3);
}

void paintUnderline(QPainter& painter, const QRectF& text) {
  const double y = text.top() + text.height() * UnderlineDrop;
  painter.setPen(QPen(PureBlue, SignPen));
  painter.drawLine(QPointF(text.left(), y), QPointF(text.right(), y));
}

} // namespace

void paintMarks(QPainter& painter, const ShapedParagraph& paragraph, PageTraits::BlueSign sign) {
  if (sign == PageTraits::BlueSign::None) return;
  for (const auto& [from, to] : paragraph.rangesIn(PureBlue)) {
    for (const QRectF& text : paragraph.rectsOf(from, to)) {
      if (sign == PageTraits::BlueSign::Underline) {
        paintUnderline(painter, text);
      } else {
        // One tick a lesson says it.
        paintTick(painter, text);
        return;
      }
    }
  }
}

} // namespace talvora
