#include "exercises/Blanks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace talvora {
namespace {

class Blanks : public testing::Test {
 protected:
  Blanks() : titles(358) {
    for (std::size_t n = 1; n < titles.size(); ++n)
      titles[n] = "Lesson " + std::to_string(n);
  }

  std::vector<std::string> titles;
  ItemState item;
};

TEST_F(Blanks, AreTheStretchesOfTheMask) {
  item.MatNa = "@@*went___@*a_";
  LapOTrong(item, titles);
  ASSERT_EQ(item.OTrong.count(), 2);
  EXPECT_EQ(item.OTrong.at(1).Dau, 3);
  EXPECT_EQ(item.OTrong.at(1).Cuoi, 10);
  EXPECT_EQ(item.OTrong.at(2).Dau, 12);
  EXPECT_EQ(item.OTrong.at(2).Cuoi, 14);
  EXPECT_EQ(item.MatNa, "@@*went___@*a_") << "the mask itself stays";
  EXPECT_EQ(item.OTrong.find(10), 1);
  EXPECT_EQ(item.OTrong.find(11), 0);
}

TEST_F(Blanks, TakeTheirExplanationsInOrder) {
  item.MatNa = "*a_@*b_";
  item.LoiGiai = "General^x\rone^\rtwo^\rthree";
  LapOTrong(item, titles);
  EXPECT_EQ(item.GiaiChung, "General");
  EXPECT_EQ(item.OTrong.at(2).Chu, "\rtwo");
  EXPECT_EQ(item.OTrong.at(3).Chu, "\rthree") << "a text may stand behind the last stretch";
  EXPECT_EQ(item.OTrong.count(), 2);
}

TEST_F(Blanks, EachBlankOfTheVerbBanksOffersLessons2To69) {
  item.MatNa = "*a_@*b_@*c_";
  item.LoiGiai = "General";
  item.listsLessons = true;
  LapOTrong(item, titles);
  EXPECT_EQ(item.GiaiChung, "General");
  for (int blank = 1; blank <= 3; ++blank) {
    const std::string text = item.OTrong.at(blank).Chu;
    EXPECT_EQ(std::count(text.begin(), text.end(), '`'), 68);
    EXPECT_THAT(text, testing::StartsWith("\r`Lesson 2\r"));
    EXPECT_THAT(text, testing::EndsWith("`Lesson 69\r"));
  }
}

TEST_F(Blanks, MoreThanAThousandAreLeftOut) {
  for (int blank = 0; blank < 3000; ++blank)
    item.MatNa += "*_@";
  LapOTrong(item, titles);
  EXPECT_EQ(item.OTrong.count(), 1000);
}

} // namespace
} // namespace talvora
