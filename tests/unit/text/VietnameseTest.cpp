// Texts written in source as they are read.
#include "text/Vietnamese.h"

#include "text/GlyphMap.h"

#include <gtest/gtest.h>

#include <string>

namespace talvora {
namespace {

using namespace literals;

TEST(VietnameseTexts, HaveTheBytesOfTheTextFont) {
  EXPECT_EQ("Điền"_x1, "\xD0i\xC8n");
  EXPECT_EQ("abc\r\t- Ế’"_x1, "abc\r\t- \x90\x92");
  EXPECT_EQ(""_x1, "");
}

TEST(VietnameseTexts, HaveTheBytesOfTheMenusFont) {
  EXPECT_EQ("BÀI ĐỌC"_vni, "BA\xD8I \xD1O\xCF"
                           "C");
  EXPECT_EQ("PHÂN TÍCH"_vni, "PHA\xC2N T\xCD"
                             "CH");
}

TEST(VietnameseTexts, ReadBackAsTheyAreWritten) {
  constexpr char16_t written[] = u"Chưa ghi được từ vựng vào đĩa. Vẫn thoát?";
  EXPECT_EQ(toUnicode("Chưa ghi được từ vựng vào đĩa. Vẫn thoát?"_x1, Encoding::X1), written);
  EXPECT_EQ(toUnicode("HƯỚNG DẪN CÁCH HỌC"_vni, Encoding::Vni), u"HƯỚNG DẪN CÁCH HỌC");
}

} // namespace
} // namespace talvora
