// What a page looks like beyond its text: faces, sentence marks, the scroll bar.
#include "desktop/Fonts.h"
#include "desktop/QtLineLayout.h"
#include "fronts/BarMouse.h"
#include "surface/Form.h"
#include "text/GlyphMap.h"

#include "NoScreen.h"

#include <QFontMetricsF>
#include <gtest/gtest.h>

#include <random>
#include <string>

namespace talvora {
namespace {

class Page : public ::testing::Test {
 protected:
  Page() {
    surface.Visible(true);
    surface.Width(9000);
    surface.Height(6000);
    surface.FontName("x1");
    surface.FontSize(20);
  }

  void writeLines(int count) {
    std::string text;
    for (int line = 1; line <= count; ++line)
      text += "line " + std::to_string(line) + "\r";
    surface.Text(text);
    surface.SelStart(0);
  }

  NoScreen screen;
  QtTextMetrics metrics;
  QtLineLayout layout;
  Form form{screen, metrics};
  Surface surface{"R2", form, layout};
  ScrollBar bar{surface, layout};
};

TEST_F(Page, AShortTextHasNoBar) {
  writeLines(3);
  EXPECT_FALSE(bar.extent().scrolls);
}

TEST_F(Page, TheThumbGoesFromEndToEnd) {
  for (const int lines : {40, 5000}) {
    writeLines(lines);
    ASSERT_TRUE(bar.extent().scrolls);
    EXPECT_DOUBLE_EQ(bar.thumb(bar.extent()).top, 0);
    bar.bringThumbTo(surface.Height(), bar.extent());
    const ScrollBar::Thumb atEnd = bar.thumb(bar.extent());
    EXPECT_NEAR(atEnd.top + atEnd.length, surface.Height(), 60) << lines;
    const int last = surface.pointOf(surface.TextLength()).y;
    EXPECT_GT(last, surface.Height() * 3 / 4);
    EXPECT_LT(last, surface.Height());
    bar.bringThumbTo(-10, bar.extent());
    EXPECT_EQ(surface.scroll(), ScrollPlace{});
  }
}

TEST_F(Page, AThumbThatIsPutDownInTheMiddleStaysThere) {
  for (const int lines : {40, 5000}) {
    writeLines(lines);
    const double middle = (surface.Height() - bar.thumb(bar.extent()).length) / 2;
    bar.bringThumbTo(middle, bar.extent());
    EXPECT_NEAR(bar.thumb(bar.extent()).top, middle, 60) << lines;
  }
}

TEST_F(Page, ThePageKeysOfTheTroughMoveByNearlyAPage) {
  writeLines(5000);
  bar.page(1);
  EXPECT_GT(surface.scroll().paragraph, 5);
  bar.page(-1);
  EXPECT_EQ(surface.scroll(), ScrollPlace{});
}

TEST_F(Page, AThumbIsDraggedAndATroughGoesOnToThePointer) {
  form.add(surface);
  BarMouse mouse{form, layout};
  writeLines(40);
  const int strip = surface.Width() - 1;
  EXPECT_FALSE(mouse.press({strip - ScrollBar::StripWidth, 10}));
  ASSERT_TRUE(mouse.press({strip, 10}));
  EXPECT_FALSE(mouse.holdsTrough());
  mouse.drag({strip, 1010});
  EXPECT_NEAR(bar.thumb(bar.extent()).top, 1000, 60);
  mouse.goOnByPage();
  EXPECT_NEAR(bar.thumb(bar.extent()).top, 1000, 60) << "a thumb that is held does not page";
  mouse.release();
  ASSERT_TRUE(mouse.press({strip, 10}));
  EXPECT_TRUE(mouse.holdsTrough());
  mouse.goOnByPage();
  const double top = bar.thumb(bar.extent()).top;
  EXPECT_LE(top, 10);
  mouse.goOnByPage();
  EXPECT_DOUBLE_EQ(bar.thumb(bar.extent()).top, top) << "up to the pointer and no further";
  mouse.release();
  writeLines(3);
  EXPECT_FALSE(mouse.press({strip, 10})) << "all of the text is in view";
}

TEST_F(Page, ASentenceMarkBesideABlankTakesNoRoom) {
  surface.Text("One.\xA0 Two");
  const double marked = layout.shaped(surface.paragraph(0, 9000).view()).placeOf(7).x;
  surface.Text("One. Two");
  EXPECT_NEAR(marked, layout.shaped(surface.paragraph(0, 9000).view()).placeOf(6).x, 2);
}

TEST_F(Page, ASentenceMarkBetweenLettersIsTheirGap) {
  surface.Text("One.\xA0Two");
  const auto& marked = layout.shaped(surface.paragraph(0, 9000).view());
  EXPECT_GT(marked.placeOf(5).x, marked.placeOf(4).x + 50);
}

TEST_F(Page, MarksChangeNoLinesHeight) {
  surface.Text("One.\xA0 Two");
  const int marked = layout.shaped(surface.paragraph(0, 9000).view()).shape().height;
  surface.Text("One. Two");
  EXPECT_EQ(layout.shaped(surface.paragraph(0, 9000).view()).shape().height, marked);
}

TEST(Faces, HaveEveryVietnameseLetter) {
  for (const bool bold : {false, true}) {
    for (const bool italic : {false, true}) {
      for (const double size : {20.0, 23.0}) {
        CharStyle style;
        style.font = {"x1", size, bold};
        style.italic = italic;
        const QFontMetricsF face(fontFor(style));
        for (int code = 0x20; code < 0x100; ++code) {
          const QChar letter(x1Letter(static_cast<char>(code)));
          if (letter.isLetter()) {
            EXPECT_TRUE(face.inFont(letter)) << code << bold << italic;
          }
        }
      }
    }
  }
}

TEST(Faces, TextIsSemiboldAndATitleBold) {
  EXPECT_EQ(fontFor(FontSpec{"x1", 20, true}).weight(), QFont::DemiBold);
  EXPECT_EQ(fontFor(FontSpec{"x1", 23, true}).weight(), QFont::Bold);
  EXPECT_EQ(fontFor(FontSpec{"x1", 19, false}).weight(), QFont::Normal);
}

TEST_F(Page, AParagraphThatIsToldToFitTakesOneLine) {
  std::mt19937 random(3);
  LetterWidths widths;
  int fitting = 0;
  for (int round = 0; round < 400; ++round) {
    std::string text;
    for (auto letters = random() % 60; letters > 0; --letters)
      text += letters % 9 == 0 ? '\t' : static_cast<char>(' ' + random() % 224);
    surface.Text(text);
    surface.format({0, 20}, {.bold = round % 3 == 0, .italic = round % 4 == 0});
    const ParagraphRef paragraph = surface.paragraph(0);
    if (!widths.fitsOneLine(paragraph.view())) continue;
    ++fitting;
    EXPECT_EQ(layout.layOut(paragraph.view()).lines.size(), 1U) << "round " << round;
  }
  EXPECT_GT(fitting, 50);
}

TEST_F(Page, AParagraphWrittenAnewIsNotSetAgain) {
  writeLines(3);
  const auto serial = layout.shaped(surface.paragraph(1).view()).serial();
  surface.Text("");
  writeLines(3);
  EXPECT_EQ(layout.shaped(surface.paragraph(1).view()).serial(), serial);
  surface.format({8, 9}, {.color = 255});
  EXPECT_NE(layout.shaped(surface.paragraph(1).view()).serial(), serial);
}

} // namespace
} // namespace talvora
