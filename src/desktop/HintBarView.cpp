#include "desktop/HintBarView.h"

#include "desktop/Palette.h"
#include "desktop/Shadow.h"

#include <QPainter>

#include <algorithm>

namespace talvora {

namespace {

constexpr int Radius = 90;       // twips
constexpr int ShadowReach = 120; // twips
constexpr int Edge = 15;         // twips
constexpr double CardTop = 0.1;  ///< of the form's height
constexpr double Padding = 30;   // twips above the first line and below the last
constexpr double SidePadding = 150;
constexpr double Narrowest = 0.77; ///< of the letters' own width
/// The part of a line's height that letters with their marks fill.
constexpr double InkPart = 0.92;

/// What a line needs at its natural size, in twips.
double widthOf(const ShapedParagraph& line, int length) {
  double left = 0;
  double right = 0;
  for (const QRectF& rect : line.rectsOf(0, length)) {
    left = left == 0 ? rect.left() : std::min(left, rect.left());
    right = std::max(right, rect.right());
  }
  return right - left;
}

} // namespace

QString HintBarView::text() const {
  return unitsOf(surface_.Text(), surface_.Font().name).replace(QChar(0x200B), QLatin1Char('\n'));
}

int HintBarView::overhang() const {
  return qRound(ShadowReach * pixelsPerTwip());
}

void HintBarView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintCard(painter);
  paintLines(painter);
}

int HintBarView::paintedHeight() const {
  const double form = parentWidget()->height() / pixelsPerTwip();
  const int cardTop = qRound(form * CardTop) - surface_.Top();
  return std::clamp(cardTop, surface_.Height() / 2, surface_.Height());
}

void HintBarView::paintCard(QPainter& painter) const {
  const double radius = Radius * pixelsPerTwip();
  QRectF card = body();
  card.setHeight(paintedHeight() * pixelsPerTwip());
  paintShadow(painter, card, radius, overhang());
  const double edge = std::max(1.0, Edge * pixelsPerTwip());
  painter.setPen(QPen(QColor(palette::HintEdge), edge));
  painter.setBrush(colourOf(surface_.BackColor()));
  painter.drawRoundedRect(card.adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2), radius, radius);
}

void HintBarView::paintLines(QPainter& painter) const {
  const QColor back = colourOf(surface_.BackColor());
  // Laid out as wide as the narrowest letters allow, so that a line breaks only beyond that.
  const int room = qRound(surface_.Width() / Narrowest);
  const int count = surface_.paragraphCount();
  double natural = 0;
  double widest = 0;
  for (int each = 0; each < count; ++each) {
    const ParagraphRef content = surface_.paragraph(each, room);
    const ShapedParagraph& line = layout_.shaped(content.view());
    natural += line.shape().height;
    widest = std::max(widest, widthOf(line, static_cast<int>(content.view().text.size())));
  }
  const int whole = paintedHeight();
  const double high = whole - 2 * Padding;
  const double closer = std::min(1.0, high / std::max(1.0, natural));
  // Lines come closer first; letters become lower only where their marks would meet.
  const double lower = std::min(1.0, closer / InkPart);
  const double narrower = std::min(
      lower, std::max(Narrowest, (surface_.Width() - 2 * SidePadding) / std::max(1.0, widest)));
  painter.translate(body().topLeft());
  painter.scale(pixelsPerTwip(), pixelsPerTwip());
  double top = (whole - natural * closer) / 2;
  for (int each = 0; each < count; ++each) {
    const ShapedParagraph& line = layout_.shaped(surface_.paragraph(each, room).view());
    const double height = line.shape().height;
    painter.save();
    painter.translate(surface_.Width() / 2.0, top + height * closer / 2);
    painter.scale(narrower, lower);
    painter.translate(-room / 2.0, -height / 2);
    line.paint(painter, {}, back, layout_.letters());
    painter.restore();
    top += height * closer;
  }
}

} // namespace talvora
