#include "listening/DrawOrder.h"

#include <gtest/gtest.h>

#include <set>

namespace talvora {
namespace {

TEST(DrawOrder, EveryItemIsDrawnOnce) {
  for (const int items : {1, 2, 7, 62, 556}) {
    Random random(3);
    DrawOrder order(random);
    order.start(items);
    std::set<int> drawn;
    for (int step = 1; step <= items; ++step) {
      order.step();
      drawn.insert(order.SoRut);
      EXPECT_EQ(order.BuocHien, step);
    }
    EXPECT_EQ(static_cast<int>(drawn.size()), items);
    EXPECT_EQ(*drawn.begin(), 1);
    EXPECT_EQ(*drawn.rbegin(), items);
    EXPECT_FALSE(order.goesOn());
  }
}

TEST(DrawOrder, BackAndForwardWalkTheItemsDrawn) {
  Random random(3);
  DrawOrder order(random);
  order.start(10);
  order.step();
  const int first = order.SoRut;
  order.step();
  const int second = order.SoRut;
  order.step();
  const int third = order.SoRut;

  order.TimBuoc();
  EXPECT_EQ(order.BuocTruoc, 2);
  order.CoLui = true;
  order.step();
  EXPECT_EQ(order.SoRut, second);
  EXPECT_FALSE(order.CoLui);
  order.TimBuoc();
  order.CoLui = true;
  order.step();
  EXPECT_EQ(order.SoRut, first);

  order.step();
  EXPECT_EQ(order.SoRut, second);
  order.step();
  EXPECT_EQ(order.SoRut, third);
  EXPECT_EQ(order.BuocHien, 3);
  order.step();
  EXPECT_EQ(order.BuocHien, 4);
}

TEST(DrawOrder, ThereIsNoStepBeforeTheFirst) {
  Random random(3);
  DrawOrder order(random);
  order.start(4);
  order.TimBuoc();
  EXPECT_EQ(order.BuocTruoc, 0);
  order.step();
  order.TimBuoc();
  EXPECT_EQ(order.BuocTruoc, 0);
}

} // namespace
} // namespace talvora
