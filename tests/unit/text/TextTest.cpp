#include "text/Text.h"
#include "text/Bytes.h"
#include "text/Rounding.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

TEST(Bytes, LiteralsBecomeWindows1252) {
  EXPECT_EQ("Ÿ"_bytes, "\x9F");
  EXPECT_EQ("š"_bytes, "\x9A");
  EXPECT_EQ("\u2019"_bytes, "\x92");
  EXPECT_EQ("phÌn này ðang"_bytes, "ph\xCCn n\xE0y \xF0"
                                   "ang");
  EXPECT_EQ(""_bytes, "");
}

TEST(Bytes, CharactersAndCodesAreInverse) {
  for (int code = 0; code < 256; ++code)
    EXPECT_EQ(asc(chr(code)), code);
}

TEST(Text, SmallLettersFoldFromAToZOnly) {
  EXPECT_EQ(lower("ABC xyz \xC0\xD0"), "abc xyz \xC0\xD0");
}

TEST(Text, TrimsBlanksOnly) {
  EXPECT_EQ(trim("  a b  "), "a b");
  EXPECT_EQ(trim("\ta "), "\ta");
  EXPECT_EQ(trim("   "), "");
  EXPECT_EQ(trim(""), "");
}

TEST(Text, FitsAPatternLetterForLetter) {
  EXPECT_TRUE(fits("texts/007.txt", "texts/###.txt"));
  for (const char* text : {"", "texts/07.txt", "texts/0007.txt", "texts/00x.txt", "texts/###.txt",
                           "texts/007_txt", "texts/007.txt "})
    EXPECT_FALSE(fits(text, "texts/###.txt")) << text;
}

TEST(Text, NumbersHaveALeadingBlankInPlaceOfAPlusSign) {
  EXPECT_EQ(Str(7), " 7");
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(-7), "-7");
}

TEST(Text, PlainAsciiKeepsTheApostropheAndBlanksOutWhatIsForeign) {
  EXPECT_EQ(plainAscii("Don\x92t go, it's ~12!"), "Don't go, it's ~12!");
  EXPECT_EQ(plainAscii("\x93quoted\x94\ttab\r\x7F"), " quoted  tab  ");
  EXPECT_EQ(plainAscii(""), "");
}

TEST(Text, PathsTakeThePlatformsSeparator) {
  EXPECT_EQ(pathBelow("/a\\b", "\\sound\\1.wav"), "/a\\b/sound/1.wav");
}

TEST(Rounding, GoesToTheNearestAndAHalfToTheEven) {
  EXPECT_EQ(Round(0.5), 0);
  EXPECT_EQ(Round(1.5), 2);
  EXPECT_EQ(Round(2.5), 2);
  EXPECT_EQ(Round(-0.5), 0);
  EXPECT_EQ(Round(-1.5), -2);
  EXPECT_EQ(Round(-2.5), -2);
  EXPECT_EQ(Round(2.4999), 2);
  EXPECT_EQ(Round(-2.6), -3);
}

} // namespace
} // namespace talvora
