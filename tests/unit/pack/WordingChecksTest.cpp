// One way of writing: each rule is shown to fail, and what looks like a fault is shown to pass.
#include "pack/WordingChecks.h"

#include "pack/Told.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> oddIn(std::string_view sentence) {
  std::vector<std::string> lines;
  for (const OddWording& odd : oddWordings(sentence))
    lines.push_back(std::to_string(odd.at) + " " + odd.message);
  return lines;
}

/// Problems of a text whose lines are sentences, each followed by its translation.
std::vector<std::string> problemsOf(std::string_view text) {
  Problems problems;
  const std::string file = "t";
  WordingChecker checker(file, problems);
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.starts_with('=')) {
      checker.readTranslation(line);
    } else if (!line.text.empty()) {
      checker.readSentence(line);
    }
  }
  checker.finish();
  return told(problems);
}

TEST(WordingChecks, FindANumberWithoutItsHyphen) {
  EXPECT_THAT(oddIn("He is thirty five today."), ElementsAre(HasSubstr("6 a number has a hyphen")));
  EXPECT_THAT(oddIn("The Twenty first of May."), ElementsAre(HasSubstr("\"Twenty-first\"")));
  EXPECT_THAT(oddIn("In twenty twenty-five, twenty, two or ten came."), IsEmpty());
}

TEST(WordingChecks, FindADayOrMonthInSmallLetters) {
  EXPECT_THAT(oddIn("On mondays it rains in april."),
              ElementsAre(HasSubstr("3 \"mondays\" begins"), HasSubstr("23 \"april\" begins")));
  EXPECT_THAT(oddIn("On Monday they may march to the holidays."), IsEmpty());
}

TEST(WordingChecks, FindAmericanWordsAndTwinForms) {
  EXPECT_THAT(oddIn("Two trucks stopped."),
              ElementsAre("4 the course writes \"lorry\" for \"trucks\""));
  EXPECT_THAT(oddIn("Color is what she learnt."),
              ElementsAre(HasSubstr("0 the course writes \"colour\""),
                          HasSubstr("18 the course writes \"learned\"")));
  EXPECT_THAT(oddIn("Mrs Gray learned colours in a lorry."), IsEmpty()) << "Gray is a name";
}

TEST(WordingChecks, HoldATranslationToItsSentence) {
  EXPECT_THAT(problemsOf("Is it Monday?\n= Hôm nay thứ ba.\n"),
              ElementsAre(HasSubstr("t:2:1: the sentence asks"),
                          HasSubstr("t:2:1: the translation has no \"thứ hai\"")));
  EXPECT_THAT(problemsOf("Go.\n= Đi nhé?\n"), ElementsAre(HasSubstr("the translation asks")));
  EXPECT_THAT(problemsOf("“On Mondays?”\n= “Thứ Hai à?”\n"), IsEmpty());
  EXPECT_THAT(problemsOf("He likes soup.\n= Anh ấy thích xúp.\n"),
              ElementsAre(HasSubstr("t:2:1: the course writes \"súp\" for \"xúp\"")));
}

TEST(WordingChecks, FindNorthAndSouthInOneText) {
  const std::string_view north = "A pig.\n= Một con lợn.\n";
  const std::string_view south = "Pigs.\n= Bầy heo.\n";
  EXPECT_THAT(problemsOf(north), IsEmpty());
  EXPECT_THAT(problemsOf(south), IsEmpty());
  EXPECT_THAT(problemsOf(std::string(north) + std::string(south)),
              ElementsAre("t:4:1: \"lợn\" of the north and \"bầy heo\" of the south stand in one "
                          "text, here and in line 2"));
  EXPECT_THAT(problemsOf("A pig in the wind.\n= Con lợn trong gió heo may.\n"), IsEmpty());
}

} // namespace
} // namespace talvora::pack
