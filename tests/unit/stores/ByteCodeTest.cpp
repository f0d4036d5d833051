#include "stores/ByteCode.h"

#include <gtest/gtest.h>

#include <string>

namespace talvora {
namespace {

TEST(ByteCode, DecodingShiftsEachRangeAndIsItsOwnInverse) {
  EXPECT_EQ(GiaiMaByte(0), 192);
  EXPECT_EQ(GiaiMaByte(63), 255);
  EXPECT_EQ(GiaiMaByte(64), 128);
  EXPECT_EQ(GiaiMaByte(127), 191);
  EXPECT_EQ(GiaiMaByte(128), 64);
  EXPECT_EQ(GiaiMaByte(191), 127);
  EXPECT_EQ(GiaiMaByte(192), 0);
  EXPECT_EQ(GiaiMaByte(255), 63);
  for (int code = 0; code < 256; ++code) {
    const auto byte = static_cast<unsigned char>(code);
    EXPECT_EQ(GiaiMaByte(GiaiMaByte(byte)), byte);
  }
}

TEST(ByteCode, ExpandsTheBytesOfTheTable) {
  EXPECT_EQ(MoRongByte(1), " b");
  EXPECT_EQ(MoRongByte(16), " ngh");
  EXPECT_EQ(MoRongByte(28), "...");
  EXPECT_EQ(MoRongByte(31), " w");
  EXPECT_EQ(MoRongByte(127), " :");
  EXPECT_EQ(MoRongByte(166), ". ");
  EXPECT_EQ(MoRongByte(188), "__");
  EXPECT_EQ(MoRongByte(190), "au");
}

TEST(ByteCode, LeavesEveryOtherByteAsItsOwnCharacter) {
  constexpr unsigned char Plain[] = {9, 10, 13, 30, 65, 64, 95, 128, 160, 255};
  for (const unsigned char code : Plain) {
    EXPECT_EQ(MoRongByte(code), std::string(1, static_cast<char>(code)));
  }
}

} // namespace
} // namespace talvora
