#include "desktop/MenuButtonView.h"

#include "desktop/Fonts.h"
#include "desktop/Palette.h"
#include "text/GlyphMap.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace talvora {

namespace {

/// Part of the button's width that the caption may take.
constexpr double CaptionPart = 0.92;
/// Part of the button's height that a line of the caption may take.
constexpr double LinePart = 0.95;

} // namespace

QString MenuButtonView::caption() const {
  const Encoding encoding = encodingOf(button_.Font().name);
  QString caption = QString::fromStdU16String(toUnicode(button_.Caption(), encoding));
  // In a caption "&&" stands for one "&".
  return caption.replace(QLatin1String("&&"), QLatin1String("&"));
}

void MenuButtonView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawPixmap(0, 0, art_.picture(button_.Picture(), size(), devicePixelRatioF()));
  paintCaption(painter);
  if (buttonHasFocus()) paintRing(painter);
}

void MenuButtonView::paintCaption(QPainter& painter) const {
  const QString text = caption();
  const QFont font = fontFor(button_.Font());
  const QFontMetricsF metrics(font);
  const double textWidth = std::max(1.0, metrics.horizontalAdvance(text));
  const double scale = std::min(
      {pixelsPerTwip(), width() * CaptionPart / textWidth, height() * LinePart / metrics.height()});
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
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(palette::FocusRing), std::max(1.5, 25 * pixelsPerTwip())));
  painter.setBrush(Qt::NoBrush);
  const QRectF box = body().adjusted(2.5, 2, -2.5, -4);
  painter.drawRoundedRect(box, box.height() * 0.25, box.height() * 0.25);
}

} // namespace talvora
