#include "desktop/HintBarView.h"

#include "desktop/Palette.h"
#include "desktop/Shadow.h"
#include "desktop/Shown.h"
#include "fronts/Units.h"

#include <QPainter>

namespace talvora {

namespace {

constexpr int Radius = 90;       // twips
constexpr int ShadowReach = 120; // twips
constexpr int Edge = 15;         // twips

} // namespace

QString HintBarView::text() const {
  return shown(lettersOf(surface_, 0, surface_.TextLength()));
}

int HintBarView::overhang() const {
  return qRound(ShadowReach * pixelsPerTwip());
}

void HintBarView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const int form = qRound(parentWidget()->height() / pixelsPerTwip());
  const HintCard card(surface_, form, layout_);
  paintCard(painter, card);
  paintLines(painter, card);
}

void HintBarView::paintCard(QPainter& painter, const HintCard& hints) const {
  const double radius = Radius * pixelsPerTwip();
  QRectF card = body();
  card.setHeight(hints.height() * pixelsPerTwip());
  paintShadow(painter, card, radius, overhang());
  const double edge = std::max(1.0, Edge * pixelsPerTwip());
  painter.setPen(QPen(QColor(palette::HintEdge), edge));
  painter.setBrush(colourOf(surface_.BackColor()));
  painter.drawRoundedRect(card.adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2), radius, radius);
}

void HintBarView::paintLines(QPainter& painter, HintCard card) const {
  const QColor back = colourOf(surface_.BackColor());
  painter.translate(body().topLeft());
  painter.scale(pixelsPerTwip(), pixelsPerTwip());
  for (int each = 0; each < surface_.paragraphCount(); ++each) {
    const ShapedParagraph& line = layout_.shaped(surface_.paragraph(each, card.room()).view());
    const double height = line.shape().height;
    painter.save();
    painter.translate(surface_.Width() / 2.0, card.nextMiddle(height));
    painter.scale(card.narrower(), card.lower());
    painter.translate(-card.room() / 2.0, -height / 2);
    line.paint(painter, {}, back, layout_.letters());
    painter.restore();
  }
}

} // namespace talvora
