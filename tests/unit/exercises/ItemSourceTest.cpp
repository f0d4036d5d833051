#include "pack/ItemSource.h"

#include "formats/Integers.h"
#include "pack/ExerciseStore.h"
#include "pack/ItemHeadings.h"
#include "pack/StreamText.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace talvora::pack {
namespace {

using talvora::test::TestFolder;

std::vector<std::string> problemsOf(std::string_view text, ItemPlace place = ItemPlace::Bank,
                                    BlankHelp help = BlankHelp::Own) {
  Problems problems;
  static_cast<void>(parseItems(text, "f", place, help, problems));
  std::vector<std::string> all;
  for (const Problem& problem : problems.all())
    all.push_back(describe(problem));
  return all;
}

Item itemOf(std::string_view text, ItemPlace place = ItemPlace::Bank) {
  Problems problems;
  const auto items = parseItems(text, "f", place, BlankHelp::Own, problems);
  for (const Problem& problem : problems.all())
    ADD_FAILURE() << describe(problem);
  EXPECT_EQ(writeItems(items, place), text);
  return items.empty() ? Item() : items.front();
}

/// The two records of an item, alone in the first bank.
std::pair<std::string, std::string> recordsOf(const Item& item, const LessonSource& lessons = {}) {
  ExerciseSource source;
  source.banks[0] = {item};
  const auto files = compileExercises(source, lessons);
  const std::size_t total = files[0].bytes.size() / 8;
  const auto record = [&](std::size_t number) {
    return storedUntil(files[1].bytes, integerAt(files[0].bytes, number), '@').value_or("none");
  };
  return {record(1), record(total + 1)};
}

TEST(ItemSource, AFillItemIsStoredWithItsBlanks) {
  const Item item = itemOf("item: fill, articles\nhints: go, be, late\n\n"
                           "She {went|has gone} home.\n\nIt {}______ is {late}_ now.\n"
                           "\nexplain:\nGeneral.\n\nexplain 2:\nWhy *so*?\n");
  EXPECT_EQ(item.hints.size(), 3U);
  EXPECT_EQ(recordsOf(item).first,
            "402|go,be,late\rShe *went\\has gone___ home.\r\rIt *______ is *late_ now.");
  EXPECT_EQ(recordsOf(item).second, "General.^^\rWhy #so?#");
}

TEST(ItemSource, WithoutHintsAllBlanksAreOfOneWidth) {
  const auto stored = [](const std::string& line) {
    return recordsOf(itemOf("item: fill, none\n\n" + line + "\n")).first.substr(3);
  };
  EXPECT_EQ(stored("He goes {to} bed, {} home and {in|during} town."),
            "He goes *to__________ bed, *____________ home and *in\\during___ town.");
  EXPECT_EQ(stored("I go {} home."), "I go *_________ home.") << "an empty blank looks like any";
  EXPECT_EQ(stored("{since}"), "*since____");
  EXPECT_EQ(stored("{A}_____ dog, {an}____ owl, {}______ birds."),
            "*A_____ dog, *an____ owl, *______ birds.")
      << "room written by hand is kept";
  EXPECT_EQ(stored("{A}_____ dog, {an}__ owl."), "*A_____ dog, *an____ owl.");
  const Item hinted = itemOf("item: fill, none\nhints: to, be\n\nA {to} b {is} c.\n");
  EXPECT_EQ(recordsOf(hinted).first, "400|to,be\rA *to___ b *is___ c.") << "hints tell the word";
}

TEST(ItemSource, AChoiceIsStoredWithItsOptionsAndKey) {
  const Item item = itemOf("item: choice, choose\n\nShe {has gone} home, \"{fast}\" now.\n\n"
                           "- goes\n- go\n+ went\n- gone\n");
  EXPECT_EQ(recordsOf(item).first,
            "111She*has gone_home, \"*fast_\" now.\r+goes\r+go\r+went\r+gone\rC\r");
  EXPECT_EQ(recordsOf(item).second, "");
}

TEST(ItemSource, AMistakeIsStoredWithItsKey) {
  const Item item = itemOf("item: mistake, mistake\n\n{She} go to {school} {!every day}.\n");
  EXPECT_EQ(recordsOf(item).first, "212*She_ go to*school_ *every day_.\r+\rC\r");
}

TEST(ItemSource, AnOrderingItemHasNumberedAlikeSentencesAndTranslations) {
  const Item item = itemOf("item: order\n\nHe is very good.\n= Anh tốt.\nShe is not very good.\n"
                           "= Cô không tốt.\n",
                           ItemPlace::Lesson);
  EXPECT_EQ(recordsOf(item).first, "300_He is very good. _She is not very good.");
  EXPECT_EQ(recordsOf(item).second, "_" + ownText("Anh tốt.") + "_" + ownText("Cô không tốt."));
}

TEST(ItemSource, ReferencesBecomeNumbersThatEndTheirLine) {
  LessonSource lessons;
  lessons.lessons[12].title = "Twelve";
  const Item item = itemOf("item: fill, none\n\nA {b} and {c}.\n\nexplain 1:\nsee: Twelve\n\n"
                           "explain 2:\nx\nsee: Twelve\ny\n");
  EXPECT_EQ(recordsOf(item, lessons).second, "^\r?12\r^\rx\r?12\ry");
}

TEST(ItemSource, TheSameHeadingNameMeansOtherCodesInLessons) {
  const Item item = itemOf("item: fill, past-simple\n\nA {b}.\n", ItemPlace::Lesson);
  EXPECT_EQ(item.heading, 8);
  EXPECT_EQ(headingCode("past-simple", ItemPlace::Bank), std::nullopt);
  EXPECT_EQ(headingCode("past-simple-or-continuous", ItemPlace::Bank), 6);
  EXPECT_EQ(headingName(12, ItemPlace::Lesson), "after-verb");
  EXPECT_EQ(headingName(14, ItemPlace::Bank), "none");
}

TEST(ItemSource, ProblemsOfTheFirstLines) {
  using testing::ElementsAre;
  EXPECT_THAT(problemsOf("text\n"),
              ElementsAre("f:1:1: an item begins with \"item: KIND, HEADING\""));
  EXPECT_THAT(problemsOf("item: quiz, none\n\nA {b}.\n"),
              ElementsAre(testing::HasSubstr("f:1:7: the kind must be")));
  EXPECT_THAT(problemsOf("item: fill, nonsense\n\nA {b}.\n"),
              ElementsAre(testing::HasSubstr("f:1:12: a bank has no heading")));
  EXPECT_THAT(problemsOf("item: fill\n\nA {b}.\n"),
              ElementsAre(testing::HasSubstr("the heading is missing")));
  EXPECT_THAT(problemsOf("item: fill, none\nhints: go\n\nA {b} {c}.\n"),
              ElementsAre(testing::HasSubstr("f:2:1: there is 1 hint for 2 blanks")));
}

TEST(ItemSource, ProblemsOfBlanks) {
  const auto problem = [](const std::string& line) {
    const auto all = problemsOf("item: fill, none\n\n" + line + "\n");
    return all.empty() ? std::string() : all.front();
  };
  EXPECT_THAT(problem("ê {open"), testing::HasSubstr("f:3:3: this \"{\" is not closed"));
  EXPECT_THAT(problem("a {b}{c}"), testing::HasSubstr("f:3:6: something must stand between"));
  EXPECT_THAT(problem("a {b|c|d}"), testing::HasSubstr("at most two answers"));
  EXPECT_THAT(problem("a {đi}"), testing::HasSubstr("plain English letters"));
  EXPECT_THAT(problem("a {b  c}"), testing::HasSubstr("a blank stands behind"));
  EXPECT_THAT(problem("a _ {b}"), testing::HasSubstr("\"_\" stands only"));
  EXPECT_THAT(problem("a *b* {c}"), testing::HasSubstr("f:3:3:"));
  EXPECT_THAT(problem("+ a {c}"), testing::HasSubstr("cannot begin with \"+\""));
  EXPECT_THAT(problem("no blank"), testing::HasSubstr("at least one blank"));
}

TEST(ItemSource, ProblemsOfChoices) {
  const auto problems = [](const std::string& rest) {
    return problemsOf("item: choice, choose\n\n" + rest);
  };
  using testing::Contains;
  using testing::HasSubstr;
  EXPECT_THAT(problems("a\n\n- a\n+ b\n- c\n"), Contains(HasSubstr("four options")));
  EXPECT_THAT(problems("a\n\n- a\n- b\n- c\n- d\n"), Contains(HasSubstr("is missing")));
  EXPECT_THAT(problems("a\n\n+ a\n+ b\n- c\n- d\n"), Contains(HasSubstr("a right option already")));
  EXPECT_THAT(problems("- a\n+ b\n- c\n- d\n"), Contains(HasSubstr("the stem is missing")));
  EXPECT_THAT(problems("a\n\n- a\n+ b\n- c\n- d\nmore\n"),
              Contains(HasSubstr("behind the options")));
  EXPECT_THAT(problems("{in 10 days} x\n\n- a\n+ b\n- c\n- d\n"), Contains(HasSubstr("no digits")));
  EXPECT_THAT(problems("x{a} y\n\n- a\n+ b\n- c\n- d\n"), Contains(HasSubstr("touch a letter")));
  EXPECT_THAT(problems("{a} and ___\n\n- a\n+ b\n- c\n- d\n"),
              Contains(HasSubstr("either a phrase")));
}

TEST(ItemSource, ProblemsOfMistakesAndSentences) {
  using testing::Contains;
  using testing::HasSubstr;
  EXPECT_THAT(problemsOf("item: mistake, mistake\n\n{a} b {c}.\n"),
              Contains(HasSubstr("exactly one phrase")));
  EXPECT_THAT(problemsOf("item: mistake, mistake\n\n{!a} b.\n"), Contains(HasSubstr("two to six")));
  EXPECT_THAT(problemsOf("item: order\n\nToo few words.\n= Ít.\n", ItemPlace::Lesson),
              Contains(HasSubstr("at least four words")));
  EXPECT_THAT(problemsOf("item: order\n\nHe is very good.\n= Anh tốt.\n", ItemPlace::Bank),
              Contains(HasSubstr("belongs among a lesson's items")));
  EXPECT_THAT(problemsOf("item: order\n\nHe is very good.\n", ItemPlace::Lesson),
              Contains(HasSubstr("needs a translation")));
  EXPECT_THAT(problemsOf("item: order\n\n= Anh.\n", ItemPlace::Lesson),
              Contains(HasSubstr("has no sentence")));
  EXPECT_THAT(problemsOf("item: order\n\nHe is very good.\n= \n", ItemPlace::Lesson),
              Contains(HasSubstr("f:4:3: a text is missing here")));
}

TEST(ItemSource, ProblemsOfExplanations) {
  const auto problems = [](const std::string& rest, BlankHelp help = BlankHelp::Own) {
    return problemsOf("item: fill, none\n\nA {b}.\n\n" + rest, ItemPlace::Bank, help);
  };
  using testing::Contains;
  using testing::HasSubstr;
  EXPECT_THAT(problems("explain 2:\nx\n"), Contains(HasSubstr("only 1 to explain")));
  EXPECT_THAT(problems("explain 1:\nx\n\nexplain 1:\ny\n"), Contains(HasSubstr("rising order")));
  EXPECT_THAT(problems("explain 1:\nx\n\nexplain:\ny\n"), Contains(HasSubstr("rising order")));
  EXPECT_THAT(problems("explain x:\nx\n"), Contains(HasSubstr("must read")));
  EXPECT_THAT(problems("explain 1:\n"), Contains(HasSubstr("explanation 1 is empty")));
  EXPECT_THAT(problems("explain 1:\nx\n> \n"),
              Contains(HasSubstr("f:7:1: a text is missing here")));
  EXPECT_THAT(problems("explain:\nsee: Here\n"), Contains(HasSubstr("cannot lead to lessons")));
  EXPECT_THAT(problems("explain:\n*red* x\n"), Contains(HasSubstr("no colours")));
  EXPECT_THAT(problems("explain 1:\nx\n", BlankHelp::VerbLessons),
              Contains(HasSubstr("lessons 2 to 69")));
  EXPECT_THAT(problems("explain:\nx\n", BlankHelp::VerbLessons), testing::IsEmpty());
}

TEST(ExerciseFolders, AreCheckedAgainstTheLessons) {
  const TestFolder folder;
  folder.write("exercises/toefl/1.txt", "item: fill, none\n\nA {b}.\n\nexplain 1:\nsee: Nowhere\n");
  folder.write("lessons/002-items.txt", "item: fill, none\n\nC {d}.\n");
  Problems problems;
  const ExerciseSource source = readExercises(folder.path(), {}, problems);
  std::vector<std::string> all;
  for (const Problem& problem : problems.all())
    all.push_back(describe(problem));
  EXPECT_THAT(all, testing::UnorderedElementsAre(
                       testing::HasSubstr("at least 25 items and this one has 1"),
                       testing::HasSubstr("slot 2 has no lesson"),
                       testing::HasSubstr("1.txt:6:6: no lesson has the title \"Nowhere\"")));
  EXPECT_EQ(source.lessonsWithItems(), std::set<int>{2});
}

TEST(ExerciseStore, CountsSectionsSoThatTheProgramFindsItsItems) {
  Problems problems;
  ExerciseSource source;
  source.banks[1] = parseItems("item: fill, none\n\nA {b}.\n\nitem: fill, none\n\nC {d}.\n", "f",
                               ItemPlace::Bank, BlankHelp::Own, problems);
  source.lessons[3] =
      parseItems("item: fill, none\n\nE {f}.\n", "f", ItemPlace::Lesson, BlankHelp::Own, problems);
  const auto files = compileExercises(source, {});
  const std::string& counts = files[2].bytes;
  EXPECT_EQ(files[2].name, "data.Muc");
  EXPECT_EQ(counts.size(), 732U);
  EXPECT_EQ(counts[0], 1) << "a bank's count is never 0";
  EXPECT_EQ(counts[2], 2);
  EXPECT_EQ(counts[2 * (8 + 3)], 1);
  EXPECT_EQ(counts[2 * (8 + 4)], 0) << "a lesson without items has none";
  EXPECT_EQ(files[0].bytes.size(), 4U * 2 * (366 + 1));
  EXPECT_EQ(storedUntil(files[1].bytes, integerAt(files[0].bytes, 3), '@'), "400C *d________.");
  const ExerciseSource back =
      decodeExercises({files[0].bytes, files[1].bytes, counts}, {}, problems);
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(writeItems(back.banks[1], ItemPlace::Bank),
            "item: fill, none\n\nA {b}________.\n\nitem: fill, none\n\nC {d}________.\n");
  EXPECT_EQ(back.lessons.size(), 1U);
  EXPECT_TRUE(back.banks[0].empty());
}

TEST(ExerciseStore, RoomIsNeverStoredAsOneByteForTwoMarks) {
  const Item item = itemOf("item: fill, none\n\nA {b}____.\n");
  ExerciseSource source;
  source.banks[0] = {item};
  const auto files = compileExercises(source, {});
  EXPECT_EQ(files[1].bytes.find(static_cast<char>(188 ^ 0xC0)), std::string::npos);
}

TEST(ExerciseStore, ADamagedStoreIsReportedByItem) {
  Problems problems;
  static_cast<void>(decodeExercises({"", "", ""}, {}, problems));
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_EQ(describe(problems.all().front()), "data.vbt: item 1 is missing");
}

} // namespace
} // namespace talvora::pack
