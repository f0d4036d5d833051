#include "desktop/PlainViews.h"

#include "desktop/BackgroundArt.h"
#include "desktop/Fonts.h"
#include "desktop/Palette.h"
#include "desktop/Shown.h"
#include "fronts/Units.h"

#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr int ShadowReach = 150; // twips
constexpr int CardRadius = 120;  // twips

} // namespace

// -- The card.

int FrameView::overhang() const {
  return qRound(ShadowReach * pixelsPerTwip());
}

void FrameView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  card_.paint(painter, event->region(), body().toRect(), CardRadius * pixelsPerTwip(), overhang(),
              colourOf(frame_.BackColor()));
}

// -- The label.

void LabelView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), colourOf(label_.BackColor()));
  const QFont font = fontFor(label_.Font());
  const QFontMetricsF metrics(font);
  const QString text = shown(unitsOf(label_.Caption(), label_.Font().name));
  const double textWidth = std::max(1.0, metrics.horizontalAdvance(text));
  const double scale =
      std::min({pixelsPerTwip(), width() / textWidth, height() / metrics.height()});
  painter.setFont(font);
  painter.setPen(colourOf(label_.ForeColor()));
  painter.translate(width() / 2.0, height() / 2.0);
  painter.scale(scale, scale);
  painter.drawText(QPointF(-textWidth / 2, metrics.ascent() - metrics.height() / 2), text);
}

// -- The curtain.

void PanelView::paintEvent(QPaintEvent* event) {
  QColor colour = colourOf(panel_.BackColor());
  colour.setAlpha(std::clamp(panel_.Alpha(), 0, 255));
  QPainter(this).fillRect(event->rect() & shown_.translated(-pos()), colour);
}

void PanelView::moveWidget() {
  const QRect before = std::exchange(shown_, place());
  if (!isVisible()) {
    setGeometry(shown_);
  } else if (!geometry().contains(shown_)) {
    // The right half goes on to the right; room for all of its way is made once.
    QRect room = shown_;
    room.setRight(parentWidget()->width());
    setGeometry(room);
  } else {
    update((QRegion(before) ^ QRegion(shown_)).translated(-pos()));
  }
}

void PanelView::refresh() {
  update(shown_.translated(-pos()));
}

// -- The background.

void ImageView::moveWidget() {
  ControlView::moveWidget();
  draw();
}

void ImageView::draw() {
  const QSize wanted = pixels();
  if (wanted.isEmpty() || std::exchange(drawn_, wanted) == wanted) return;
  drawing_ = std::async(std::launch::async, [wanted] { return drawLandscape(wanted); });
}

void ImageView::paintEvent(QPaintEvent* event) {
  draw();
  if (drawing_.valid()) {
    picture_ = QPixmap::fromImage(drawing_.get());
    writeName(picture_);
    picture_.setDevicePixelRatio(devicePixelRatioF());
  }
  QPainter painter(this);
  painter.setClipRegion(event->region());
  painter.drawPixmap(0, 0, picture_);
}

} // namespace talvora
