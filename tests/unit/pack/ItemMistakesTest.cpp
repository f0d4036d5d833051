// What a teacher is told about a mistake in an item: one message, where the mistake is.
#include "pack/ItemSource.h"

#include "pack/ExerciseSource.h"
#include "pack/Told.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using talvora::test::TestFolder;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::vector<std::string> toldOf(std::string_view text, ItemPlace place = ItemPlace::Lesson) {
  Problems problems;
  static_cast<void>(parseItems(text, "f", place, BlankHelp::Own, problems));
  return told(problems);
}

constexpr std::string_view Choice = "item: choice, choose\n\nShe {go}.\n\n";
constexpr std::string_view Fill = "item: fill, none\n\nShe {goes} home.\n\n";

std::vector<std::string> toldOfChoice(const std::string& rest) {
  return toldOf(std::string(Choice) + rest);
}
std::vector<std::string> toldOfFill(const std::string& rest) {
  return toldOf(std::string(Fill) + rest);
}

TEST(ItemMistakes, AnOptionStandsOnce) {
  EXPECT_THAT(toldOfChoice("- go\n+ goes\n- go\n- gone\n"),
              ElementsAre("f:7:3: the item has this option already"));
  EXPECT_THAT(toldOfChoice("- go\n+ goes\n- Go\n- gone\n"),
              ElementsAre("f:1:1: two options differ in their capitals alone"));
  EXPECT_THAT(toldOfChoice("- in may\n+ in May\n- In may\n- In May\n"), ElementsAre())
      << "capitals may be what an item is about";
}

TEST(ItemMistakes, AnExplanationHasItsKeyAndSomeText) {
  EXPECT_THAT(toldOfFill("Xem kỹ chủ ngữ.\n"),
              ElementsAre(StartsWith("f:5:1: this reads like an explanation; \"explain:\"")));
  EXPECT_THAT(toldOfChoice("- go\n+ goes\n- going\n- gone\n\nXem kỹ chủ ngữ.\n"),
              ElementsAre(StartsWith("f:10:1: this reads like an explanation")));
  EXPECT_THAT(toldOf("item: fill, none\n\nChọn từ đúng.\n\nShe {goes} home.\n"), ElementsAre())
      << "a task may stand ahead of the sentence";
  EXPECT_THAT(toldOfFill("explain:\n\nexplain 1:\nx\n"),
              ElementsAre("f:5:1: the general explanation is empty"));
  EXPECT_THAT(toldOfFill("explain:\nx\n\nexplain 1:\n"),
              ElementsAre("f:8:1: explanation 1 is empty"));
  EXPECT_THAT(toldOfFill("explain:\nx\n\nexplain 1\ny\n"),
              ElementsAre("f:8:10: the colon behind \"explain 1\" is missing"));
  EXPECT_THAT(toldOfFill("explain:\nx\n\nexplain 1: y\nz\n"),
              ElementsAre(HasSubstr("f:8:11: an explanation begins on the line below")));
  EXPECT_THAT(toldOfFill("see: Thì đơn\n"), ElementsAre(HasSubstr("stands in an explanation")));
}

TEST(ItemMistakes, AKeyThatIsNearlyRightIsNamed) {
  const auto second = [](const std::string& line) {
    return toldOf("item: fill, none\n" + line + "\n\nShe {goes} home.\n\nexplain:\nx\n");
  };
  EXPECT_THAT(second("hint: go"),
              ElementsAre("f:2:1: \"hint:\" is no key; did you mean \"hints:\"?"));
  EXPECT_THAT(second("Hints: go"),
              ElementsAre("f:2:1: \"Hints:\" is no key; did you mean \"hints:\"?"));
  EXPECT_THAT(second("hints:go"), ElementsAre(HasSubstr("a blank must stand behind \"hints:\"")));
  EXPECT_THAT(second("note:"), ElementsAre(HasSubstr("\"note:\" is no key: there are item, id")));
  EXPECT_THAT(second("She: and he?"), ElementsAre()) << "a line of a dialogue";
  EXPECT_THAT(second("A: And he?"), ElementsAre());
  EXPECT_THAT(toldOfFill("explain:\nx\n\nexplian 1:\ny\n"),
              ElementsAre(HasSubstr("f:8:1: \"explian 1:\" is no key; did you mean \"explain:\"")));
  EXPECT_THAT(toldOfFill("explain:\nx\n\nexplain 1:\ny\nSee: Thì đơn\n"),
              ElementsAre("f:10:1: \"See:\" is no key; did you mean \"see:\"?"));
  EXPECT_THAT(toldOfFill("hints: go\n"), ElementsAre(HasSubstr("stands ahead of the question")));
}

TEST(ItemMistakes, AFirstLineThatCannotBeReadSkipsItsItem) {
  const std::string rest = "\n\nShe ____ go.\n\n- a\n+ b\n- c\n- d\n\nexplain:\nx\n";
  EXPECT_THAT(toldOf("item: choice replace" + rest + "\n" + std::string(Fill)),
              ElementsAre("f:1:13: a comma is missing: \"item: choice, replace\""));
  EXPECT_THAT(
      toldOf(std::string(Fill) + "Item: choice, replace" + rest),
      ElementsAre(HasSubstr("f:5:1: an item begins with \"item: KIND, HEADING\"; did you")));
  EXPECT_THAT(toldOf("item: chioce, replace" + rest),
              ElementsAre(HasSubstr("did you mean \"choice\"?")));
  EXPECT_THAT(toldOf("item: choice, relpace" + rest),
              ElementsAre(testing::AllOf(HasSubstr("did you mean \"replace\"?"),
                                         HasSubstr("choose, after-verb"))));
  EXPECT_THAT(toldOf("text\nand more\n" + std::string(Fill)),
              ElementsAre(StartsWith("f:1:1: an item begins")));
}

