// One way of writing: each rule is shown to fail, and what looks like a fault is shown to pass.
#include "pack/WordingChecks.h"

#include "pack/Told.h"

#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace talvora::pack {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;
using Lines = std::vector<std::string>;

const WordingList listed = {
    {{"tỷ", "tỉ"}, {"ti vi", "tivi"}, {"xúp", "súp"}, {"chủ nhật", "Chủ nhật"}},
    {{"robot", "rô bốt"}},
    {{"color", "colour"}, {"colors", "colours"}},
    {{"trucks", "lorry"}, {"gray", "grey"}, {"learnt", "learned"}},
    {{{"lợn"}, {"thịt heo", "bầy heo"}}}};

Lines foundIn(std::string_view text, WordingUse use = WordingUse::Texts) {
  Problems problems;
  checkWording(text, "t", listed, use, problems);
  return told(problems);
}

Lines inEntry(std::string_view text) {
  return foundIn(text, WordingUse::Dictionary);
}

TEST(WordingChecks, FindAListedSpellingWhereItStands) {
  EXPECT_EQ(foundIn("= Có tám tỷ người.\n= “Tỷ lệ”, cái ti vi.\n"),
            (Lines{"t:1:10: \"tỷ\" is written \"tỉ\" here", "t:2:4: \"Tỷ\" is written \"Tỉ\" here",
                   "t:2:16: \"ti vi\" is written \"tivi\" here"}));
  EXPECT_EQ(foundIn("A fine color.\n"), Lines{"t:1:8: \"color\" is written \"colour\" here"});
  EXPECT_EQ(foundIn("= Đến chủ nhật.\n"),
            Lines{"t:1:7: \"chủ nhật\" is written \"Chủ nhật\" here"});
  EXPECT_THAT(foundIn("= Chủ nhật đến.\n"), IsEmpty());
}

TEST(WordingChecks, LetPartsOfWordsAndRemarksPass) {
  EXPECT_THAT(foundIn("= tỷu, hoti vim\nColorado, discolors\n// tỷ\n"), IsEmpty());
}

TEST(WordingChecks, LetAnEntryHaveItsOwnSpelling) {
  EXPECT_THAT(inEntry("color A1\n  n. [u c] màu (Mỹ)\n    > Fine colors. = Màu đẹp.\n"), IsEmpty());
  EXPECT_EQ(inEntry("color A1\n  n. [u c] tỷ\n"), Lines{"t:2:12: \"tỷ\" is written \"tỉ\" here"});
  EXPECT_EQ(inEntry("paint A1\n  v. sơn\n    > Paint it in this color. = Sơn màu này.\n").size(),
            1U);
  EXPECT_EQ(inEntry("co\n  n. sơn\n    > The color. = Màu.\n").size(), 1U);
  EXPECT_THAT(inEntry("truck A1\n  n. xe tải\n    > Two trucks. = Hai xe tải.\n"), IsEmpty());
}

TEST(WordingChecks, LetLessonsTeachBothSpellingsOfEnglish) {
  EXPECT_THAT(foundIn("Anh: colour, color\n", WordingUse::Lessons), IsEmpty());
  EXPECT_EQ(foundIn("Tám tỷ\n", WordingUse::Lessons).size(), 1U);
}

TEST(WordingChecks, HoldTranslationsToWordsThatAreEnglishToo) {
  EXPECT_EQ(foundIn("The robot came.\n= Con robot đến.\n"),
            Lines{"t:2:7: \"robot\" is written \"rô bốt\" here"});
  EXPECT_EQ(inEntry("come A1\n  v. đến\n    > The robot came. = Con robot đến.\n").size(), 1U);
}

