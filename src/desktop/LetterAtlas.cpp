#include "desktop/LetterAtlas.h"

#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>

namespace talvora {

namespace {

constexpr double LargestOfQt = 64; ///< pixels; up to there Qt keeps pictures itself
constexpr std::size_t MostFaces = 64;
constexpr double ScaleParts = 1 << 20;

bool isLarge(double size, double scale) {
  return size * scale >= LargestOfQt;
}

/// Whether letters only move and grow alike in both directions.
bool keepsShapes(const QTransform& transform) {
  return transform.type() <= QTransform::TxScale && transform.m11() > 0 &&
         qFuzzyCompare(transform.m11(), transform.m22());
}

/// A colour at each of the 256 shares of a pixel that a letter can cover.
using Tones = std::array<QRgb, 256>;

Tones tonesOf(const QColor& colour) {
  Tones tones{};
  for (int share = 0; share < 256; ++share) {
    const int alpha = (colour.alpha() * share + 127) / 255;
    tones[static_cast<std::size_t>(share)] =
        qPremultiply(qRgba(colour.red(), colour.green(), colour.blue(), alpha));
  }
  return tones;
}

/// A letter in a colour, in memory that lasts from letter to letter.
class Brush {
 public:
  explicit Brush(const QColor& colour) : tones_(tonesOf(colour)) {}

  [[nodiscard]] QImage apply(const QImage& cover) {
    const int width = cover.width();
    const int height = cover.height();
    pixels_.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    QRgb* to = pixels_.data();
    for (int row = 0; row < height; ++row) {
      const uchar* const from = cover.constScanLine(row);
      to = std::transform(from, from + width, to, [this](uchar share) { return tones_[share]; });
    }
    return {reinterpret_cast<const uchar*>(pixels_.data()), width, height,
            width * static_cast<qsizetype>(sizeof(QRgb)), QImage::Format_ARGB32_Premultiplied};
  }

 private:
  Tones tones_;
  std::vector<QRgb> pixels_;
};

} // namespace

bool LetterAtlas::serves(const QPainter& painter, double size) {
  const QTransform toDevice = painter.deviceTransform();
  return keepsShapes(toDevice) && isLarge(size, toDevice.m11());
}

void LetterAtlas::paint(QPainter& painter, const QGlyphRun& run, const QColor& colour) {
  if (!serves(painter, run.rawFont().pixelSize())) {
    painter.setPen(colour);
    painter.drawGlyphRun({0, 0}, run);
    return;
  }
  const QTransform toDevice = painter.deviceTransform();
  const QTransform before = painter.worldTransform();
  painter.setWorldTransform({});
  const QTransform fromDevice = painter.deviceTransform().inverted();
  const double ratio = painter.deviceTransform().m11();
  Key key = keyOf(run.rawFont(), toDevice.m11());
  Brush brush(colour);
  const QList<quint32> glyphs = run.glyphIndexes();
  const QList<QPointF> positions = run.positions();
  for (qsizetype each = 0; each < glyphs.size(); ++each) {
    const QPointF at = toDevice.map(positions[each]);
    const int quarter = static_cast<int>(std::lround(at.x() * Places));
    key.glyph = glyphs[each];
    key.place = quarter & (Places - 1);
    const Letter letter = letterOf(key);
    if (letter.cover.isNull()) continue;
    const QPoint origin((quarter - key.place) / Places, static_cast<int>(std::lround(at.y())));
    QImage picture = brush.apply(letter.cover);
    picture.setDevicePixelRatio(ratio);
    painter.drawImage(fromDevice.map(QPointF(origin + letter.offset)), picture);
  }
  painter.setWorldTransform(before);
}

void LetterAtlas::warm(const QGlyphRun& run, double scale) {
  if (!isLarge(run.rawFont().pixelSize(), scale)) return;
  Key key = keyOf(run.rawFont(), scale);
  for (const quint32 glyph : run.glyphIndexes()) {
    key.glyph = glyph;
    for (key.place = 0; key.place < Places; ++key.place)
      static_cast<void>(letterOf(key));
  }
}

LetterAtlas::Key LetterAtlas::keyOf(const QRawFont& face, double scale) {
  return {numberOf(face), 0, 0, static_cast<int>(std::lround(scale * ScaleParts))};
}

int LetterAtlas::numberOf(const QRawFont& face) {
  const auto found = std::find(faces_.begin(), faces_.end(), face);
  if (found != faces_.end()) return static_cast<int>(found - faces_.begin());
  if (faces_.size() == MostFaces) {
    faces_.clear();
    letters_.clear();
  }
  faces_.push_back(face);
  return static_cast<int>(faces_.size()) - 1;
}

LetterAtlas::Letter LetterAtlas::letterOf(const Key& key) {
  if (const Letter* const known = letters_.object(key)) return *known;
  ++made_;
  Letter letter = make(key);
  constexpr qsizetype Record = 128;        // bytes of a letter beside its pixels
  letters_.insert(key, new Letter(letter), // NOLINT: the cache owns it
                  Record + letter.cover.sizeInBytes());
  return letter;
}

LetterAtlas::Letter LetterAtlas::make(const Key& key) const {
  QPainterPath outline = faces_[static_cast<std::size_t>(key.face)].pathForGlyph(key.glyph);
  if (outline.isEmpty()) return {};
  outline.setFillRule(Qt::WindingFill);
  const double beside = static_cast<double>(key.place) / Places;
  const double scale = key.scale / ScaleParts;
  const QTransform toPlace(scale, 0, 0, scale, beside, 0);
  outline = toPlace.map(outline);
  const QRect box = outline.boundingRect().toAlignedRect();
  QImage cover(box.size(), QImage::Format_Alpha8);
  cover.fill(0);
  QPainter painter(&cover);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-box.topLeft());
  painter.fillPath(outline, Qt::black);
  return {box.topLeft(), cover};
}

} // namespace talvora
