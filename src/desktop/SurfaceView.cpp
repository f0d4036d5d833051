#include "desktop/SurfaceView.h"

#include "desktop/Palette.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr int PlateRadius = 90;      // twips
constexpr int CaretWidth = 20;       // twips
constexpr int ScrollMarkWidth = 60;  // twips
constexpr int ScrollMarkGap = 30;    // twips to the right edge
constexpr int LeastScrollMark = 360; // twips
constexpr int SelectionRadius = 40;  // twips
constexpr int SelectionBorder = 12;  // twips
// A text of so few paragraphs is measured exactly; of a longer one the paragraphs are counted.
constexpr int MostMeasured = 60;
constexpr int Beyond = 2; // pixels
constexpr int DarkBelow = 128;

} // namespace

SurfaceView::SurfaceView(Surface& surface, QtLineLayout& layout, const Form& form, QWidget* parent)
    : ControlView(surface, parent), surface_(surface), layout_(layout), form_(form),
      teller_(*this) {
  if (!isRounded()) setAttribute(Qt::WA_OpaquePaintEvent);
}

bool SurfaceView::isRounded() const {
  return surface_.Name().starts_with("Rnen") || surface_.Name() == "RDOS";
}

const ShapedParagraph& SurfaceView::shaped(int paragraph) const {
  return layout_.shaped(surface_.paragraph(paragraph), surface_.Font(), surface_.Width());
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
  Piece piece{shaped.serial(), top, shaped.shape().height};
  const int start = surface_.paragraphStart(paragraph);
  const int length = surface_.paragraphStart(paragraph + 1) - start;
  const int from = surface_.SelStart();
  const int to = from + surface_.SelLength();
  piece.selectedFrom = std::clamp(from - start, 0, length);
  piece.selectedTo = std::clamp(to - start, 0, length);
  const bool caretShows = surface_.SelLength() == 0 && surfaceHasFocus();
  if (caretShows && surface_.paragraphOf(from) == paragraph) piece.caret = from - start;
  return piece;
}

SurfaceView::Picture SurfaceView::picture() const {
  Picture result;
  result.back = surface_.BackColor();
  eachInView([&](int number, const ShapedParagraph& paragraph, int top) {
    result.pieces.push_back(pieceOf(number, paragraph, top));
  });
  result.scrollMark = scrollMark(result.pieces);
  return result;
}

QRect SurfaceView::scrollMark(const std::vector<Piece>& pieces) const {
  const ScrollPlace scroll = surface_.scroll();
  const int count = surface_.paragraphCount();
  const bool endInView = scroll.paragraph + static_cast<int>(pieces.size()) == count &&
                         !pieces.empty() &&
                         pieces.back().top + pieces.back().height <= surface_.Height();
  if (endInView && scroll == ScrollPlace{}) return {};

  double above = scroll.paragraph;
  double inView = static_cast<double>(pieces.size());
  double all = count;
  if (count <= MostMeasured) {
    above = scroll.offset;
    inView = surface_.Height();
    all = 0;
    for (int each = 0; each < count; ++each) {
      if (each == scroll.paragraph) above += all;
      all += shaped(each).shape().height;
    }
  }
  const double height = surface_.Height();
  const double length = std::clamp(inView / all, 0.0, 1.0) * height;
  const double shown = std::min(std::max<double>(length, LeastScrollMark), height);
  const double place = all > inView ? std::clamp(above / (all - inView), 0.0, 1.0) : 0;
  const double left = surface_.Width() - ScrollMarkGap - ScrollMarkWidth;
  const double scale = pixelsPerTwip();
  return QRectF(left * scale, place * (height - shown) * scale, ScrollMarkWidth * scale,
                shown * scale)
      .toAlignedRect();
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
    if (marked_->scrollMark != now.scrollMark) {
      update(marked_->scrollMark);
      update(now.scrollMark);
    }
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
  now.scrollMark = scrollMark(now.pieces);
  if (!now.scrollMark.isEmpty()) {
    const double radius = now.scrollMark.width() / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(palette::ScrollBar));
    painter.drawRoundedRect(now.scrollMark, radius, radius);
  }
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
  if (piece.selectedTo > piece.selectedFrom) {
    const bool dark = qGray(colourOf(surface_.BackColor()).rgb()) < DarkBelow;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgba(dark ? palette::DarkSelection : palette::SelectionEdge),
                        SelectionBorder));
    painter.setBrush(QColor::fromRgba(dark ? palette::DarkSelection : palette::Selection));
    for (const QRectF& rect : shaped.rectsOf(piece.selectedFrom, piece.selectedTo)) {
      painter.drawRoundedRect(rect, SelectionRadius, SelectionRadius);
    }
  }
  shaped.paint(painter, dirty.translated(0, -piece.top));
  painter.restore();
  if (piece.caret >= 0) paintCaret(painter, shaped.placeOf(piece.caret), piece.top);
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
