// The fixed text measures and the line layout by them.
#include "platform/scripted/FixedLayout.h"
#include "platform/scripted/FixedMetrics.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace talvora {
namespace {

constexpr int CharWidth = 200; // of the 20-point font
constexpr int LineHeight = 600;
constexpr int Margin = 2 * CharWidth;

/// A paragraph in one 20-point style, on a surface that has room for so many characters.
class OneStyle {
 public:
  OneStyle(std::string text, int charsInLine, ParagraphStyle paragraph = {})
      : text_(std::move(text)), runs_{{{0, &style_}}} {
    style_.font.size = 20;
    view.text = text_;
    view.runs = runs_;
    view.style = paragraph;
    view.defaultFont = style_.font;
    view.width = charsInLine * CharWidth + 2 * Margin;
  }
  OneStyle(const OneStyle&) = delete;
  OneStyle& operator=(const OneStyle&) = delete;

  [[nodiscard]] std::vector<int> starts() const {
    std::vector<int> all;
    for (const LineShape& line : FixedLayout().layOut(view).lines)
      all.push_back(line.from);
    return all;
  }

  ParagraphView view;

 private:
  std::string text_;
  CharStyle style_;
  std::array<StyleRun, 1> runs_;
};

using Starts = std::vector<int>;

TEST(FixedMetrics, ACharacterIsTenAndALineThirtyTwipsForEachPoint) {
  const FixedMetrics metrics;
  EXPECT_EQ(metrics.TextWidth("abc", {"x1", 20, false}), 600);
  EXPECT_EQ(metrics.TextHeight("abc", {"x1", 20, false}), 600);
  EXPECT_EQ(metrics.TextWidth("", {"x1", 20, false}), 0);
}

TEST(FixedMetrics, BoldChangesNothing) {
  const FixedMetrics metrics;
  EXPECT_EQ(metrics.TextWidth("abc", {"x1", 13, true}),
            metrics.TextWidth("abc", {"x1", 13, false}));
}

TEST(FixedMetrics, MeasuresAreRoundedToTheNearestTwip) {
  const FixedMetrics metrics;
  EXPECT_EQ(metrics.TextWidth("a", {"x1", 8.26, false}), 83);
  EXPECT_EQ(metrics.TextHeight("a", {"x1", 17.54, false}), 526);
}

TEST(FixedLayout, AnEmptyParagraphIsOneLine) {
  const OneStyle empty("", 10);
  const ParagraphShape shape = FixedLayout().layOut(empty.view);
  ASSERT_EQ(shape.lines.size(), 1U);
  EXPECT_EQ(shape.height, LineHeight);
}

TEST(FixedLayout, ATextThatJustFitsIsOneLine) {
  EXPECT_EQ(OneStyle("abcde fghi", 10).starts(), Starts({0}));
  EXPECT_EQ(OneStyle("abcde fghij", 10).starts(), Starts({0, 6}));
}

TEST(FixedLayout, BlanksAtABreakHangOverTheEdge) {
  EXPECT_EQ(OneStyle("abcde     fgh", 5).starts(), Starts({0, 10}));
  EXPECT_EQ(OneStyle("abcde     ", 5).starts(), Starts({0}));
}

TEST(FixedLayout, AWordLongerThanALineIsBroken) {
  EXPECT_EQ(OneStyle("abcdefghijkl", 5).starts(), Starts({0, 5, 10}));
  EXPECT_EQ(OneStyle("ab cdefghijkl", 5).starts(), Starts({0, 3, 8}));
}

TEST(FixedLayout, ASurfaceWithoutRoomHasOneCharacterALine) {
  EXPECT_EQ(OneStyle("abc", -3).starts(), Starts({0, 1, 2}));
}

TEST(FixedLayout, ATabIsFourCharactersWide) {
  EXPECT_EQ(OneStyle("a\tbcdef", 10).starts(), Starts({0}));
  const OneStyle tab("a\tb", 10);
  EXPECT_EQ(FixedLayout().placeOf(tab.view, 2).x, Margin + 5 * CharWidth);
}

TEST(FixedLayout, TheIndentNarrowsAndShiftsTheLine) {
  ParagraphStyle indented;
  indented.indent = 2 * CharWidth;
  const OneStyle text("abc defg", 8, indented);
  EXPECT_EQ(text.starts(), Starts({0, 4}));
  EXPECT_EQ(FixedLayout().placeOf(text.view, 0).x, Margin + 2 * CharWidth);
}

TEST(FixedLayout, AlignmentShiftsTheLineWithoutItsHangingBlanks) {
  ParagraphStyle style;
  style.align = Alignment::Right;
  const OneStyle right("abc  ", 10, style);
  EXPECT_EQ(FixedLayout().placeOf(right.view, 0).x, Margin + 7 * CharWidth);
  style.align = Alignment::Centred;
  const OneStyle centred("abcd", 10, style);
  EXPECT_EQ(FixedLayout().placeOf(centred.view, 0).x, Margin + 3 * CharWidth);
}

TEST(FixedLayout, ALineIsAsHighAsItsLargestFont) {
  CharStyle small;
  small.font.size = 10;
  CharStyle large;
  large.font.size = 30;
  const std::array<StyleRun, 2> runs = {{{0, &small}, {4, &large}}};
  ParagraphView view;
  view.text = "abc def";
  view.runs = runs;
  view.defaultFont = small.font;
  view.width = 4 * 100 + 1000;
  const ParagraphShape shape = FixedLayout().layOut(view);
  ASSERT_EQ(shape.lines.size(), 2U);
  EXPECT_EQ(shape.lines[0].height, 300);
  EXPECT_EQ(shape.lines[1].top, 300);
  EXPECT_EQ(shape.lines[1].height, 900);
  EXPECT_EQ(shape.height, 1200);
}

TEST(FixedLayout, AnOffsetOutsideCountsAsTheNearestInside) {
  const OneStyle text("abc", 10);
  EXPECT_EQ(FixedLayout().placeOf(text.view, -5).x, Margin);
  EXPECT_EQ(FixedLayout().placeOf(text.view, 99).x, Margin + 3 * CharWidth);
}

TEST(FixedLayout, APointOutsideGivesTheNearestLineAndItsNearestEnd) {
  const OneStyle text("abcde fgh", 6);
  const FixedLayout layout;
  EXPECT_EQ(layout.offsetAt(text.view, -1000, -1000), 0);
  // The caret behind the blank stands on the second line already.
  EXPECT_EQ(layout.offsetAt(text.view, 99999, 0), 5);
  EXPECT_EQ(layout.offsetAt(text.view, -1000, 99999), 6);
  EXPECT_EQ(layout.offsetAt(text.view, 99999, 99999), 9);
}

TEST(FixedLayout, AnyTextIsBrokenSoThatEveryLineFits) {
  std::mt19937 random(7);
  for (int round = 0; round < 500; ++round) {
    std::string text;
    const auto size = random() % 60;
    for (unsigned each = 0; each < size; ++each)
      text += "abc d"[random() % 5];
    const int room = 1 + static_cast<int>(random() % 12);
    const OneStyle paragraph(text, room);
    const Starts starts = paragraph.starts();
    ASSERT_EQ(starts.front(), 0);
    for (std::size_t line = 0; line < starts.size(); ++line) {
      const int to = line + 1 < starts.size() ? starts[line + 1] : static_cast<int>(text.size());
      std::string shown = text.substr(static_cast<std::size_t>(starts[line]),
                                      static_cast<std::size_t>(to - starts[line]));
      shown.erase(shown.find_last_not_of(' ') + 1);
      ASSERT_LE(static_cast<int>(shown.size()), room) << '"' << text << "\" in " << room;
      if (line > 0) {
        ASSERT_GT(starts[line], starts[line - 1]);
      }
    }
  }
}

TEST(FixedLayout, TheMiddleOfACharacterBelongsToTheCaretAheadOfIt) {
  std::mt19937 random(11);
  for (int round = 0; round < 200; ++round) {
    std::string text;
    const auto size = 1 + random() % 40;
    for (unsigned each = 0; each < size; ++each)
      text += "abc d\t"[random() % 6];
    ParagraphStyle style;
    style.align = static_cast<Alignment>(random() % 3);
    const OneStyle paragraph(text, 4 + static_cast<int>(random() % 12), style);
    const FixedLayout layout;
    for (int offset = 0; offset < static_cast<int>(size); ++offset) {
      const CaretPlace place = layout.placeOf(paragraph.view, offset);
      const bool tab = text[static_cast<std::size_t>(offset)] == '\t';
      const int middle = place.x + (tab ? 4 : 1) * CharWidth / 2;
      ASSERT_EQ(layout.offsetAt(paragraph.view, middle, place.top + place.height / 2), offset)
          << '"' << text << '"';
    }
  }
}

} // namespace
} // namespace talvora
