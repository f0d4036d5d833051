#include "desktop/SurfaceView.h"

#include "desktop/Palette.h"

#include <QLinearGradient>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr int PlateRadius = 90;     // twips
constexpr int CaretWidth = 20;      // twips
constexpr int ThumbWidth = 100;     // twips
constexpr int HotThumbWidth = 165;  // twips
constexpr int ThumbGap = 30;        // twips to the right edge
constexpr int CurrentLineEdge = 75; // twips
constexpr int SelectionRadius = 40; // twips
constexpr int SelectionBorder = 12; // twips
constexpr int Beyond = 2;           // pixels
constexpr int DarkBelow = 128;

} // namespace

SurfaceView::SurfaceView(Surface& surface, QtLineLayout& layout, const Form& form, QWidget* parent)
    : ControlView(surface, parent), surface_(surface), layout_(layout), form_(form),
      bar_(surface, layout), traits_(traitsOf(surface)), teller_(*this, surface) {
  if (!isRounded()) setAttribute(Qt::WA_OpaquePaintEvent);
}

bool SurfaceView::isRounded() const {
  return surface_.Name().starts_with("Rnen");
}

const ShapedParagraph& SurfaceView::shaped(int paragraph) const {
  return layout_.shaped(surface_.paragraph(paragraph).view());
}

template <class Use>
void SurfaceView::eachInView(Use use) const {
  const ScrollPlace scroll = surface_.scroll();
  int top = -scroll.offset;
  for (int each = scroll.paragraph; each < surface_.paragraphCount() && top < surface_.Height();
       ++each) {
    const ShapedParagraph& paragraph = shaped(each);
    const int height = paragraph.shape().height;
    use(each, paragraph, top);
    top += height;
  }
}

// -- What it looks like.

SurfaceView::Piece SurfaceView::pieceOf(int paragraph, const ShapedParagraph& shaped,
                                        int top) const {
  return {shaped.serial(), top, shaped.shape().height, marksOf(surface_, form_, paragraph)};
}

SurfaceView::Picture SurfaceView::picture() const {
  Picture result;
  result.back = surface_.BackColor();
  eachInView([&](int number, const ShapedParagraph& paragraph, int top) {
    result.pieces.push_back(pieceOf(number, paragraph, top));
  });
  result.thumb = thumb();
  result.barHot = barHot_;
  return result;
}

// -- The scroll bar.

QRect SurfaceView::thumb() const {
  const ScrollBar::Extent extent = bar_.extent();
  if (!extent.scrolls) return {};
  const ScrollBar::Thumb thumb = bar_.thumb(extent);
  const double scale = pixelsPerTwip();
  const double width = barHot_ ? HotThumbWidth : ThumbWidth;
  return QRectF((surface_.Width() - ThumbGap - width) * scale, thumb.top * scale, width * scale,
                thumb.length * scale)
      .toAlignedRect();
}

QRect SurfaceView::barStrip() const {
  const int wide = qRound(ScrollBar::StripWidth * pixelsPerTwip());
  return {width() - wide, 0, wide, height()};
}

void SurfaceView::setBarHot(bool hot) {
  barHot_ = hot;
  refresh();
}

// -- What is to be painted.

QRect SurfaceView::rectOf(const Piece& piece) const {
  const double scale = pixelsPerTwip();
  // The border of a selection and the marks of a letter reach a little beyond their line.
  return QRectF(0, piece.top * scale, width(), piece.height * scale)
      .toAlignedRect()
      .adjusted(0, -Beyond, 0, Beyond);
}

void SurfaceView::updatePiece(const Piece& piece) {
  update(rectOf(piece));
}

void SurfaceView::refresh() {
  Picture now = picture();
  if (!marked_ || marked_->back != now.back) {
    update();
  } else {
    const auto& before = marked_->pieces;
    const std::size_t most = std::max(before.size(), now.pieces.size());
    for (std::size_t each = 0; each < most; ++each) {
      const Piece* const old = each < before.size() ? &before[each] : nullptr;
      const Piece* const fresh = each < now.pieces.size() ? &now.pieces[each] : nullptr;
      if (old != nullptr && fresh != nullptr && *old == *fresh) continue;
      if (old != nullptr) updatePiece(*old);
      if (fresh != nullptr) updatePiece(*fresh);
    }
    if (marked_->thumb != now.thumb || marked_->barHot != now.barHot) update(barStrip());
  }
  marked_ = std::move(now);
  teller_.tell();
}

QRect SurfaceView::caretRect(int caret) const {
  QRect rect;
  eachInView([&](int number, const ShapedParagraph& paragraph, int top) {
    if (surface_.paragraphOf(caret) != number) return;
    const CaretPlace place = paragraph.placeOf(caret - surface_.paragraphStart(number));
    const double scale = pixelsPerTwip();
    rect =
        QRectF(place.x * scale, (top + place.top) * scale, CaretWidth * scale, place.height * scale)
            .toAlignedRect();
  });
  return rect;
}

// -- Painting.

