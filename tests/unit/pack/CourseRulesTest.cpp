// Each rule of the course on content that keeps it and content that does not.
#include "pack/CourseRules.h"

#include "pack/CourseReport.h"
#include "pack/StreamText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::size_t testA = 4;
constexpr std::size_t tense = 2;
constexpr std::size_t toeflVocabulary = 7;

/// A course made of sources, in which a rule is tried.
class CourseRules : public testing::Test {
 protected:
  void addLesson(int slot, std::string_view text) {
    lessons.lessons[slot] = parseLesson(text, "l", problems);
  }
  void addBank(std::size_t bank, std::string_view text) {
    exercises.banks[bank] = parseItems(text, "b", ItemPlace::Bank, BlankHelp::Own, problems);
  }
  void addItems(int slot, std::string_view text) {
    exercises.lessons[slot] = parseItems(text, "i", ItemPlace::Lesson, BlankHelp::Own, problems);
  }

  std::vector<std::string> found(RuleReport (*rule)(const Course&)) {
    const auto items = courseItemsOf(exercises);
    for (const Problem& problem : problems.all())
      ADD_FAILURE() << describe(problem);
    std::vector<std::string> all;
    for (const Problem& problem : rule({lessons, exercises, items, words}).found)
      all.push_back(describe(problem));
    return all;
  }

  Problems problems;
  LessonSource lessons;
  ExerciseSource exercises;
  WordList words{100};
};

/// Choices with the right answers at the positions of "ABCD".
std::string choicesAt(std::string_view positions, std::string_view heading = "replace") {
  std::string text;
  int number = 0;
  for (const char position : positions) {
    text += "item: choice, " + std::string(heading) + "\n\nHe _____ " +
            std::string(static_cast<std::size_t>(++number), 'x') + ".\n\n";
    for (const char option : std::string_view("ABCD")) {
      text += (option == position ? "+ " : "- ") + std::string(1, option) + "\n";
    }
    text += "\n";
  }
  return text;
}

TEST_F(CourseRules, EveryItemIsExplained) {
  addBank(testA, "item: fill, none\n\nShe {goes} to {} bed.\n\nexplain:\nx\n\nexplain 1:\ny\n\n"
                 "item: choice, choose\n\nShe {go}.\n\n- a\n+ b\n- c\n- d\n\nexplain 2:\nx\n");
  addBank(tense, "item: fill, none\n\nShe {went} home.\n\nexplain:\nx\n");
  EXPECT_THAT(found(explanationsAreThere),
              ElementsAre("b:1:1: explanation 2 is missing",
                          HasSubstr("b:11:1: the general explanation"), HasSubstr("explanation 1"),
                          HasSubstr("explanation 3"), HasSubstr("explanation 4")))
      << "the program explains the blanks of the tense bank";
}

TEST_F(CourseRules, ReasonsAndTerms) {
  addLesson(2, "title: Thì đơn\n\nV3 (quá khứ phân từ) là gì.\n");
  addBank(testA, "item: fill, none\n\nShe {goes} {to} {} bed.\n\nexplain:\nx\n\n"
                 "explain 1:\nPhần này đúng: chủ ngữ.\n\n"
                 "explain 2:\nPhần này đúng: sau go dùng giới từ to.\n\n"
                 "explain 3:\nCần phân từ hai, luôn luôn.\n");
  EXPECT_THAT(found(reasonsAreGiven), ElementsAre(HasSubstr("b:9:1:")));
  EXPECT_THAT(found(termsAreOfTheList),
              ElementsAre("b:15:1: \"phân từ hai\" is called \"V3\" in this course"));
  EXPECT_THAT(found(absoluteWords), ElementsAre("b:15:1: Cần phân từ hai, luôn luôn."));
  addLesson(3, "title: Thì khác\n\nDùng dạng thứ ba.\n");
  EXPECT_EQ(found(termsAreOfTheList).size(), 2U);
}

TEST_F(CourseRules, ALinkLeadsToALessonWithTheWord) {
  addLesson(2, "title: Giới từ\n\n> She listens to music.\n");
  const std::string rest = "\n\nShe {goes} home.\n\nexplain 1:\nDùng *listening*.\nsee: Giới từ\n\n"
                           "item: fill, none\n";
  addBank(testA, "item: fill, none" + rest +
                     "about: Giới từ\n\nHe {dreams} of it.\n\n"
                     "explain 1:\nDùng *dream*.\nsee: Giới từ\n\n"
                     "item: fill, none\n\nI {dream} of it.\n\nexplain 1:\n"
                     "Dùng *dream*.\nsee: Giới từ\n");
  EXPECT_THAT(found(linksTeachTheirPoint), ElementsAre(HasSubstr("b:24:6: no red word")))
      << "the first has the word, the second says with about: that the lesson fits";
}

