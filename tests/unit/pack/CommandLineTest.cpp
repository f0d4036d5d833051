// What options take.
#include "pack/CommandLine.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

/// What an option that takes a number up to 408 makes of a word; 0 when it does not take it.
int taken(const std::string& word) {
  CLI::App application("Tries.", "try");
  int number = 0;
  takeNumberUpTo(*application.add_option("SLOT", number), 408);
  try {
    application.parse(std::vector<std::string>{word});
  } catch (const CLI::ParseError&) {
    return 0;
  }
  return number;
}

TEST(CommandLine, ANumberMayHaveTheZerosOfAFileName) {
  EXPECT_EQ(taken("46"), 46);
  EXPECT_EQ(taken("046"), 46);
  EXPECT_EQ(taken("0058"), 58);
  EXPECT_EQ(taken("408"), 408);
}

TEST(CommandLine, ANumberOutOfItsRangeIsRefused) {
  for (const char* const word : {"0", "409", "-1", "12x", "x", "99999999999"})
    EXPECT_EQ(taken(word), 0) << word;
}

} // namespace
} // namespace talvora::pack
