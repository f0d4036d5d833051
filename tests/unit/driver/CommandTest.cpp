// The fields of a command, and what is refused.
#include "driver/Command.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

TEST(Command, ALineThatIsNoObjectIsRefused) {
  for (const char* line : {"", " ", "x", "[]", "5", "\"do\"", "{", "{\"do\":\"state\"} x",
                           "{\"do\":\"\xFF\"}", "{\"do\":5}", "{}"}) {
    EXPECT_THROW(Command{line}, CommandError) << line;
  }
}

TEST(Command, DeepNestingIsReadWithoutRecursion) {
  const std::string deep(200000, '[');
  EXPECT_THROW(Command{deep}, CommandError);
  const std::string closed = "{\"do\":\"get\",\"names\":" + deep + std::string(200000, ']') + "}";
  EXPECT_EQ(Command(closed).name(), "get");
}

TEST(Command, ATextIsOneByteForEachCharacter) {
  const Command command(R"({"do":"type","text":"a\u0080ÿ"})");
  EXPECT_EQ(command.text("text"), "a\x80\xFF");
}

TEST(Command, ACharacterAbove255IsRefused) {
  const Command command(R"({"do":"type","text":"Ā"})");
  EXPECT_THROW(static_cast<void>(command.text("text")), CommandError);
}

TEST(Command, ANumberIsWholeAndHas32Bits) {
  const auto read = [](const std::string& number) {
    return Command(R"({"do":"wait","ms":)" + number + "}").number("ms");
  };
  EXPECT_EQ(read("2147483647"), 2147483647);
  EXPECT_EQ(read("-2147483648"), -2147483647 - 1);
  for (const char* bad : {"2147483648", "-2147483649", "18446744073709551615", "1e3", "1.5",
                          "\"1\"", "true", "null", "99999999999999999999999"}) {
    EXPECT_THROW(static_cast<void>(read(bad)), CommandError) << bad;
  }
}

TEST(Command, AFlagIsTrueOrFalse) {
  EXPECT_TRUE(Command(R"({"do":"x","ctrl":true})").flag("ctrl", false));
  EXPECT_TRUE(Command(R"({"do":"x"})").flag("ctrl", true));
  EXPECT_THROW(static_cast<void>(Command(R"({"do":"x","ctrl":1})").flag("ctrl", false)),
               CommandError);
}

TEST(Command, AChoiceIsOneOfTwoWords) {
  EXPECT_FALSE(Command(R"({"do":"x","with":"no"})").choice("with", nullptr, "yes", "no"));
  EXPECT_TRUE(Command(R"({"do":"x"})").choice("with", "yes", "yes", "no"));
  const auto choose = [](const char* line) {
    return Command(line).choice("with", nullptr, "yes", "no");
  };
  EXPECT_THROW(choose(R"({"do":"x"})"), CommandError);
  EXPECT_THROW(choose(R"({"do":"x","with":"maybe"})"), CommandError);
}

} // namespace
} // namespace talvora
