#include "desktop/PageLook.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <string_view>

namespace talvora {

namespace {

const QColor PureBlue(0, 0, 255);
constexpr double SignPen = 30;         // twips
constexpr double UnderlineDrop = 0.86; ///< from a line's upper edge, in heights of the line

bool isList(std::string_view name) {
  constexpr std::array lists = {"R1", "RVP1", "RN1", "RW1", "RTD", "Rchon"};
  return std::find(lists.begin(), lists.end(), name) != lists.end();
}

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

PageLook lookOf(const Surface& surface) {
  const std::string& name = surface.Name();
  PageLook look;
  look.isList = isList(name);
  // The guide takes no key but Esc; a list shows its line.
  look.showsCaret = !look.isList && name != "Rcachhoc";
  if (name == "RVP1") look.blueSign = PageLook::BlueSign::Tick;
  if (name == "Rxep") look.blueSign = PageLook::BlueSign::Underline;
  return look;
}

void PageLook::paintMarks(QPainter& painter, const ShapedParagraph& paragraph) const {
  if (blueSign == BlueSign::None) return;
  for (const auto& [from, to] : paragraph.rangesIn(PureBlue)) {
    for (const QRectF& text : paragraph.rectsOf(from, to)) {
      if (blueSign == BlueSign::Underline) {
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
