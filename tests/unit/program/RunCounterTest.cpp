#include "program/E.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

TEST(RunCounter, GoesFrom2To20AndStartsOver) {
  EXPECT_EQ(nextRunCount(1), 1);
  EXPECT_EQ(nextRunCount(2), 3);
  EXPECT_EQ(nextRunCount(19), 20);
  EXPECT_EQ(nextRunCount(20), 1);
  EXPECT_EQ(nextRunCount(0), 1);
  EXPECT_EQ(nextRunCount(-3), 1);
}

} // namespace
} // namespace talvora