TEST_F(CourseRules, SentencesAreNotRepeated) {
  addLesson(2, "title: Thì đơn\n\n> Water boils at one hundred degrees.\n"
               "The sun rises in the east. >> Mặt trời mọc ở đằng đông.\n");
  addBank(testA,
          "item: fill, none\n\nMy old aunt {waters} her plants on Monday.\n\n"
          "item: choice, replace\n\nThe sun _____ in the east.\n\n- rise\n+ rises\n- a\n- b\n");
  addItems(2, "item: fill, none\n\nToday my old aunt {waters} her garden.\n\n"
              "item: mistake, none\n\nMy old aunt {waters} her {!plants} today.\n");
  EXPECT_THAT(found(sentencesDiffer), ElementsAre(HasSubstr("i:5:1: six words in a row")))
      << "five words may be the same";
  EXPECT_THAT(found(sentencesDifferFromExamples),
              ElementsAre(HasSubstr("b:5:1: \"the sun rises in the ...\"")));
}

TEST_F(CourseRules, SentencesHaveTheLengthOfTheirBank) {
  addBank(testA, "item: fill, none\n\nShe {goes}.\n\nitem: fill, none\n\nShe {goes} to bed.\n");
  EXPECT_THAT(found(lengthsFit), ElementsAre("b:1:1: 2 words; here 4 to 14 are usual"));
}

TEST_F(CourseRules, WordsAreInTheDictionaryAndNotWorn) {
  addBank(testA, "item: fill, none\n\nZung takes {the} zeppelin to the bus.\n\n"
                 "item: fill, none\n\nThe bus {is} late.\n");
  const auto unknown = found(wordsAreInTheDictionary);
  ASSERT_EQ(unknown.size(), 1U);
  EXPECT_THAT(unknown.front(), HasSubstr("zeppelin"));
  EXPECT_THAT(unknown.front(), testing::Not(HasSubstr("zung"))) << "a name needs no entry";
  EXPECT_THAT(found(wornWordsAreRare),
              ElementsAre("test-a: \"bus\" stands in 2 items; 1 are enough"));
}

TEST_F(CourseRules, RightAnswersStandEverywhere) {
  addBank(testA, choicesAt("ABCDABCDABCD"));
  EXPECT_THAT(found(positionsAreEven), IsEmpty());
  EXPECT_THAT(found(positionsDoNotRun), IsEmpty());
  addBank(testA, choicesAt("AAABCDBCDAAA"));
  EXPECT_THAT(found(positionsAreEven),
              ElementsAre("test-a: A is right in 6 of 12 choices",
                          "test-a, unit 1: A is right in 6 of 12 choices"));
  EXPECT_THAT(found(positionsDoNotRun),
              ElementsAre(HasSubstr("position 1"), HasSubstr("position 1")));
}

TEST_F(CourseRules, TheLongestOptionIsNoCue) {
  std::string even;
  std::string longest;
  for (int number = 0; number < 10; ++number) {
    const std::string stem = "item: choice, replace\n\nHe _____ " +
                             std::string(static_cast<std::size_t>(number) + 1, 'x') + ".\n\n";
    even += stem + "+ go\n- goes\n- went\n- gone\n\n";
    longest += stem + "+ has gone\n- goes\n- went\n- gone\n\n";
  }
  addBank(testA, even);
  EXPECT_THAT(found(longestIsNoCue), IsEmpty());
  addBank(testA, longest);
  EXPECT_THAT(found(longestIsNoCue),
              ElementsAre("test-a: the longest option is right in 10 of 10 choices"));
}

TEST_F(CourseRules, TheBluePhraseIsRightInSome) {
  const auto items = [](int right) {
    std::string text;
    for (int number = 0; number < 10; ++number) {
      text += "item: choice, choose\n\nHe {" + std::string(number < right ? "goes" : "go") + "} " +
              std::string(static_cast<std::size_t>(number) + 1, 'x') +
              ".\n\n- go\n+ goes\n- went\n- gone\n\n";
    }
    return text;
  };
  addBank(testA, items(2));
  EXPECT_THAT(found(bluePhraseIsNoCue), IsEmpty());
  addBank(testA, items(0));
  EXPECT_THAT(found(bluePhraseIsNoCue),
              ElementsAre("test-a: the blue phrase is right in 0 of 10 choices that have one"));
  addBank(testA, items(5));
  EXPECT_EQ(found(bluePhraseIsNoCue).size(), 1U);
  addBank(testA, "");
  addBank(toeflVocabulary, items(0));
  EXPECT_THAT(found(bluePhraseIsNoCue), IsEmpty()) << "a synonym is never the word itself";
}

