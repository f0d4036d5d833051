#include "lessons/LessonMarkup.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

constexpr Colour Body = 0x750000;
constexpr Colour Red = 255;
constexpr Colour Blue = 0xFF0000;

using Pieces = std::vector<ColouredPiece>;

TEST(LessonMarkup, ShowsPlainTextInTheBodyColour) {
  EXPECT_EQ(layOutLesson("_Plain text"), (Pieces{{"_Plain text", Body}}));
  EXPECT_EQ(layOutLesson(""), Pieces{});
}

TEST(LessonMarkup, AMarkedWordIsRedAndTheCommaBehindItIsNot) {
  EXPECT_EQ(layOutLesson("a `red, b"), (Pieces{{"a ", Body}, {"red", Red}, {", b", Body}}));
  for (const char end : {' ', '.', ':', '\r'}) {
    EXPECT_EQ(layOutLesson(std::string("`x") + end + "y"),
              (Pieces{{"x", Red}, {std::string(1, end) + "y", Body}}));
  }
}

TEST(LessonMarkup, ATildeHoldsBlueThroughAColonToTheLinesEnd) {
  EXPECT_EQ(layOutLesson("a ~b: c, d.\re"),
            (Pieces{{"a ", Body}, {"b: c, d.", Blue}, {"\re", Body}}));
}

TEST(LessonMarkup, AnAmpersandFirstOnALineGoesAndItsLineIsBlue) {
  EXPECT_EQ(layOutLesson("_T\r&She: goes.\rx"),
            (Pieces{{"_T\r", Body}, {"She: goes.", Blue}, {"\rx", Body}}));
}

TEST(LessonMarkup, AnAmpersandInsideALineStays) {
  EXPECT_EQ(layOutLesson("you & me"), (Pieces{{"you & me", Body}}));
  EXPECT_EQ(layOutLesson("&first"), (Pieces{{"&first", Body}})) << "no line ends ahead of it";
}

TEST(LessonMarkup, ARedWordInABlueLineGivesWayToBlueAgain) {
  EXPECT_EQ(layOutLesson("\r&a `b c"),
            (Pieces{{"\r", Body}, {"a ", Blue}, {"b", Red}, {" c", Blue}}));
}

TEST(LessonMarkup, SuperfluousBlanksAreDropped) {
  EXPECT_EQ(layOutLesson("a  b ( c ) d"), (Pieces{{"a b (c) d", Body}}));
  EXPECT_EQ(layOutLesson("a )"), (Pieces{{"a)", Body}}));
  EXPECT_EQ(layOutLesson("a ~ b"), (Pieces{{"a ", Body}, {" b", Blue}}))
      << "behind a mark a blank stands";
}

TEST(LessonMarkup, MarksWithoutTextShowNothing) {
  EXPECT_EQ(layOutLesson("`~@`"), Pieces{});
}

} // namespace
} // namespace talvora
