// Large letters as pictures. Qt keeps pictures of letters up to 64 pixels only and fills the
// outline of anything larger each time it is painted, which a screen of 3840x2160 does on every
// page.
#pragma once

#include <QCache>
#include <QColor>
#include <QGlyphRun>
#include <QImage>
#include <QPoint>
#include <QRawFont>

#include <cstdint>
#include <vector>

class QPainter;

namespace talvora {

/// Keeps how much of each pixel a letter covers, whatever its colour, for the letters that were
/// painted last.
class LetterAtlas {
 public:
  /// Where letters may begin within a pixel, from left to right; upwards they stand on whole
  /// pixels.
  static constexpr int Places = 4;

  /// Whether letters of a size, in the painter's units, are painted from here: those that are large
  /// on the screen, and neither turned nor stretched.
  [[nodiscard]] static bool serves(const QPainter& painter, double size);
  /// Paints a run as QPainter::drawGlyphRun does, from the painter's origin, without its underline.
  /// Letters that this does not serve are left to Qt.
  void paint(QPainter& painter, const QGlyphRun& run, const QColor& colour);
  /// Makes the pictures of a run's letters at all their places; `scale` is pixels per pixel of the
  /// face. Does nothing when Qt has pictures of that size itself.
  void warm(const QGlyphRun& run, double scale);

  /// What the pictures take, in bytes; never more than `most()`.
  [[nodiscard]] qsizetype size() const { return letters_.totalCost(); }
  [[nodiscard]] qsizetype most() const { return letters_.maxCost(); }
  /// How often a picture had to be made.
  [[nodiscard]] std::uint64_t made() const noexcept { return made_; }

 private:
  struct Key {
    int face = 0; ///< index in `faces_`
    quint32 glyph = 0;
    int place = 0; ///< from 0, below `Places`
    int scale = 0; ///< in parts of `ScaleParts`

    friend bool operator==(const Key&, const Key&) = default;
    friend size_t qHash(const Key& key, size_t seed) {
      return qHashMulti(seed, key.face, key.glyph, key.place, key.scale);
    }
  };
  struct Letter {
    QPoint offset; ///< from the pixel of the letter's origin to the picture's corner
    QImage cover;  ///< 8 bits a pixel; null for a blank
  };

  [[nodiscard]] Key keyOf(const QRawFont& face, double scale);
  [[nodiscard]] int numberOf(const QRawFont& face);
  [[nodiscard]] Letter letterOf(const Key& key);
  [[nodiscard]] Letter make(const Key& key) const;

  std::vector<QRawFont> faces_;
  QCache<Key, Letter> letters_{qsizetype{24} * 1024 * 1024};
  std::uint64_t made_ = 0;
};

} // namespace talvora
