#include "listening/OptionMask.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

// The page of these options: 40 characters, then four labels "A. " with their options.
const ShownOptions Options = {"one\r", "second\r", "three\r", "four"};
constexpr int PageLength = 40 + 16 + 1 + 4 + 7 + 6 + 4;

TEST(OptionMask, TheRightOptionReachesFromItsLabelToItsLineEnd) {
  EXPECT_EQ(OptionMask(Options, 1, PageLength).right(), (PageStretch{42, 47}));
  EXPECT_EQ(OptionMask(Options, 2, PageLength).right(), (PageStretch{50, 58}));
  EXPECT_EQ(OptionMask(Options, 3, PageLength).right(), (PageStretch{61, 68}));
  EXPECT_EQ(OptionMask(Options, 4, PageLength).right(), (PageStretch{71, 76}));
}

TEST(OptionMask, TheInstructionAndTheRightOptionAreCovered) {
  const OptionMask mask(Options, 2, PageLength);
  EXPECT_EQ(mask.MatNaNghe().size(), static_cast<std::size_t>(PageLength - 3 + 200));
  EXPECT_EQ(mask.MatNaNghe().substr(0, 40), std::string(40, '0'));
  for (std::size_t caret = 50; caret <= 58; ++caret)
    EXPECT_EQ(mask.MatNaNghe()[caret - 1], '0');
  EXPECT_EQ(mask.MatNaNghe()[43], ' ');
}

TEST(OptionMask, AWrongOptionIsTakenWholeAndOnce) {
  OptionMask mask(Options, 2, PageLength);
  const auto taken = mask.takeWrong(44);
  ASSERT_TRUE(taken.has_value());
  EXPECT_EQ(*taken, (PageStretch{41, 47}));
  EXPECT_FALSE(mask.takeWrong(44).has_value());
  EXPECT_FALSE(mask.takeWrong(42).has_value());
}

TEST(OptionMask, CaretsOutsideAndOnTheRightOptionTakeNothing) {
  OptionMask mask(Options, 2, PageLength);
  for (const int caret : {-5, 0, 1, 40, 52, 10'000})
    EXPECT_FALSE(mask.takeWrong(caret).has_value());
}

TEST(OptionMask, EmptyOptionsAndAnEmptyPageAreHarmless) {
  OptionMask mask(ShownOptions{}, 4, 0);
  EXPECT_FALSE(mask.takeWrong(1).has_value());
  EXPECT_EQ(mask.lastCaret(), 0);
}

} // namespace
} // namespace talvora