TEST_F(CourseRules, ShortFormsAreAccepted) {
  const auto problem = [&](const std::string& line) {
    addBank(testA, "item: fill, none\n\n" + line + "\n");
    return found(shortFormsAreAccepted).size();
  };
  EXPECT_EQ(problem("She {is} late."), 1U);
  EXPECT_EQ(problem("She {is|'s} late."), 0U);
  EXPECT_EQ(problem("We {will go} home."), 1U);
  EXPECT_EQ(problem("There {is} a bus."), 1U);
  EXPECT_EQ(problem("Yes, she {is}."), 0U) << "at the end the full form stands";
  EXPECT_EQ(problem("She {has} a bus."), 0U) << "have is the verb itself";
  EXPECT_EQ(problem("She {has} never gone."), 1U);
  EXPECT_EQ(problem("What would you {have done} then?"), 0U);
  EXPECT_EQ(problem("{Would} you {have gone} there?"), 0U);
  EXPECT_EQ(problem("Mai {is} late."), 0U);
  EXPECT_EQ(problem("We {aren't going|are not going} home."), 1U) << "or we're not going";
  EXPECT_EQ(problem("Mai {isn't|is not} late."), 0U);
}

TEST_F(CourseRules, HintsAreKept) {
  const auto problem = [&](const std::string& hints, const std::string& lines) {
    addBank(testA, "item: fill, none\nhints: " + hints + "\n\n" + lines + "\n");
    return found(hintsAreKept).size();
  };
  EXPECT_EQ(problem("meet", "She {had never met} him."), 1U);
  EXPECT_EQ(problem("never meet", "She {had never met} him."), 0U);
  EXPECT_EQ(problem("not meet", "She {met} him."), 1U);
  EXPECT_EQ(problem("not meet", "She {didn't meet|did not meet} him."), 0U);
  EXPECT_EQ(problem("meet", "Điền cả never.\nShe {had never met} him."), 0U);
  EXPECT_EQ(problem("have", "No, he {hasn't|has not}, but he may."), 0U);
}

TEST_F(CourseRules, LessonsAndBanksBelongTogether) {
  addLesson(2, "title: Một\n\nx\n");
  addLesson(3, "title: Hai\n\nx\n");
  addItems(2, "item: fill, none\n\nShe {goes} home.\n");
  addItems(3, "item: fill, none\n\nHe {goes} out.\n");
  addLesson(4, "title: Luyện: một và hai\n\nx\n");
  addItems(4, "item: fill, none\n\nIt {goes} down.\n");
  addBank(testA, "item: fill, none\nabout: Một\n\nIt {goes} up.\n\n"
                 "item: fill, none\n\nThey {go} in.\n");
  EXPECT_THAT(found(lessonsArePractised),
              ElementsAre("lesson 3: no item of a bank leads to \"Hai\""));
  EXPECT_THAT(found(itemsHaveALesson), ElementsAre(HasSubstr("b:6:1: no explanation leads")));
  EXPECT_THAT(found(unitsHaveTheirKinds),
              ElementsAre(HasSubstr("test-a, unit 1: fill 2, choice 0, mistake 0; planned are 6")));
  const std::string report = courseReport(exercises, lessons, words);
  EXPECT_THAT(report, HasSubstr("  test-a                     2         2         0"));
  EXPECT_THAT(report, HasSubstr("Lessons without an item in a bank: 1\n  lesson 3: no item"));
}

TEST_F(CourseRules, TooManyExceptionsAreErrorsAndTheOthersAreTold) {
  const RuleReport some{"a rule", {{{"f", 1, 1}, "x"}, {{"f", 2, 1}, "y"}}, 2};
  RuleReport tooMany = some;
  tooMany.allowed = 1;
  EXPECT_EQ(settleRules({some}, false, problems), "warning: a rule: 2 places\n");
  EXPECT_EQ(settleRules({some}, true, problems),
            "warning: a rule: 2 places\n  f:1:1: x\n  f:2:1: y\n");
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(settleRules({tooMany}, false, problems), "");
  EXPECT_EQ(problems.all().size(), 3U) << "the places and the rule";
}

} // namespace
} // namespace talvora::pack
