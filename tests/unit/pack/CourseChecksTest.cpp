// The rules of texts and drills: each is shown to fail.
#include "pack/CourseChecks.h"

#include "pack/DrillChecks.h"
#include "pack/GuideTextCheck.h"
#include "pack/KeySentences.h"
#include "pack/OptionProblems.h"
#include "pack/PlanChecks.h"
#include "pack/StreamText.h"
#include "pack/TextChecks.h"
#include "pack/Told.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using test::TestFolder;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> problemsOf(const std::string& text, TextUse use = TextUse::Reading) {
  Problems problems;
  checkText(text, "t", use, {"second hand", "o'clock"}, problems);
  return told(problems);
}

// -- Texts.

TEST(TextChecks, FindASecondSentenceOnALine) {
  EXPECT_THAT(problemsOf("title: A\n\nI am here. You are not.\n= x.\n"),
              ElementsAre(HasSubstr("t:3:12: a second sentence")));
  EXPECT_THAT(problemsOf("“Come in.” Then she left.\n= x.\n"),
              ElementsAre(HasSubstr("t:1:16: a second sentence")));
  EXPECT_THAT(problemsOf("“Where are you? I am here,” she said.\n= x? x.\n"), ElementsAre())
      << "what somebody says stays together";
  EXPECT_THAT(problemsOf("“How much?” Lan asked.\n= Một? Hai.\n"), ElementsAre());
}

TEST(TextChecks, FindASentenceWithoutItsPoint) {
  EXPECT_THAT(problemsOf("It rains\n= x.\n"), ElementsAre(HasSubstr("t:1:9: the sentence has no")));
  EXPECT_THAT(problemsOf("He said, “It rains.”\n= x.\n"), ElementsAre());
  EXPECT_THAT(problemsOf("It rains.\n= x\n"),
              ElementsAre(HasSubstr("t:2:4: the translation has no closing point")));
}

TEST(TextChecks, FindAQuotationMarkThatStandsForTheOther) {
  EXPECT_THAT(problemsOf("”Come in,” she said.\n= “Mời vào,“ cô nói.\n"),
              ElementsAre("t:1:1: a quotation opens with “ and closes with ”", HasSubstr("t:2:")));
  EXPECT_THAT(problemsOf("She said, ”Come in.”\n= Cô bảo: “Mời vào.”\n"),
              ElementsAre(HasSubstr("t:1:11: a quotation opens")));
}

TEST(TextChecks, HoldATranslationToItsSentence) {
  EXPECT_THAT(problemsOf("Is it Monday?\n= Hôm nay thứ Ba.\n"),
              ElementsAre(HasSubstr("t:2:1: the sentence asks"),
                          HasSubstr("t:2:1: the translation has no \"thứ Hai\"")));
  EXPECT_THAT(problemsOf("Go.\n= Đi nhé?\n"), ElementsAre(HasSubstr("the translation asks")));
  EXPECT_THAT(problemsOf("“On Mondays?”\n= “Thứ Hai à?”\n"), ElementsAre());
  EXPECT_THAT(problemsOf("They have two cats.\n= Họ có ba con mèo.\n"),
              ElementsAre("t:2:1: \"two\" is not in the translation"));
  EXPECT_THAT(problemsOf("He saw the the cat.\n= Anh ấy thấy con mèo.\n"),
              ElementsAre("t:2:1: \"the\" stands twice in a row"));
}

TEST(TextChecks, FindAHyphenThatNoEntryExplains) {
  EXPECT_THAT(problemsOf("He sent an e-mail.\n= x.\n"),
              ElementsAre(HasSubstr("t:1:12: \"e-mail\"")));
  EXPECT_THAT(problemsOf("A second-hand car is thirty-five years old.\n= Ba mươi lăm tuổi.\n"),
              ElementsAre());
}

TEST(TextChecks, HoldATextToSpeakToShortLinesThatCanBeSpoken) {
  const auto spoken = [](const std::string& text) { return problemsOf(text, TextUse::Speaking); };
  EXPECT_THAT(spoken("Yes; it is.\n= x.\n"), ElementsAre(HasSubstr("t:1:4: a mark")));
  EXPECT_THAT(spoken("Say “ah”.\n= x.\n"),
              ElementsAre(HasSubstr("t:1:5: a mark"), HasSubstr("a mark")));
  EXPECT_THAT(spoken("Room 12 is free.\n= x.\n"), ElementsAre(HasSubstr("t:1:6: numbers")));
  EXPECT_THAT(spoken("a b c d e f g h i j k l m.\n= x.\n"),
              ElementsAre(HasSubstr("t:1:1: the line has 13 words")));
  EXPECT_THAT(spoken("Are you here?\n= x?\nYes.\n= x.\n"),
              ElementsAre(HasSubstr("t: somebody asks here")));
  EXPECT_THAT(spoken("Are you here?\n= x?\n\nYes.\n= x.\n"), ElementsAre());
}

