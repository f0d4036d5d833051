#include "pack/Message.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

TEST(Message, WithoutALocaleItIsEnglishWithItsValues) {
  EXPECT_EQ(said("{} of {}", 1, std::string("2")), "1 of 2");
  EXPECT_EQ(said("a blank is \"{{}}\""), "a blank is \"{}\"");
  EXPECT_EQ(translated(toSay("possessives")), "possessives");
  EXPECT_EQ(translated(""), "");
}

TEST(Message, ANumberOfThingsTakesItsForm) {
  EXPECT_EQ(saidOf(1, "{} word", "{} words"), "1 word");
  EXPECT_EQ(saidOf(0, "{} word", "{} words"), "0 words");
  EXPECT_EQ(saidOf(2, "{0} word in {1}", "{0} words in {1}", "x"), "2 words in x");
}

TEST(Message, AFileProblemKeepsItsPathAndItsReason) {
  for (const char* const problem : {"/a/b: cannot be written: No space left on device",
                                    "/a: cannot be b: cannot be read: Is a directory", "/a", ""})
    EXPECT_EQ(translatedFileProblem(problem), problem);
}

} // namespace
} // namespace talvora::pack