TEST(WordingChecks, FindAWeekdayWithoutItsCapital) {
  EXPECT_EQ(foundIn("We meet on Thursday.\n= Thứ năm ta gặp nhau.\n"),
            Lines{"t:2:3: \"Thứ năm\" is written \"Thứ Năm\" here"});
  EXPECT_THAT(foundIn("See you on Thursday.\n= Thứ Năm gặp lại.\n"), IsEmpty());
  EXPECT_THAT(foundIn("On Thursday the fifth one went.\n= Thứ Năm mất cái thứ năm.\n"), IsEmpty());
  EXPECT_THAT(foundIn("This is the fifth day.\n= Đây là ngày thứ năm.\n"), IsEmpty());
}

TEST(WordingChecks, FindANumberWithoutItsHyphen) {
  EXPECT_THAT(foundIn("He is thirty five today."), ElementsAre("t:1:7: a number has a hyphen: "
                                                               "\"thirty-five\""));
  EXPECT_THAT(foundIn("The Twenty first of May."), ElementsAre(HasSubstr("\"Twenty-first\"")));
  EXPECT_THAT(foundIn("In twenty twenty-five, twenty, two or ten came."), IsEmpty());
}

TEST(WordingChecks, FindADayOrMonthInSmallLetters) {
  EXPECT_THAT(foundIn("On mondays it rains in april."),
              ElementsAre(HasSubstr(":4: \"mondays\" begins"), HasSubstr(":24: \"april\" begins")));
  EXPECT_THAT(foundIn("On Monday they may march to the holidays."), IsEmpty());
}

TEST(WordingChecks, FindAmericanWordsAndTwinForms) {
  EXPECT_THAT(foundIn("Two trucks stopped."),
              ElementsAre("t:1:5: \"trucks\" is written \"lorry\" here"));
  EXPECT_THAT(foundIn("Color is what she learnt. Gray is.\n"),
              UnorderedElementsAre("t:1:1: \"Color\" is written \"Colour\" here",
                                   "t:1:19: \"learnt\" is written \"learned\" here",
                                   "t:1:27: \"Gray\" is written \"Grey\" here"));
  EXPECT_THAT(foundIn("+ Two trucks stopped.\n").size(), 1U) << "an option of a listening item";
  EXPECT_THAT(foundIn("Mrs Gray learned colours in a lorry."), IsEmpty()) << "Gray is a name";
}

TEST(WordingChecks, FindNorthAndSouthInOneText) {
  const std::string_view north = "A pig.\n= Một con lợn.\n";
  const std::string_view south = "Pigs.\n= Bầy heo.\n";
  EXPECT_THAT(foundIn(north), IsEmpty());
  EXPECT_THAT(foundIn(south), IsEmpty());
  EXPECT_THAT(foundIn(std::string(north) + std::string(south)),
              ElementsAre("t:4:1: \"lợn\" of the north and \"bầy heo\" of the south stand in one "
                          "text, here and in line 2"));
  EXPECT_THAT(foundIn("A pig in the wind.\n= Con lợn trong gió heo may.\n"), IsEmpty());
}

TEST(WordingList, IsReadPartByPart) {
  const test::TemporaryFolder folder;
  const auto path = folder.path() / "spelling.txt";
  std::ofstream(path)
      << "color = colour\n# english\n// a remark\n\ncolor/colors = colour\nno pair\n"
         "# regions\nlợn = thịt heo/bầy heo\n# nowhere\nx = y\n";
  Problems problems;
  const WordingList list = readWordingList(path, problems);
  ASSERT_EQ(list.english.size(), 2U);
  EXPECT_EQ(list.english[1].unused, "colors");
  EXPECT_EQ(list.english[1].used, "colour");
  ASSERT_EQ(list.regions.size(), 1U);
  EXPECT_EQ(list.regions[0].south, (Lines{"thịt heo", "bầy heo"}));
  EXPECT_THAT(told(problems), ElementsAre(HasSubstr(":1:1: a part must be opened"),
                                          HasSubstr(":6:1: a line must be \"unused = used\""),
                                          HasSubstr(":9:1: there is no part \"nowhere\"")));
}

} // namespace
} // namespace talvora::pack