TEST(StreamText, TellsOfACapitalThatTheFontShowsSmall) {
  Problems problems;
  EXPECT_EQ(sourceText("ĐỌC", {"t", 1, 1}, "", problems), *streamText("ĐC"));
  EXPECT_THAT(told(problems), ElementsAre(HasSubstr("t:1:2: the text font has no capital \"Ọ\"")));
}

// -- Key sentences.

TEST(KeySentences, ReturnInTwoOtherTexts) {
  // Without one a text has no turns, and is no conversation.
  const std::string answer = "\nNo.\n= x.\n";
  const auto check = [&](const std::string& third) {
    Problems problems;
    const std::string note = checkKeySentences(
        {{"a", "// key: Is it far?\ntitle: A\n\nIs it far?\n= x?\n" + answer, true},
         {"b", "title: B\n\nExcuse me, is it far?\n= x?\n" + answer, true},
         {"c", "title: C\n\n" + third + "\n= x.\n" + answer, true},
         {"d", "title: Is it far?\n\nIt's far.\n= Is it far?\n", false},
         {"e", "title: E\n\nI live here.\n= x.\nIt is far.\n= x.\n", true}},
        problems);
    auto lines = told(problems);
    lines.push_back(note);
    return lines;
  };
  EXPECT_THAT(check("Is it far from here?"), ElementsAre(""));
  EXPECT_THAT(check("Is it so far?"),
              ElementsAre("a:1:1: the key sentence \"Is it far?\" returns in 1 other texts; it "
                          "should in 2",
                          "speaking texts: 1 of 3 conversations have no key sentence"));
}

TEST(KeySentences, StandInTheTextThatDeclaresThem) {
  Problems problems;
  static_cast<void>(
      checkKeySentences({{"a", "// key: Is it near?\ntitle: A\n\nIt is.\n", true}}, problems));
  EXPECT_THAT(told(problems), ElementsAre(HasSubstr("a:1:1: the key sentence \"Is it near?\" "
                                                    "stands nowhere in its text")));
}

// -- Budgets.

void writeTree(const TestFolder& folder, const std::string& budget) {
  folder.write("plan.txt", "4-6 story A1 3-9 3-6 1 " + budget + "\n");
  folder.write("reading/004-old.txt", "title: Old\n\nThe boat was old.\n= Thuyền cũ.\n");
  folder.write("reading/005-new.txt", "title: New\n\nThe old boat was a house.\n= Nhà.\n");
}

TEST(PlanChecks, ReportASeriesThatHoldsItsBudgetAndCountOneThatAims) {
  TestFolder folder;
  writeTree(folder, "holds");
  Problems problems;
  EXPECT_THAT(checkBudgets(readPlanner(folder.path(), problems), "reading", problems),
              ElementsAre());
  EXPECT_THAT(
      told(problems),
      ElementsAre("reading: text 4: 4 new lemmas instead of at most 1",
                  HasSubstr("text 4: new and only once in its text: the, boat, was, old"),
                  HasSubstr("text 4: 0.0 % of the words known at first sight instead of 97"),
                  HasSubstr("text 5: 2 new lemmas"), HasSubstr("once in its text: a, house"),
                  HasSubstr("text 5: 66.7 % of the words known")));
  writeTree(folder, "aims");
  Problems none;
  EXPECT_THAT(checkBudgets(readPlanner(folder.path(), none), "reading", none),
              ElementsAre("reading texts 4 to 6: of 2 are outside a budget that they aim at 2 by "
                          "\"new\", 2 by \"twice\", 2 by \"known\""));
  EXPECT_TRUE(none.none());
}

TEST(PlanChecks, HoldASeriesToTheBudgetsThatItNames) {
  TestFolder folder;
  writeTree(folder, "sentence,known");
  Problems problems;
  EXPECT_THAT(checkBudgets(readPlanner(folder.path(), problems), "reading", problems),
              ElementsAre(HasSubstr("2 by \"new\", 2 by \"twice\"")));
  EXPECT_THAT(told(problems), ElementsAre(HasSubstr("text 4: 0.0 % of the words known"),
                                          HasSubstr("text 5: 66.7 % of the words known")));
}

