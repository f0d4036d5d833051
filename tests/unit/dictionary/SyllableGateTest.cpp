#include "dictionary/SyllableGate.h"

#include "text/Bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace talvora {
namespace {

TEST(SyllableGate, HoldsTheListInItsOrderWithItsTwoRepeats) {
  const std::set<std::string_view> different(VietnameseSyllables.begin(),
                                             VietnameseSyllables.end());
  EXPECT_EQ(VietnameseSyllables.size(), 258U);
  EXPECT_EQ(different.size(), 256U);
  EXPECT_EQ(VietnameseSyllables.front(), "cho");
  EXPECT_EQ(VietnameseSyllables[100], "xui");
  EXPECT_EQ(VietnameseSyllables.back(), "uy");
  EXPECT_EQ(std::count(VietnameseSyllables.begin(), VietnameseSyllables.end(), "phai"), 2);
  EXPECT_EQ(std::count(VietnameseSyllables.begin(), VietnameseSyllables.end(), "tra"), 2);
}

TEST(SyllableGate, RefusesEverySyllableOfTheList) {
  for (const auto syllable : VietnameseSyllables)
    EXPECT_FALSE(LaTiengAnh(syllable)) << syllable;
}

TEST(SyllableGate, RefusesASyllableInAnyMixOfCapitals) {
  for (const char* mix : {"cho", "Cho", "cHo", "chO", "CHo", "ChO", "cHO", "CHO"}) {
    EXPECT_FALSE(LaTiengAnh(mix)) << mix;
  }
}

TEST(SyllableGate, TellsThankFromThanh) {
  EXPECT_TRUE(LaTiengAnh("thank"));
  EXPECT_FALSE(LaTiengAnh("thanh"));
}

TEST(SyllableGate, LosesSomeEnglishWords) {
  for (const char* word : {"con", "ma", "em", "e"})
    EXPECT_FALSE(LaTiengAnh(word)) << word;
}

TEST(SyllableGate, RefusesALetterOfTheFont) {
  EXPECT_FALSE(LaTiengAnh("tÙ"_bytes));
  EXPECT_FALSE(LaTiengAnh("word\xE0"));
}

TEST(SyllableGate, PassesAHyphenAndTheOtherMarksOfEnglishAndNoDigit) {
  EXPECT_TRUE(LaTiengAnh("well-known"));
  EXPECT_TRUE(LaTiengAnh("o'clock"));
  EXPECT_TRUE(LaTiengAnh("Mr. Smith, esq."));
  EXPECT_FALSE(LaTiengAnh("mp3"));
  EXPECT_FALSE(LaTiengAnh("and/or"));
}

TEST(SyllableGate, RefusesNothingAtAll) {
  EXPECT_FALSE(LaTiengAnh(""));
}

} // namespace
} // namespace talvora
