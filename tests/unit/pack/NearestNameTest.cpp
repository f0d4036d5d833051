#include "pack/NearestName.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

TEST(NearestName, CountsLettersThatDiffer) {
  EXPECT_EQ(lettersApart("choose", "choose"), 0U);
  EXPECT_EQ(lettersApart("Choose", "choose"), 0U) << "the case does not count";
  EXPECT_EQ(lettersApart("chose", "choose"), 1U);
  EXPECT_EQ(lettersApart("explian", "explain"), 1U) << "neighbours swapped are one mistake";
  EXPECT_EQ(lettersApart("hint", "hints"), 1U);
  EXPECT_EQ(lettersApart("", "abc"), 3U);
  EXPECT_EQ(lettersApart("order", "fill"), 5U);
}

TEST(NearestName, OffersTheNearestOrNothing) {
  const std::vector<std::string> names = {"replace", "choose", "none"};
  EXPECT_EQ(nearestName("chose", names), "choose");
  EXPECT_EQ(nearestName("nonsense", names), std::nullopt);
  EXPECT_EQ(didYouMean("repalce", names), "; did you mean \"replace\"?");
  EXPECT_EQ(didYouMean("picture", names), "");
}

} // namespace
} // namespace talvora::pack