TEST(PlanChecks, TellWhatDoesNotReturnAndWhichTextIsTooLong) {
  TestFolder folder;
  folder.write("plan.txt", "4-7 topic A1 1-3 1-2 9 holds\n");
  folder.write("reading/004-a.txt", "title: A\n\nThe boat is old.\n= x\nThe boat is old.\n= x\n");
  for (const std::string slot : {"5", "6", "7"})
    folder.write("reading/00" + slot + "-b.txt", "title: B\n\nThe boat.\n= x\n");
  Problems problems;
  const Planner planner = readPlanner(folder.path(), problems);
  std::vector<std::string> lines;
  for (const OverBudget& each : overBudget(planner, 4))
    lines.push_back(each.line);
  EXPECT_THAT(lines,
              ElementsAre("8 words instead of 1 to 3", "4.0 words a sentence instead of 1 to 2",
                          "brought here and not returned in time: is, old",
                          HasSubstr("50.0 % of the words known")));
}

TEST(PlanChecks, TellOfOpenSlotsBetweenTexts) {
  ReadingSource texts;
  texts.texts[1] = {};
  texts.texts[4] = {};
  EXPECT_EQ(openSlotNote("texts", texts, 4), "texts: 2 open slots stand between texts");
  EXPECT_EQ(
      openSlotNote("texts", texts, 6),
      "texts: 2 open slots stand between texts; the 2 open slots at the end have no heading of "
      "their own");
  texts.texts[2] = texts.texts[3] = {};
  texts.headings[5] = "Sắp có";
  EXPECT_EQ(openSlotNote("texts", texts, 6), "");
}

// -- Listening options.

TEST(DrillChecks, HoldOptionsToOneLength) {
  const ListeningUnit items = {
      itemOf("Tom is ill today, isn't he?", "He is not at school today.",
             {"He is fine.", "He is at school with us.", "He is going to school now."})};
  EXPECT_THAT(optionProblems(3, items), ElementsAre(HasSubstr("u:1:1: the options differ")));
  EXPECT_THAT(optionProblems(1, items),
              ElementsAre("listening unit 1: 1 item has options of unlike length"));
}

TEST(DrillChecks, AllowTheHeardSentenceInAThirdOfTheKeys) {
  const ListeningUnit items = {
      itemOf("It is ten.", "It is ten.", {"It is two.", "It is six.", "It is one."})};
  EXPECT_THAT(optionProblems(3, items), ElementsAre(HasSubstr("1 of 1 keys are the heard")));
  EXPECT_THAT(optionProblems(2, items), ElementsAre(HasSubstr("1 of 1 keys are the heard")));
}

TEST(DrillChecks, DoNotLetLengthGiveTheKeyAway) {
  const ListeningUnit items(
      20, itemOf("It is ten.", "It is late.", {"It is one", "It is two", "It is six"}));
  EXPECT_THAT(optionProblems(3, items), ElementsAre(HasSubstr("longest option in 100 % of 20")));
}

// -- Analyses.

TEST(DrillChecks, CutOnePhraseAStretch) {
  const auto entry = [](const std::string& word, const std::string& wordClass, bool linked) {
    AnalysisEntry made{{word, ownText(wordClass)}, {}, {"a", 1, 1}};
    if (linked) made.lessons = {3};
    return made;
  };
  AnalysisSource source;
  source.analyses[3] = {entry("and asks", "liên từ + động từ", true),
                        entry("I try", "chủ ngữ + động từ thường", true),
                        entry("do you use", "trợ động từ + chủ ngữ + động từ", true),
                        entry("is making", "động từ to be + động từ thêm ing", false),
                        entry("am also learning", "động từ ở thì hiện tại tiếp diễn", true),
                        entry("only", "trạng từ", true),
                        entry("My book", "cụm danh từ: tính từ sở hữu + danh từ", true)};
  Problems problems;
  checkCutting(source, "a", problems);
  EXPECT_THAT(told(problems),
              ElementsAre(HasSubstr("\"and asks\" is more than one phrase"), HasSubstr("\"I try\""),
                          HasSubstr("\"do you use\""), HasSubstr("\"am also learning\""),
                          HasSubstr("a/03.txt: 6 of 7 stretches lead to a lesson")));
}

