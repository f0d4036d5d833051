#include "desktop/CaptionStrip.h"

#include "desktop/Fonts.h"

#include <QMouseEvent>
#include <QPainter>

namespace talvora {

namespace {

const QColor StripColour(0x1F, 0x3A, 0x4D);
const QColor StripText(0xF4, 0xF1, 0xE8);
const QColor HotClose(0xB3, 0x3A, 0x2E);
// The program pads its title with blanks to bring it to the middle of the strip.
constexpr int FewestPadding = 20;
constexpr double PaddingShare = 0.44;

/// A caption in the two pieces that its padding parts; without padding all is in the first.
struct CaptionPieces {
  QString head;
  QString tail;
};

CaptionPieces piecesOf(const QString& caption) {
  const auto padding = caption.indexOf(QString(FewestPadding, QLatin1Char(' ')));
  if (padding < 0) return {caption, {}};
  return {caption.left(padding), caption.mid(padding).trimmed()};
}

} // namespace

CaptionStrip::CaptionStrip(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName(QStringLiteral("Talvora"));
}

void CaptionStrip::setCaption(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  update();
}

QRect CaptionStrip::closeBox() const {
  const int side = height();
  return {width() - side * 3 / 2, 0, side * 3 / 2, side};
}

void CaptionStrip::setHot(bool hot) {
  if (hot_ == hot) return;
  hot_ = hot;
  update(closeBox());
}

void CaptionStrip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), StripColour);
  QFont font = fontFor(FontSpec{"x1", 10, false});
  font.setPixelSize(qMax(height() * 6 / 10, 1));
  painter.setFont(font);
  painter.setPen(StripText);
  const CaptionPieces pieces = piecesOf(caption_);
  const int margin = height() / 2;
  const int tailAt = qRound(margin + painter.fontMetrics().horizontalAdvance(pieces.head) +
                            PaddingShare * width());
  const auto draw = [&](int left, const QString& text) {
    painter.drawText(rect().adjusted(left, 0, -closeBox().width(), 0),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
  };
  draw(margin, pieces.head);
  draw(tailAt, pieces.tail);

  if (hot_) painter.fillRect(closeBox(), HotClose);
  const QPointF middle = QRectF(closeBox()).center();
  const double arm = height() * 0.2;
  painter.setPen(QPen(StripText, qMax(height() / 16.0, 1.2), Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(middle + QPointF(-arm, -arm), middle + QPointF(arm, arm));
  painter.drawLine(middle + QPointF(-arm, arm), middle + QPointF(arm, -arm));
}

void CaptionStrip::mouseMoveEvent(QMouseEvent* event) {
  setHot(closeBox().contains(event->position().toPoint()));
}

void CaptionStrip::leaveEvent(QEvent*) {
  setHot(false);
}

void CaptionStrip::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && closeBox().contains(event->position().toPoint())) {
    closeClicked();
  }
}

} // namespace talvora
