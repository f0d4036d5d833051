#include "text/CharClass.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

TEST(CharClass, ReadsRangesAndSingleCharacters) {
  constexpr CharClass letters("[a-zA-Z]");
  EXPECT_TRUE(letters.has('a'));
  EXPECT_TRUE(letters.has('Z'));
  EXPECT_FALSE(letters.has('-'));
  EXPECT_FALSE(letters.has('1'));
}

TEST(CharClass, TakesALeadingOrEndingHyphenAsItself) {
  constexpr CharClass ending("[A-Z,a-z,0-9, ,',-]");
  EXPECT_TRUE(ending.has('-'));
  EXPECT_TRUE(ending.has(','));
  EXPECT_TRUE(ending.has('\''));
  EXPECT_FALSE(ending.has('.'));
  constexpr CharClass leading("[-a]");
  EXPECT_TRUE(leading.has('-'));
  EXPECT_FALSE(leading.has('b'));
}

TEST(CharClass, SpansARangeBetweenMarks) {
  constexpr CharClass speakable("[a-z,A-Z,'. ()-?!]");
  for (const char inside : {'(', ')', '*', '0', '9', ':', '?', '!'}) {
    EXPECT_TRUE(speakable.has(inside)) << inside;
  }
  EXPECT_FALSE(speakable.has('"'));
  EXPECT_FALSE(speakable.has('@'));
}

TEST(CharClass, KeepsAHyphenBehindABackslashAndBrackets) {
  constexpr CharClass typed("[a-z,A-Z,'. /\\,()-]");
  for (const char inside : {'-', '\\', '/', '(', ')', ' '})
    EXPECT_TRUE(typed.has(inside));
  EXPECT_FALSE(typed.has('0'));
}

TEST(CharClass, KnowsTheFontsOwnLetters) {
  constexpr CharClass accented("[\xE0-\xE2]");
  EXPECT_TRUE(accented.has(chr(0xE1)));
  EXPECT_FALSE(accented.has(chr(0xE3)));
}

TEST(CharClass, TestsWholeTexts) {
  EXPECT_TRUE(Letters.hasAll("Word"));
  EXPECT_FALSE(Letters.hasAll("two words"));
  EXPECT_TRUE(Letters.hasAll(""));
}

} // namespace
} // namespace talvora
