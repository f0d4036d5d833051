#include "exercises/ItemRecord.h"

#include "exercises/ItemHeadings.h"
#include "exercises/ItemMask.h"
#include "text/Bytes.h"

#include <gtest/gtest.h>

#include <array>

namespace talvora {
namespace {

TEST(ItemHeader, AThirdDigitMakesItThreeCharactersLong) {
  const ItemHeader two = readHeader("45 body");
  EXPECT_EQ(two.kind, ItemKind::FillIn);
  EXPECT_EQ(two.code, 5);
  EXPECT_EQ(two.length, 2U);
  const ItemHeader three = readHeader("412body");
  EXPECT_EQ(three.kind, ItemKind::FillIn);
  EXPECT_EQ(three.code, 12);
  EXPECT_EQ(three.length, 3U);
  EXPECT_EQ(readHeader("405x").code, 5);
}

TEST(ItemHeader, DamagedRecordsGiveNoKindAndStayInBounds) {
  EXPECT_EQ(readHeader("").kind, ItemKind::None);
  EXPECT_EQ(readHeader("").length, 0U);
  EXPECT_EQ(readHeader("9").kind, ItemKind::None);
  EXPECT_EQ(readHeader("1").length, 1U);
  EXPECT_EQ(readHeader("x12").code, 12);
}

TEST(ItemHeading, BanksAndOwnTestsWordTheSameCodeDifferently) {
  EXPECT_EQ(ChonDeMuc(2, ItemOrigin::Bank), "ÐiÈn vào: THE, A, AN (hoÄc không ðiÈn)"_bytes);
  EXPECT_EQ(ChonDeMuc(2, ItemOrigin::OwnTest), "ÐiÈn vào: THE, A, AN  (hoÄc không ðiÈn):"_bytes);
  EXPECT_EQ(ChonDeMuc(9, ItemOrigin::Bank),
            "THE SIMPLE PAST \\ THE PAST PERFECT \\ THE PAST PERFECT CONTINUOUS?"_bytes);
  EXPECT_EQ(ChonDeMuc(9, ItemOrigin::OwnTest), "THE PAST CONTINUOUS:"_bytes);
  EXPECT_EQ(ChonDeMuc(10, ItemOrigin::OwnTest), "Hãy chön câu ðúng ðÇ thay vào _________"_bytes);
  EXPECT_EQ(ChonDeMuc(31, ItemOrigin::OwnTest), "Câu hô khßi:"_bytes);
}

TEST(ItemHeading, CodesWithoutARowAreEmpty) {
  for (const int code : {0, 1, 4, 32, 99, -1}) {
    EXPECT_EQ(ChonDeMuc(code, ItemOrigin::Bank), "");
    EXPECT_EQ(ChonDeMuc(code, ItemOrigin::OwnTest), "");
  }
  for (int code = 14; code <= 31; ++code) {
    EXPECT_EQ(ChonDeMuc(code, ItemOrigin::Bank), "");
    EXPECT_NE(ChonDeMuc(code, ItemOrigin::OwnTest), "");
  }
}

TEST(HintList, IsCutAtCommasAndTakenOffTheText) {
  std::string text = "| go , be,have \rbody, with a comma";
  EXPECT_EQ(TachGoiY(text), (std::vector<std::string>{"go", "be", "have"}));
  EXPECT_EQ(text, "body, with a comma");
}

TEST(HintList, WithoutALineEndTakesTheWholeText) {
  std::string text = "|go";
  EXPECT_EQ(TachGoiY(text), std::vector<std::string>{"go"});
  EXPECT_EQ(text, "");
  std::string many = "|" + std::string(5000, ',') + "\rx";
  EXPECT_EQ(TachGoiY(many).size(), 1000U);
  EXPECT_EQ(many, "x");
}

TEST(ItemBody, EndsAheadOfAPlusAtALinesStart) {
  std::string text = "1 + 1\r+a\r+b\r";
  EXPECT_EQ(TachThan(text), "1 + 1\r");
  EXPECT_EQ(text, "+a\r+b\r");
  std::string plain = "no tail";
  EXPECT_EQ(TachThan(plain), "no tail");
  EXPECT_EQ(plain, "");
}

TEST(Options, AreTheLinesBehindAPlus) {
  const std::string tail = "+one\r+two\r+three\r+four\rc\r";
  EXPECT_EQ(TachPhuongAn(tail), (std::vector<std::string>{"one\r", "two\r", "three\r", "four\r"}));
  EXPECT_EQ(TachPhuongAn("x+one\r").front(), "one\r");
  EXPECT_EQ(TachPhuongAn("").size(), 4U);
}

TEST(Options, TheKeyLetterMayBeSmallOrCapital) {
  EXPECT_EQ(keyOf("+a\rc\r"), 3);
  EXPECT_EQ(keyOf("+a\rC\r"), 3);
  EXPECT_EQ(keyOf("A\r"), 1);
  EXPECT_EQ(keyOf(""), 0);
  EXPECT_EQ(keyOf("A"), 0);
}

TEST(Mask, ABlankRunsFromItsStarThroughItsRoom) {
  std::string mask = "She *went___ home";
  TaoMatNa(mask);
  EXPECT_EQ(mask, "@@@@*went___@@@@@");
  std::string two = "*a_ *b\\c__.";
  TaoMatNa(two);
  EXPECT_EQ(two, "*a_@*b\\c__@");
}

TEST(Mask, ABlankWithoutRoomRunsToTheEnd) {
  std::string mask = "a *open";
  TaoMatNa(mask);
  EXPECT_EQ(mask, "@@*open");
  EXPECT_EQ(hideAnswers("a *open"), "a _____");
}

TEST(Mask, AnswersAreHiddenUpToTheirRoom) {
  EXPECT_EQ(hideAnswers("She *went___ home"), "She ________ home");
  EXPECT_EQ(hideAnswers("no blank_"), "no blank_");
}

TEST(Mask, AStretchEndsAheadOfPlainText) {
  EXPECT_EQ(stretchEnd("@@*ab@", 3), 5);
  EXPECT_EQ(stretchEnd("@@*ab", 3), 5);
  EXPECT_EQ(stretchEnd("", 1), 0);
  EXPECT_EQ(stretchEnd("ab", 100), 2);
}

TEST(Answers, AreCutAtTheirMarksWithoutEachSectionsFirstLine) {
  const AnswerSections answer = TachGiai("General &text\r^first line\rone\rmore^skipped\rtwo^^x");
  EXPECT_EQ(answer.general, "General text");
  EXPECT_EQ(answer.sections, (std::vector<std::string>{"\rone\rmore", "\rtwo", "", ""}));
}

TEST(Answers, WithoutAMarkAreAllGeneral) {
  EXPECT_EQ(TachGiai("  only this \r").general, "only this ");
  EXPECT_TRUE(TachGiai("x").sections.empty());
  EXPECT_EQ(TachGiai("").general, "");
}

TEST(Answers, MoreThanAThousandSectionsAreLeftOut) {
  EXPECT_EQ(TachGiai(std::string(5000, '^')).sections.size(), 1000U);
}

TEST(References, AQuestionMarkAtALinesStartIsOne) {
  EXPECT_EQ(markReferences("why? \r?12\r", ItemKind::FillIn), "why? \r`12\r");
  EXPECT_EQ(markReferences("?1\r", ItemKind::FillIn), "?1\r") << "no line ends ahead of it";
  EXPECT_EQ(markReferences("a\r?rest", ItemKind::Ordering), "a\r");
}

class Titles : public testing::Test {
 protected:
  std::array<std::string, 4> titles = {"", "One", "Two", "Three"};
};

TEST_F(Titles, StandInPlaceOfNumbersWithOneAnnouncement) {
  EXPECT_EQ(ThayTenBai("a\r`2\r`3\rb", titles),
            std::string("a\r") + std::string("NhÍp chuÖt ðÇ xem:\r"_bytes) + "`Two\r`Three\rb");
}

TEST_F(Titles, AReferenceWithoutANumberKeepsItsTextAndDoublesItsLineEnd) {
  EXPECT_EQ(ThayTenBai("`none\rb", titles), "none\r\rb");
}

TEST_F(Titles, ANumberOutsideTheListIsNoReference) {
  EXPECT_EQ(ThayTenBai("`4\rb", titles), "4\r\rb");
  EXPECT_EQ(ThayTenBai("`99999999999999\rb", titles), "99999999999999\r\rb");
}

TEST_F(Titles, AReferenceAtTheVeryEndHasNoLineEnd) {
  EXPECT_TRUE(ThayTenBai("`1", titles).ends_with("`One"));
  EXPECT_EQ(ThayTenBai("`", titles), "");
}

} // namespace
} // namespace talvora
