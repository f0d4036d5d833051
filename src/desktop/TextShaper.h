// Text set by Qt, in twips: metrics, and the laid-out paragraphs that a view paints. Layout and
// view look at the same paragraphs, so what is clicked is what is seen.
#pragma once

#include "desktop/LetterAtlas.h"
#include "platform/LineLayout.h"
#include "platform/TextMetrics.h"

#include <QColor>
#include <QRectF>
#include <QString>
#include <QTextLayout>

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

class QPainter;

namespace talvora {

/// One paragraph broken into lines. Offsets are bytes of the paragraph; places are twips from the
/// surface's left edge and the paragraph's top edge.
class ShapedParagraph {
 public:
  ShapedParagraph(const ParagraphView& paragraph, std::uint64_t serial);

  /// Distance of the tab stops where this is the default font, in twips.
  [[nodiscard]] static double tabDistance(const FontSpec& font);
  /// What a line of the paragraph may take, in twips.
  [[nodiscard]] static double roomOf(const ParagraphView& paragraph);

  /// Differs between any two paragraphs that were ever shaped.
  [[nodiscard]] std::uint64_t serial() const noexcept { return serial_; }
  [[nodiscard]] const ParagraphShape& shape() const noexcept { return shape_; }
  [[nodiscard]] CaretPlace placeOf(int offset) const;
  [[nodiscard]] int offsetAt(int x, int y) const;
  /// What the letters of its widest line take, in twips.
  [[nodiscard]] double width() const;
  /// What the characters between two offsets cover, a rectangle a line.
  [[nodiscard]] std::vector<QRectF> rectsOf(int from, int to) const;
  /// The stretches in one colour, each from its first offset to behind its last that is no blank.
  [[nodiscard]] std::vector<std::pair<int, int>> rangesIn(const QColor& colour) const;
  /// Paints the lines that reach into `clip`, or all when that is empty; the painter's origin is
  /// the paragraph's. A colour that could not be read on `back` is shown in a tone that can.
  void paint(QPainter& painter, const QRectF& clip, const QColor& back, LetterAtlas& letters) const;

 private:
  [[nodiscard]] std::size_t lineOf(int offset) const;
  void setText(const ParagraphView& paragraph);
  void breakLines(const ParagraphView& paragraph);
  void placeLines(const ParagraphView& paragraph);
  /// The height of a line, with room for the marks of its largest letters.
  [[nodiscard]] int pitchOf(const QTextLine& line) const;
  /// Sends each tab that is narrower than `least` on to its next stop; false when there is none.
  bool widenTabs(std::string_view text, double least);
  void paintBullet(QPainter& painter, const QColor& back) const;
  void paintByQt(QPainter& painter, const QRectF& clip, const QColor& back) const;
  void paintLarge(QPainter& painter, const QRectF& clip, const QColor& back,
                  LetterAtlas& letters) const;
  /// The part of a line that is in one format.
  void paintRange(QPainter& painter, const QTextLine& line, const QTextLayout::FormatRange& range,
                  const QColor& back, LetterAtlas& letters) const;

  std::uint64_t serial_;
  QTextLayout layout_;
  ParagraphShape shape_;
  int length_;
  int largest_ = 0;    ///< size of the largest letters, in twips
  double bulletX_ = 0; ///< middle of the bullet
  bool bullet_;
};

class QtTextMetrics final : public TextMetrics {
 public:
  [[nodiscard]] int TextWidth(std::string_view text, const FontSpec& font) const override;
  [[nodiscard]] int TextHeight(std::string_view text, const FontSpec& font) const override;
};

} // namespace talvora