TEST(ItemMistakes, ABraceThatIsNotClosedIsNamedWhereItOpens) {
  EXPECT_THAT(toldOf("item: fill, none\nhints: a, b\n\nShe {carried it and {went} home.\n"),
              ElementsAre("f:4:5: this \"{\" is not closed on its line"));
  EXPECT_THAT(toldOf("item: mistake, none\n\n{She {!go} home.\n"),
              ElementsAre("f:3:1: this \"{\" is not closed on its line"));
}

TEST(ItemMistakes, AnswersAreTypable) {
  EXPECT_THAT(toldOf("item: fill, none\n\nShe goes {to|} bed.\n"),
              ElementsAre(HasSubstr("f:3:10: an answer is missing beside the \"|\"")));
  EXPECT_THAT(toldOf("item: fill, none\n\nShe {doesn’t} go.\n"),
              ElementsAre(HasSubstr("use ' for ’")));
  EXPECT_THAT(toldOf("item: fill, none\n\nShe\xC2\xA0goes {to} bed.\n"),
              ElementsAre(HasSubstr("f:3:4: the text font has no byte for U+00A0, the no-break")));
  EXPECT_THAT(toldOf("item: fill, none\n\nShe\tgoes {to} bed.\n"),
              ElementsAre(HasSubstr("U+0009, a tab")));
}

TEST(ItemMistakes, HintsAreCountedWhereTheyStand) {
  EXPECT_THAT(toldOf("item: fill, none\nhints: go; be\n\nShe {goes} and {is}.\n"),
              ElementsAre("f:2:1: there is 1 hint for 2 blanks; commas part the hints"));
  EXPECT_THAT(toldOf("item: fill, none\nhints: go, be\n\nShe {goes}.\n"),
              ElementsAre(HasSubstr("there are 2 hints for 1 blank;")));
}

TEST(ItemMistakes, ATranslationIsMissedOnce) {
  EXPECT_THAT(toldOf("item: order\n\nHe is very good.\nAnh ấy rất tốt.\n"),
              ElementsAre("f:4:1: a translation begins with \"= \""));
  EXPECT_THAT(toldOf("item: order\n\nHe is very good.\nShe is very good.\n= Cô ấy tốt.\n"),
              ElementsAre(StartsWith("f:3:1: this sentence needs a translation")));
}

TEST(ItemMistakes, AnItemMayHaveAnIdAndASubject) {
  Problems problems;
  const std::string text = "item: fill, none\nid: owls-1\nabout: The owl\nhints: be\n\nIt {is}.\n";
  const auto items = parseItems(text, "f", ItemPlace::Bank, BlankHelp::Own, problems);
  EXPECT_THAT(told(problems), ElementsAre());
  ASSERT_EQ(items.size(), 1U);
  EXPECT_EQ(items[0].id, "owls-1");
  EXPECT_EQ(items[0].about.title, "The owl");
  EXPECT_EQ(items[0].where.line, 1);
  EXPECT_EQ(writeItems(items, ItemPlace::Bank), text);
  EXPECT_THAT(toldOf("item: fill, none\nid: The owls\n\nIt {is}.\n"),
              ElementsAre(HasSubstr("f:2:5: an id is made of small letters")));
}

TEST(ItemMistakes, FoldersAndItemsTogether) {
  const TestFolder folder;
  folder.write("lessons/002-items.txt", "item: fill, none\nid: a\n\nShe {goes} home.\n\n"
                                        "item: fill, none\nid: a\nabout: So sánh nhất\n\n"
                                        "she {Goes} home.\n\nexplain 1:\nsee: Thì đôn\n");
  folder.write("lessons/notes/x.txt", "x");
  folder.write("exercises/toeic/1.txt", "x");
  folder.write("exercises/toefl/1.doc", "x");
  folder.write("exercises/.hidden", "x");
  LessonSource lessons;
  Problems problems;
  lessons.lessons[2] = parseLesson("title: Thì đơn\n\nx\n", "l", problems);
  lessons.lessons[3] = parseLesson("title: So sánh hơn nhất\n\nx\n", "l", problems);
  static_cast<void>(readExercises(folder.path(), lessons, problems));
  EXPECT_THAT(told(problems),
              testing::UnorderedElementsAre(
                  HasSubstr("toeic: is the folder of no bank; did you mean \"toefl\"?"),
                  HasSubstr("1.doc: no items are read from it"),
                  HasSubstr("002-items.txt:8:8: no lesson has the title \"So sánh nhất\"; did you "
                            "mean \"So sánh hơn nhất\"?"),
                  HasSubstr("13:6: no lesson has the title \"Thì đôn\"; did you mean \"Thì đơn\"?"),
                  HasSubstr("6:1: the id is taken by the item at"),
                  HasSubstr("6:1: the same item stands at")));
  lessons.lessons[4] = lessons.lessons[3];
  Problems fewer;
  static_cast<void>(readExercises(folder.path(), lessons, fewer));
  EXPECT_EQ(fewer.all().size(), problems.all().size() - 2)
      << "while two lessons share a title, a missing one is not told of";
}

} // namespace
} // namespace talvora::pack