// -- All together.

TEST(CourseChecks, KeepEveryRuleInTheCourse) {
  Problems problems;
  const auto notes = checkTextsAndDrills(TALVORA_CONTENT, problems);
  EXPECT_THAT(told(problems), ElementsAre());
  for (const std::string& note : notes)
    EXPECT_THAT(note, HasSubstr(": "));
}

/// The line of a heading with eighteen letters, with its star and line end.
constexpr std::string_view headingAhead = "*eighteen letters..\r";

/// A title of so many letters, the ones ahead of it, then two paragraphs.
std::vector<std::string> guideMistakes(const std::string& title, const std::string& ahead,
                                       const std::string& practice,
                                       std::string_view lineAhead = headingAhead) {
  Problems problems;
  checkGuideText(title + "\n\n" + ahead + "\n= Dịch.\n\n" + practice + "\n= Dịch.\n", "002-x.txt",
                 lineAhead, problems);
  return told(problems);
}

std::string marked(std::string_view mark, const std::string& what) {
  return std::string(mark) + "\n" + what;
}

const std::string greyedTitle = marked(GreyedMark, "title: " + std::string(25, 't'));
const std::string practice = marked(PracticeMark, "The boat is here.");

TEST(GuideTextCheck, HoldsThePracticeSentencesToTheirPlace) {
  EXPECT_THAT(guideMistakes(greyedTitle, std::string(672, 'a'), practice), testing::IsEmpty());
  EXPECT_THAT(guideMistakes(greyedTitle, std::string(900, 'a'), practice), testing::IsEmpty());
  EXPECT_THAT(guideMistakes(greyedTitle, std::string(660, 'a'), practice),
              ElementsAre(HasSubstr("the practice paragraph takes the characters 689 to 708")));
  EXPECT_THAT(guideMistakes(greyedTitle, std::string(960, 'a'), practice),
              testing::Contains(HasSubstr("the practice paragraph takes the characters 989 to")));
}

/// A practice paragraph with one of words behind it.
std::string withWords(const std::string& words) {
  return practice + "\n= Dịch.\n\n" + marked(WordsMark, words);
}

TEST(GuideTextCheck, HoldsTheWordsBehindThem) {
  const std::string ahead(930, 'a');
  EXPECT_THAT(guideMistakes(greyedTitle, ahead, withWords("Look up a bank.")),
              ElementsAre(HasSubstr("the mark names no word")));
  const auto mistakes = [&](const std::string& lead) {
    const std::string mark = std::string(WordsMark) + " light\n" + lead + "light, bank.";
    return guideMistakes(greyedTitle, ahead, practice + "\n= Dịch.\n\n" + mark);
  };
  EXPECT_THAT(mistakes("Look these up: "), testing::IsEmpty());
  EXPECT_THAT(mistakes(""),
              ElementsAre(HasSubstr("from \"light\" on, takes the characters 981 to")));
  EXPECT_THAT(mistakes(std::string(150, 'b') + " "), ElementsAre(HasSubstr("and 1142")));
}

TEST(GuideTextCheck, HoldsTheGreyedTitleToItsPlaceInTheList) {
  const std::string ahead(680, 'a');
  EXPECT_THAT(guideMistakes(marked(GreyedMark, "title: " + std::string(24, 't')), ahead, practice),
              ElementsAre(HasSubstr("takes the characters 20 to 46")));
  EXPECT_THAT(guideMistakes(greyedTitle, ahead, practice, "*seventeen letter.\r"),
              ElementsAre(HasSubstr("takes the characters 19 to 46")));
}

TEST(GuideTextCheck, AsksForTheMarksWhereTheTextReachesThatFar) {
  EXPECT_THAT(guideMistakes("title: Guide", "short", "The boat is here."), testing::IsEmpty());
  EXPECT_THAT(guideMistakes("title: Guide", std::string(700, 'a'), "The boat is here."),
              ElementsAre(HasSubstr("\"// place: practice\" is missing"),
                          HasSubstr("\"// place: greyed\" is missing ahead of the title")));
  EXPECT_THAT(guideMistakes(greyedTitle, std::string(900, 'a'),
                            practice + "\n= Dịch.\n\n" + std::string(60, 'b')),
              ElementsAre(HasSubstr("\"// place: words\" is missing")));
}

} // namespace
} // namespace talvora::pack