void SurfaceView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  paintBack(painter, event->rect());
  const double scale = pixelsPerTwip();
  const QRectF dirty(event->rect().x() / scale, event->rect().y() / scale,
                     event->rect().width() / scale, event->rect().height() / scale);
  Picture now;
  now.back = surface_.BackColor();
  eachInView([&](int number, const ShapedParagraph& paragraph, int top) {
    now.pieces.push_back(pieceOf(number, paragraph, top));
    const Piece& piece = now.pieces.back();
    if (top + piece.height < dirty.top() || top > dirty.bottom()) return;
    paintPiece(painter, paragraph, piece, dirty);
  });
  now.thumb = thumb();
  now.barHot = barHot_;
  paintFade(painter, now.pieces);
  paintBar(painter, now);
  // A part was painted ahead of its marking: what was marked no longer tells what is on the screen.
  if (marked_ && *marked_ != now) marked_.reset();
}

void SurfaceView::paintBack(QPainter& painter, const QRect& dirty) const {
  const QColor back = colourOf(surface_.BackColor());
  if (!isRounded()) {
    painter.fillRect(dirty, back);
    return;
  }
  const double radius = PlateRadius * pixelsPerTwip();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(back);
  painter.drawRoundedRect(body(), radius, radius);
}

void SurfaceView::paintPiece(QPainter& painter, const ShapedParagraph& shaped, const Piece& piece,
                             const QRectF& dirty) const {
  painter.save();
  painter.scale(pixelsPerTwip(), pixelsPerTwip());
  painter.translate(0, piece.top);
  if (piece.marks.current) paintCurrentLine(painter, piece);
  if (piece.marks.to > piece.marks.from) paintSelection(painter, shaped, piece);
  paintMarks(painter, shaped, traits_.blueSign);
  shaped.paint(painter, dirty.translated(0, -piece.top), colourOf(surface_.BackColor()),
               layout_.letters());
  painter.restore();
  if (piece.marks.caret >= 0) paintCaret(painter, shaped.placeOf(piece.marks.caret), piece.top);
}

void SurfaceView::paintCurrentLine(QPainter& painter, const Piece& piece) const {
  const QRectF line(0, 0, surface_.Width(), piece.height);
  painter.fillRect(line, QColor(palette::CurrentLine));
  painter.fillRect(QRectF(0, 0, CurrentLineEdge, piece.height), QColor(palette::CurrentLineEdge));
}

void SurfaceView::paintSelection(QPainter& painter, const ShapedParagraph& shaped,
                                 const Piece& piece) const {
  const bool dark = qGray(colourOf(surface_.BackColor()).rgb()) < DarkBelow;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor::fromRgba(dark ? palette::DarkSelection : palette::SelectionEdge),
                      SelectionBorder));
  painter.setBrush(QColor::fromRgba(dark ? palette::DarkSelection : palette::Selection));
  for (const QRectF& rect : shaped.rectsOf(piece.marks.from, piece.marks.to)) {
    painter.drawRoundedRect(rect, SelectionRadius, SelectionRadius);
  }
}

void SurfaceView::paintFade(QPainter& painter, const std::vector<Piece>& pieces) const {
  if (pieces.empty() || isRounded()) return;
  const Piece& last = pieces.back();
  const int bottom = surface_.Height();
  if (last.top + last.height <= bottom) return;
  const int paragraph = surface_.scroll().paragraph + static_cast<int>(pieces.size()) - 1;
  const int cut = cutOf(shaped(paragraph).shape(), last.top, bottom);
  if (cut >= bottom) return;
  const double scale = pixelsPerTwip();
  const QColor back =
      last.marks.current ? QColor(palette::CurrentLine) : colourOf(surface_.BackColor());
  QLinearGradient fade(0, cut * scale, 0, bottom * scale);
  QColor clear = back;
  clear.setAlpha(0);
  fade.setColorAt(0, clear);
  fade.setColorAt(1, back);
  painter.fillRect(QRectF(0, cut * scale, width(), height() - cut * scale), fade);
}

void SurfaceView::paintBar(QPainter& painter, const Picture& picture) const {
  if (picture.thumb.isEmpty()) return;
  const double radius = picture.thumb.width() / 2.0;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  if (picture.barHot) {
    painter.setBrush(QColor::fromRgba(palette::ScrollTrough));
    painter.drawRoundedRect(QRectF(picture.thumb.left(), 0, picture.thumb.width(), height()),
                            radius, radius);
  }
  painter.setBrush(QColor::fromRgba(palette::ScrollBar));
  painter.drawRoundedRect(picture.thumb, radius, radius);
}

void SurfaceView::paintCaret(QPainter& painter, const CaretPlace& place, int top) const {
  const double scale = pixelsPerTwip();
  const bool dark = qGray(colourOf(surface_.BackColor()).rgb()) < DarkBelow;
  // On whole pixels, so that it is sharp.
  const QRect caret(qRound(place.x * scale), qRound((top + place.top) * scale),
                    std::max(1, qRound(CaretWidth * scale)), qRound(place.height * scale));
  painter.fillRect(caret, dark ? QColor(Qt::white) : QColor(palette::Caret));
}

} // namespace talvora
