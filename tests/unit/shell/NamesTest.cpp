#include "shell/Names.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

TEST(Names, ReadsTheDigitsFromTheRight) {
  EXPECT_EQ(SoTrongTen("but7"), 7);
  EXPECT_EQ(SoTrongTen("but12"), 12);
  EXPECT_EQ(SoTrongTen("a1b2"), 12);
  EXPECT_EQ(SoTrongTen(" 3 "), 3);
  EXPECT_EQ(SoTrongTen("007"), 7);
}

TEST(Names, ATextWithoutDigitsGives0) {
  EXPECT_EQ(SoTrongTen(""), 0);
  EXPECT_EQ(SoTrongTen("but"), 0);
}

TEST(Names, DigitsPastANumbersRangeAreLeftOut) {
  EXPECT_EQ(SoTrongTen("99999999999999999999"), 999999999);
  EXPECT_EQ(SoTrongTen("12147483647"), 2147483647);
}

} // namespace
} // namespace talvora
