// The glyph maps: which letter a byte shows in each font, and back.
#include "text/GlyphMap.h"

#include "text/Bytes.h"

#include <gtest/gtest.h>

#include <set>

namespace talvora {
namespace {

using namespace literals;

TEST(GlyphMap, NamesOfFontsChooseTheEncoding) {
  EXPECT_EQ(encodingOf("x1"), Encoding::X1);
  EXPECT_EQ(encodingOf("Vni-centur"), Encoding::Vni);
  EXPECT_EQ(encodingOf("Arial"), Encoding::Windows1252);
}

TEST(GlyphMap, X1ShowsTheProgramsOwnStrings) {
  EXPECT_EQ(toUnicode("Không tìm thÍy!"_bytes, Encoding::X1), u"Không tìm thấy!");
  EXPECT_EQ(toUnicode("- BÏt âm thanh"_bytes, Encoding::X1), u"- Bật âm thanh");
  EXPECT_EQ(toUnicode("- TÁt âm thanh"_bytes, Encoding::X1), u"- Tắt âm thanh");
  EXPECT_EQ(toUnicode("+ Töa ðÖ ðöc:"_bytes, Encoding::X1), u"+ Tọa độ đọc:");
}

TEST(GlyphMap, X1LeavesAsciiAndUnassignedBytesAlone) {
  for (int code = 0; code < 0x80; ++code)
    EXPECT_EQ(x1Letter(chr(code)), code);
  EXPECT_EQ(x1Letter(chr(0x83)), u'ƒ');
  EXPECT_EQ(x1Letter(chr(0x96)), u'–');
  EXPECT_EQ(x1Letter(chr(0xB0)), u'°');
}

TEST(GlyphMap, EveryX1ByteComesBackFromItsLetter) {
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(x1Byte(x1Letter(chr(code))), chr(code)) << code;
  }
}

TEST(GlyphMap, EverySmallVietnameseLetterHasAnX1Byte) {
  const std::u32string letters =
      U"áàảãạâấầẩẫậăắằẳẵặéèẻẽẹêếềểễệíìỉĩịóòỏõọôốồổỗộơớờởỡợúùủũụưứừửữựýỳỷỹỵđ";
  std::set<char> bytes;
  for (const char32_t letter : letters) {
    const auto byte = x1Byte(letter);
    ASSERT_TRUE(byte.has_value()) << static_cast<unsigned>(letter);
    EXPECT_EQ(x1Letter(*byte), letter);
    bytes.insert(*byte);
  }
  EXPECT_EQ(bytes.size(), letters.size());
}

TEST(GlyphMap, ThePhoneticLettersHaveAByteInX1) {
  for (const char32_t letter : U"æʌəθðʃʒŋ") {
    if (letter == 0) continue;
    const auto byte = x1Byte(letter);
    ASSERT_TRUE(byte.has_value()) << static_cast<unsigned>(letter);
    EXPECT_EQ(x1Letter(*byte), letter);
  }
}

TEST(GlyphMap, ACapitalWithoutAByteIsWrittenSmall) {
  EXPECT_EQ(x1Byte(U'Ể'), x1Byte(U'ể'));
  EXPECT_EQ(x1Byte(U'É'), x1Byte(U'é'));
  EXPECT_EQ(x1Byte(U'Ơ'), x1Byte(U'ơ'));
  EXPECT_EQ(x1Byte(U'Ẵ'), x1Byte(U'ẵ'));
  EXPECT_EQ(x1Byte(U'Ẻ'), x1Byte(U'ẻ'));
  EXPECT_EQ(x1Byte(U'Ũ'), x1Byte(U'ũ'));
  EXPECT_EQ(x1Byte(U'È'), x1Byte(U'è'));
  EXPECT_EQ(x1Byte(U'Ì'), x1Byte(U'ì'));
  EXPECT_NE(x1Byte(U'Đ'), x1Byte(U'đ'));
}

TEST(GlyphMap, LettersOfOtherLanguagesHaveNoX1Byte) {
  EXPECT_FALSE(x1Byte(U'ñ'));
  EXPECT_FALSE(x1Byte(U'Ü'));
  EXPECT_FALSE(x1Byte(U'я'));
  EXPECT_FALSE(x1Byte(U'…'));
}

TEST(GlyphMap, VniJoinsABaseLetterAndItsMark) {
  EXPECT_EQ(toUnicode("BAØI ÑOÏC"_bytes, Encoding::Vni), u"BÀI ĐỌC");
  EXPECT_EQ(toUnicode("TÖØ VÖÏNG CUÛA BAÏN"_bytes, Encoding::Vni), u"TỪ VỰNG CỦA BẠN");
  EXPECT_EQ(toUnicode("VAÊN PHAÏM"_bytes, Encoding::Vni), u"VĂN PHẠM");
  EXPECT_EQ(toUnicode("LUYEÄN NGHE"_bytes, Encoding::Vni), u"LUYỆN NGHE");
  EXPECT_EQ(toUnicode("PHAÂN TÍCH CAÂU"_bytes, Encoding::Vni), u"PHÂN TÍCH CÂU");
  EXPECT_EQ(toUnicode("CAØI ÑAËT"_bytes, Encoding::Vni), u"CÀI ĐẶT");
  EXPECT_EQ(toUnicode("HÖÔÙNG DAÃN CAÙCH HOÏC"_bytes, Encoding::Vni), u"HƯỚNG DẪN CÁCH HỌC");
}

TEST(GlyphMap, EveryVietnameseLetterGoesThroughVniAndBack) {
  const std::u32string letters =
      U"áàảãạâấầẩẫậăắằẳẵặéèẻẽẹêếềểễệíìỉĩịóòỏõọôốồổỗộơớờởỡợúùủũụưứừửữựýỳỷỹỵđ"
      U"ÁÀẢÃẠÂẤẦẨẪẬĂẮẰẲẴẶÉÈẺẼẸÊẾỀỂỄỆÍÌỈĨỊÓÒỎÕỌÔỐỒỔỖỘƠỚỜỞỠỢÚÙỦŨỤƯỨỪỬỮỰÝỲỶỸỴĐ";
  std::set<std::string> spellings;
  for (const char32_t letter : letters) {
    const auto bytes = vniBytes(letter);
    ASSERT_TRUE(bytes.has_value()) << static_cast<unsigned>(letter);
    EXPECT_EQ(toUnicode(*bytes, Encoding::Vni), std::u16string(1, static_cast<char16_t>(letter)));
    spellings.insert(*bytes);
  }
  EXPECT_EQ(spellings.size(), letters.size());
}

TEST(GlyphMap, VniWritesOrdinaryLettersAsTheyAre) {
  EXPECT_EQ(vniBytes(U'a'), "a");
  EXPECT_EQ(vniBytes(U'“'), std::string("“"_bytes));
  // The byte of ñ shows đ there, and the byte of ä is a mark.
  EXPECT_FALSE(vniBytes(U'ñ'));
  EXPECT_FALSE(vniBytes(U'ä'));
  EXPECT_FALSE(vniBytes(U'я'));
}

TEST(GlyphMap, AMarkWithoutABaseKeepsItsWindowsLetter) {
  EXPECT_EQ(toUnicode("tù"_bytes, Encoding::Vni), u"tù");
  EXPECT_EQ(toUnicode("ù"_bytes, Encoding::Vni), u"ù");
}

TEST(GlyphMap, OtherFontsShowWindows1252) {
  EXPECT_EQ(toUnicode("€Ÿé"_bytes, Encoding::Windows1252), u"€Ÿé");
}

TEST(GlyphMap, ReadsUtf8OneCharacterAtATime) {
  const std::string text = "aé€😀";
  std::size_t at = 0;
  EXPECT_EQ(nextCodePoint(text, at), U'a');
  EXPECT_EQ(nextCodePoint(text, at), U'é');
  EXPECT_EQ(nextCodePoint(text, at), U'€');
  EXPECT_EQ(nextCodePoint(text, at), U'😀');
  EXPECT_EQ(at, text.size());
  EXPECT_FALSE(nextCodePoint(text, at));
}

TEST(GlyphMap, RejectsInvalidUtf8AndStaysWhereItIs) {
  const std::string invalid[] = {"\x80",
                                 "\xC0\x80",
                                 "\xC1\xBF",
                                 "\xE0\x80\x80",
                                 "\xED\xA0\x80",
                                 "\xF4\x90\x80\x80",
                                 "\xF5\x80\x80\x80",
                                 "\xE2\x82",
                                 "\xC3",
                                 "\xC3(",
                                 "\xFF"};
  for (const std::string& text : invalid) {
    std::size_t at = 0;
    EXPECT_FALSE(nextCodePoint(text, at));
    EXPECT_EQ(at, 0U);
  }
}

TEST(GlyphMap, WritesUtf8OfEveryLength) {
  std::string text;
  for (const char32_t codePoint : U"aé€😀") {
    if (codePoint != 0) appendUtf8(text, codePoint);
  }
  EXPECT_EQ(text, "aé€😀");
}

} // namespace
} // namespace talvora
