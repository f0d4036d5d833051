// Large letters from pictures look as Qt paints them by their outlines.
#include "desktop/LetterAtlas.h"
#include "desktop/FontWarmer.h"
#include "desktop/Fonts.h"
#include "desktop/TextShaper.h"

#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QTextLayout>
#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace talvora {
namespace {

constexpr double LargeScale = 0.1875; ///< pixels to a twip of a screen of 3840x2160
constexpr double UsualScale = 1.0 / 15;
constexpr QSize Size(1500, 240);

QList<QGlyphRun> runsOf(const QString& text, const CharStyle& style) {
  QTextLayout layout(text, fontFor(style));
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  return layout.glyphRuns();
}

CharStyle styleOf(double size) {
  CharStyle style;
  style.font.name = "x1";
  style.font.size = size;
  return style;
}

template <class Paint>
QImage pictureOf(double scale, const Paint& paint) {
  QImage picture(Size, QImage::Format_RGB32);
  picture.fill(QColor(0xFF, 0xFD, 0xF0));
  QPainter painter(&picture);
  painter.scale(scale, scale);
  painter.translate(137, 93);
  paint(painter);
  return picture;
}

/// The mean difference of the pixels that are not paper in both, from 0 to 255.
double difference(const QImage& one, const QImage& other) {
  const QRgb paper = one.pixel(0, 0);
  double sum = 0;
  int inked = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      if (one.pixel(x, y) == paper && other.pixel(x, y) == paper) continue;
      ++inked;
      sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
    }
  }
  return inked == 0 ? 255 : sum / inked;
}

class LargeLetters : public ::testing::Test {
 protected:
  QImage byAtlas(const QList<QGlyphRun>& runs, double scale, const QColor& colour) {
    return pictureOf(scale, [&](QPainter& painter) {
      for (const QGlyphRun& run : runs)
        atlas.paint(painter, run, colour);
    });
  }
  static QImage byQt(const QList<QGlyphRun>& runs, double scale, const QColor& colour) {
    return pictureOf(scale, [&](QPainter& painter) {
      painter.setPen(colour);
      for (const QGlyphRun& run : runs)
        painter.drawGlyphRun({0, 0}, run);
    });
  }

  LetterAtlas atlas;
};

const QString Sentence = QStringLiteral("Quỳnh likes the river, affi \u1EA8.");

TEST_F(LargeLetters, LookAsTheirOutlines) {
  const auto runs = runsOf(Sentence, styleOf(20));
  for (const QColor colour : {QColor(Qt::black), QColor(0xB0, 0x10, 0x20)}) {
    const QImage outlined = byQt(runs, LargeScale, colour);
    EXPECT_LT(difference(outlined, byAtlas(runs, LargeScale, colour)), 12);
    // Another tone, or letters a pixel beside their places, differ by more than that.
    EXPECT_GT(difference(outlined, byAtlas(runs, LargeScale, QColor(0x60, 0x60, 0x60))), 20);
    EXPECT_GT(difference(outlined, outlined.copy(1, 0, Size.width(), Size.height())), 12);
  }
  EXPECT_GT(atlas.made(), 0U);
}

TEST_F(LargeLetters, AreMadeOnce) {
  const auto runs = runsOf(Sentence, styleOf(20));
  const QImage first = byAtlas(runs, LargeScale, Qt::black);
  const auto made = atlas.made();
  EXPECT_EQ(byAtlas(runs, LargeScale, Qt::black), first);
  static_cast<void>(byAtlas(runs, LargeScale, Qt::red));
  EXPECT_EQ(atlas.made(), made);
}

TEST_F(LargeLetters, SmallOnesAreLeftToQt) {
  const auto runs = runsOf(Sentence, styleOf(20));
  EXPECT_EQ(byAtlas(runs, UsualScale, Qt::black), byQt(runs, UsualScale, Qt::black));
  EXPECT_EQ(atlas.made(), 0U);
}

TEST_F(LargeLetters, StretchedOnesAreLeftToQt) {
  QImage picture(Size, QImage::Format_RGB32);
  QPainter painter(&picture);
  painter.scale(LargeScale * 0.8, LargeScale);
  for (const QGlyphRun& run : runsOf(Sentence, styleOf(20)))
    atlas.paint(painter, run, Qt::black);
  EXPECT_EQ(atlas.made(), 0U);
}

TEST_F(LargeLetters, StandWhereTheyShouldOnAScreenOfHalfPixels) {
  const auto runs = runsOf(Sentence, styleOf(20));
  const auto onDense = [&](const auto& paint) {
    QImage picture(Size, QImage::Format_RGB32);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(LargeScale / 2, LargeScale / 2);
    painter.setPen(Qt::black);
    for (const QGlyphRun& run : runs)
      paint(painter, run);
    return picture;
  };
  const QImage outlined = onDense([](QPainter& painter, const QGlyphRun& run) {
    painter.drawGlyphRun({0, 0}, run);
  });
  const QImage pictured = onDense(
      [this](QPainter& painter, const QGlyphRun& run) { atlas.paint(painter, run, Qt::black); });
  EXPECT_GT(atlas.made(), 0U);
  const double asIs = difference(outlined, pictured);
  for (const QPoint beside : {QPoint(1, 0), QPoint(0, 1)})
    EXPECT_LT(asIs, difference(outlined.copy(QRect(beside, Size)), pictured));
  EXPECT_LT(asIs, 16);
}

TEST_F(LargeLetters, NeverTakeMoreThanTheirRoom) {
  for (int size = 20; size < 60; ++size)
    static_cast<void>(byAtlas(runsOf(Sentence, styleOf(size)), LargeScale * 2, Qt::black));
  EXPECT_GT(atlas.size(), 0);
  EXPECT_LE(atlas.size(), atlas.most());
  EXPECT_LE(atlas.most(), 24 * 1024 * 1024);
}

TEST_F(LargeLetters, AreReadyOnceTheyAreWarmed) {
  FontWarmer warmer(atlas);
  warmer.warm({styleOf(20)}, LargeScale);
  warmer.finish();
  const auto made = atlas.made();
  EXPECT_GT(made, 0U);
  const auto runs = runsOf(QStringLiteral("The boy sat by the river."), styleOf(20));
  static_cast<void>(byAtlas(runs, LargeScale, Qt::blue));
  EXPECT_EQ(atlas.made(), made);
}

TEST_F(LargeLetters, OfAParagraphStandWhereItsSmallOnesWould) {
  CharStyle underlined = styleOf(20);
  underlined.underline = true;
  underlined.color = 0xFF0000;
  const CharStyle plain = styleOf(20);
  const std::vector<StyleRun> styles{{0, &plain}, {6, &underlined}, {11, &plain}};
  const ShapedParagraph paragraph({"first\tsecond third", styles, {}, plain.font, 7000}, 1);
  const auto painted = [&](double scale) {
    return pictureOf(scale,
                     [&](QPainter& painter) { paragraph.paint(painter, {}, Qt::white, atlas); });
  };
  // The large one as small as the other has its ink in the same places.
  const QImage large = painted(LargeScale);
  EXPECT_GT(atlas.made(), 0U);
  const QImage stretched = pictureOf(LargeScale, [&](QPainter& painter) {
    painter.scale(1, 1.001); // by its outlines
    paragraph.paint(painter, {}, Qt::white, atlas);
  });
  EXPECT_LT(difference(large, stretched), 16);
}

} // namespace
} // namespace talvora
