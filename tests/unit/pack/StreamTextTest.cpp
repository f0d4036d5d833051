// Encoding of the streams: what they hold, and that decoding gives it back.
#include "pack/StreamText.h"

#include "formats/Integers.h"
#include "stores/ByteCode.h"

#include <gtest/gtest.h>

#include <random>

namespace talvora::pack {
namespace {

std::string plainBytes(std::string_view stored) {
  std::string plain;
  for (const char byte : stored) {
    plain += static_cast<char>(GiaiMaByte(static_cast<unsigned char>(byte)));
  }
  return plain;
}

std::string storedText(std::string_view text) {
  std::string stream;
  appendStored(stream, text);
  return stream;
}

TEST(StreamText, TakesTheLongestExpansion) {
  EXPECT_EQ(plainBytes(storedText(" nghe")), "\x10"
                                             "e");
  EXPECT_EQ(plainBytes(storedText(" nga")), "\x12"
                                            "ga");
  EXPECT_EQ(plainBytes(storedText("...")), "\x1C");
}

TEST(StreamText, GivesEverySentenceMarkARecordOfItsOwn) {
  EXPECT_EQ(plainBytes(storedText("__")), "__");
}

TEST(StreamText, StoresBytesThroughTheByteCode) {
  EXPECT_EQ(storedText("A"), "\x81");
  EXPECT_EQ(storedText("\r"), "\xCD");
}

TEST(StreamText, EveryTextOfStreamBytesComesBack) {
  std::string letters;
  for (int code = 32; code < 256; ++code) {
    const char byte = static_cast<char>(code);
    if (MoRongByte(static_cast<unsigned char>(byte)).size() == 1 && byte != '@') letters += byte;
  }
  letters += "   heonaynghtr._-<:(";
  std::mt19937 random(7);
  for (int round = 0; round < 2000; ++round) {
    std::string text;
    for (auto length = random() % 40; length > 0; --length) {
      text += letters[random() % letters.size()];
    }
    const auto back = storedUntil(storedText(text + "@"), 0, '@');
    ASSERT_TRUE(back.has_value());
    ASSERT_EQ(*back, text);
  }
}

TEST(StreamText, RefusesLettersThatNoByteCanCarry) {
  EXPECT_TRUE(streamByte(U'ế'));
  EXPECT_FALSE(streamByte(U'°'));
  EXPECT_FALSE(streamByte(U'\u00A0'));
  EXPECT_FALSE(streamByte(U'\t'));
  EXPECT_FALSE(streamByte(U'ñ'));
}

TEST(StreamText, ReportsBadLettersWhereTheyStand) {
  Problems problems;
  EXPECT_EQ(sourceText("độ° a_b\xFF", {"x.txt", 3, 5}, StreamMarks, problems), ownText("độ ab"));
  ASSERT_EQ(problems.all().size(), 3U);
  EXPECT_EQ(describe(problems.all()[0]), "x.txt:3:7: the text font has no byte for \"°\"");
  EXPECT_EQ(problems.all()[1].where.column, 10);
  EXPECT_EQ(problems.all()[2].where.column, 12);
  EXPECT_EQ(problems.all()[2].message, "not valid UTF-8");
}

TEST(StreamText, AStreamThatEndsEarlyIsNoText) {
  EXPECT_FALSE(storedUntil(storedText("abc"), 0, '@'));
  EXPECT_FALSE(storedUntil(storedText("abc@"), -1, '@'));
  EXPECT_FALSE(storedUntil(storedText("abc@"), 99, '@'));
}

TEST(StreamText, RecordsAreLittleEndianFromOne) {
  std::string table;
  appendInteger(table, 0x01020304);
  appendInteger(table, 7);
  EXPECT_EQ(table.substr(0, 4), "\x04\x03\x02\x01");
  EXPECT_EQ(integerAt(table, 1), 0x01020304);
  EXPECT_EQ(integerAt(table, 2), 7);
  EXPECT_EQ(integerAt(table, 3), 0);
  EXPECT_EQ(integerAt(table, 0), 0);
}

} // namespace
} // namespace talvora::pack
