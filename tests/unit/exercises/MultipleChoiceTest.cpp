#include "exercises/ItemRun.h"
#include "text/Bytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::bankOf;
using test::ItemRun;
using test::ItemStores;
using test::lookAt;

constexpr Colour Grey = 0x80000003;
constexpr Colour Blue = 0xFF0000;

class MultipleChoice : public testing::Test {
 protected:
  MultipleChoice() : run(contents()) { run.startUnit(); }

  static ItemStores contents() {
    return bankOf({"111She *has gone_ home _____ now\r+goes\r+go\r+went\r+gone\rc\r",
                   "General^\rabout goes^^\rabout went"});
  }

  void clickLabel(char letter) {
    run.click(RABCD, ItemRun::caretOf(RABCD, std::string("(") + letter + ")") + 1);
  }
  [[nodiscard]] Colour colourOf(std::string_view option) const {
    return lookAt(RABCD, ItemRun::caretOf(RABCD, option)).color;
  }

  ItemRun run;
  Surface& RABCD = run.controls.RABCD;
};

TEST_F(MultipleChoice, ShowsStemOptionsAndLinks) {
  EXPECT_EQ(RABCD.Text(),
            std::string("Hãy chön câu ðúng:"_bytes) +
                "\r\rShe  has gone  home _____ now\r\r(a)\tgoes\r\r(b)\tgo\r\r(c)\twent\r\r"
                "(d)\tgone\r\r<Back>    <Next>");
  EXPECT_EQ(colourOf("has gone"), Blue);
  EXPECT_EQ(colourOf("She"), 0x750000U);
  EXPECT_EQ(colourOf("(b)\tgo"), Blue);
  EXPECT_EQ(run.item.DapAnDung, 3) << "the key may be a small letter";
  EXPECT_EQ(run.focus(), "RABCD");
}

TEST_F(MultipleChoice, TheRightLabelGreysTheOthersAndCounts) {
  clickLabel('c');
  EXPECT_EQ(run.item.KetQuaCau, 1);
  EXPECT_EQ(run.exercises.scoring.SoDung, 1);
  EXPECT_EQ(colourOf("goes\r"), Grey);
  EXPECT_EQ(colourOf("go\r"), Grey);
  EXPECT_EQ(colourOf("gone\r"), Grey);
  const int right = ItemRun::caretOf(RABCD, "went\r");
  EXPECT_EQ(lookAt(RABCD, right).color, Blue);
  EXPECT_TRUE(lookAt(RABCD, right).bold);
  clickLabel('c');
  EXPECT_EQ(run.exercises.scoring.SoDung, 1) << "it counts once";
  EXPECT_TRUE(RABCD.Visible()) << "stepping stays with the learner";
}

TEST_F(MultipleChoice, AWrongLabelGreysAndSpendsTheItem) {
  clickLabel('a');
  EXPECT_EQ(run.item.KetQuaCau, -1);
  EXPECT_EQ(colourOf("goes\r"), Grey);
  EXPECT_EQ(colourOf("go\r"), Blue);
  clickLabel('c');
  EXPECT_EQ(run.item.KetQuaCau, -1);
  EXPECT_EQ(run.exercises.scoring.SoDung, 0);
  EXPECT_EQ(colourOf("gone\r"), Grey) << "the right one is shown all the same";
}

TEST_F(MultipleChoice, TheVerdictIsToldAtEveryLabel) {
  clickLabel('a');
  clickLabel('c');
  EXPECT_EQ(run.machine.narrator.verdicts(), (std::vector<Verdict>{{0, 1}, {1, 1}}));
}

TEST_F(MultipleChoice, TheTextOfTheRightOptionDoesNotJudge) {
  run.click(RABCD, ItemRun::caretOf(RABCD, "went\r") + 2);
  EXPECT_EQ(run.item.KetQuaCau, 0);
  EXPECT_EQ(run.state.word.TuHienTai, "went");
  EXPECT_TRUE(run.controls.RHD.Visible());
}

