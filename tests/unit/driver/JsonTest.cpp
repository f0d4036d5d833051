// Texts and values of the program as JSON.
#include "driver/Json.h"

#include <gtest/gtest.h>

#include <string>

namespace talvora {
namespace {

TEST(Json, EveryByteComesBack) {
  std::string bytes;
  for (int code = 0; code < 256; ++code)
    bytes += static_cast<char>(code);
  const Json json = Json::parse(jsonText(bytes).dump());
  EXPECT_EQ(bytesOfJson(json), bytes);
}

TEST(Json, AByteIsTheCodePointOfTheSameNumber) {
  EXPECT_EQ(jsonText("\xFF").get<std::string>(), "ÿ");
  EXPECT_EQ(jsonText("\x80").get<std::string>(), "\xC2\x80");
}

TEST(Json, WholeNumbersHaveNoPoint) {
  EXPECT_EQ(jsonValue(20.0).dump(), "20");
  EXPECT_EQ(jsonValue(-1).dump(), "-1");
  EXPECT_EQ(jsonValue(285.5).dump(), "285.5");
  EXPECT_EQ(jsonValue(1e300).dump(), "1e+300");
}

TEST(Json, TablesAndRecordsKeepTheirOrder) {
  const VariableValue record = VariableValue::Record{
      {"TimThay", true},
      {"ViTriGan", 3},
      {"NghiaHienTai", std::string("a")},
      {"point", VariableValue::Table{VariableValue(1.0), VariableValue(2.5)}}};
  EXPECT_EQ(jsonValue(record).dump(),
            R"({"TimThay":true,"ViTriGan":3,"NghiaHienTai":"a","point":[1,2.5]})");
}

TEST(Json, AnEmptyTableIsAnArray) {
  EXPECT_EQ(jsonValue(VariableValue::Table{}).dump(), "[]");
}

TEST(Json, ArgumentsAreTextsNumbersAndFlags) {
  EXPECT_TRUE(valueOfJson(Json(5)));
  EXPECT_TRUE(valueOfJson(Json("a")));
  EXPECT_TRUE(valueOfJson(Json(true)));
  EXPECT_FALSE(valueOfJson(Json(nullptr)));
  EXPECT_FALSE(valueOfJson(Json::array()));
  EXPECT_FALSE(valueOfJson(Json("Ā")));
}

TEST(Json, ALogEntryHasItsFieldsBehindTimeAndKind) {
  const LogEntry entry{7, "select", {{"value", logNumber(4)}, {"failed", true}}};
  EXPECT_EQ(jsonEntry(entry).dump(), R"({"t":7,"what":"select","value":4,"failed":true})");
}

} // namespace
} // namespace talvora
