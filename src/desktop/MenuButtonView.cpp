#include "desktop/MenuButtonView.h"

#include "desktop/Fonts.h"
#include "desktop/Palette.h"
#include "desktop/Shown.h"
#include "fronts/Units.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace talvora {

namespace {

/// Part of the button's width that the caption may take.
constexpr double CaptionPart = 0.92;
/// Part of the button's height that a line of the caption may take.
constexpr double LinePart = 0.95;
/// The same for the ink of capitals with marks above and below.
constexpr double InkPart = 0.72;
/// Part of the button's height that lies between its edge and the focus ring.
constexpr double RingPart = 0.07;

} // namespace

QString MenuButtonView::caption() const {
  return shown(captionOf(button_));
}

void MenuButtonView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawPixmap(0, 0, art_.picture(button_.Picture(), size(), devicePixelRatioF()));
  // The marks of a caption lie over the ring, where a small button leaves them no other room.
  if (buttonHasFocus()) paintRing(painter);
  paintCaption(painter);
}

void MenuButtonView::paintCaption(QPainter& painter) const {
  const QString text = caption();
  const QFont font = fontFor(button_.Font());
  const QFontMetricsF metrics(font);
  const double textWidth = std::max(1.0, metrics.horizontalAdvance(text));
  const double inkHeight = std::max(1.0, metrics.tightBoundingRect(QStringLiteral("ẪỌ")).height());
  const double scale =
      std::min({pixelsPerTwip(), width() * CaptionPart / textWidth,
                height() * LinePart / metrics.height(), height() * InkPart / inkHeight});
  painter.save();
  painter.setFont(font);
  painter.setPen(ButtonArt::textColour(button_.Picture()));
  painter.translate(width() / 2.0, (height() - 2) / 2.0);
  painter.scale(scale, scale);
  // Captions are capitals: their middle, not the line's, stands in the middle of the button.
  painter.drawText(QPointF(-textWidth / 2, metrics.capHeight() / 2), text);
  painter.restore();
}

void MenuButtonView::paintRing(QPainter& painter) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(palette::FocusRing), std::max(1.5, 25 * pixelsPerTwip())));
  painter.setBrush(Qt::NoBrush);
  const double inset = std::min(2.5, height() * RingPart);
  const QRectF box = body().adjusted(inset, inset - 0.5, -inset, -inset - 1.5);
  painter.drawRoundedRect(box, box.height() * 0.25, box.height() * 0.25);
  painter.restore();
}

} // namespace talvora