TEST_F(MultipleChoice, TheHeadingAndTheGapsBetweenOptionsDoNothing) {
  run.click(RABCD, 3);
  EXPECT_FALSE(run.controls.RHD.Visible());
  EXPECT_EQ(run.item.KetQuaCau, 0);
}

TEST_F(MultipleChoice, ARightClickExplainsItsOption) {
  run.rightClick(RABCD, ItemRun::caretOf(RABCD, "(a)") + 1);
  EXPECT_EQ(run.controls.RHDBT.Text(), "about goes");
  EXPECT_EQ(run.item.KetQuaCau, 0);
  run.rightClick(RABCD, ItemRun::caretOf(RABCD, "went\r"));
  EXPECT_EQ(run.controls.RHDBT.Text(), "about went");
}

TEST_F(MultipleChoice, AnOptionWithoutASectionAndTheStemGiveTheGeneralExplanation) {
  for (const char* place : {"(b)", "(d)", "home"}) {
    run.rightClick(RABCD, ItemRun::caretOf(RABCD, place) + 1);
    EXPECT_EQ(run.controls.RHDBT.Text(), "General") << place;
    run.exercises.box.DongGiai();
  }
  run.rightClick(RABCD, 3);
  EXPECT_FALSE(run.controls.RHDBT.Visible());
}

TEST_F(MultipleChoice, AnyKeyClosesTheBox) {
  run.rightClick(RABCD, ItemRun::caretOf(RABCD, "(a)") + 1);
  run.key(key::Down);
  EXPECT_FALSE(run.controls.RHDBT.Visible());
}

TEST_F(MultipleChoice, EscClosesTheBoxAndThenLeaves) {
  run.rightClick(RABCD, ItemRun::caretOf(RABCD, "(a)") + 1);
  run.key(key::Esc);
  EXPECT_FALSE(run.controls.RHDBT.Visible());
  EXPECT_TRUE(RABCD.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(RABCD.Visible());
  EXPECT_EQ(run.focus(), "RN1");
}

TEST_F(MultipleChoice, NothingCanBeTypedAndEnterDoesNothing) {
  const std::string before = RABCD.Text();
  run.type("7");
  run.key(key::Enter);
  run.key(key::Backspace);
  run.key(key::Delete);
  EXPECT_EQ(RABCD.Text(), before);
  EXPECT_EQ(run.number("ViTriCau"), 1);
  run.type("w");
  EXPECT_TRUE(run.controls.RTD.Visible());
}

TEST_F(MultipleChoice, ClosingTheLookUpListGivesTheFocusBack) {
  RABCD.SelStart(40);
  run.type("w");
  EXPECT_EQ(run.focus(), "RTD");
  run.key(key::Esc);
  run.key(key::Esc);
  EXPECT_FALSE(run.controls.RTD.Visible());
  EXPECT_EQ(run.focus(), "RABCD");
  EXPECT_EQ(RABCD.SelStart(), 40);
}

TEST_F(MultipleChoice, TheLinksStep) {
  run.click(RABCD, ItemRun::caretOf(RABCD, "<Next>") + 2);
  EXPECT_EQ(run.number("ViTriCau"), 2);
  run.click(RABCD, ItemRun::caretOf(RABCD, "<Back>") + 2);
  EXPECT_EQ(run.number("ViTriCau"), 2) << "the first Back shows the item again";
}

TEST(MultipleChoiceBounds, DamagedTailsDoNoHarm) {
  for (const char* question :
       {"111", "111\r+", "111x\r+a", "111*", "111*1_\r+a\r+b\r+c\r+d\rZ\r"}) {
    ItemRun run(bankOf({question, ""}));
    run.startUnit();
    run.clickEverywhere(run.controls.RABCD);
    EXPECT_TRUE(run.controls.RABCD.Visible()) << question;
  }
}

} // namespace
} // namespace talvora
