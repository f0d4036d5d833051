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

class FindTheMistake : public testing::Test {
 protected:
  FindTheMistake() : run(contents()) { run.startUnit(); }

  static ItemStores contents() {
    return bankOf({"212She*go_to *school_ *every day_ home.\r+\rA\r", "General^\rgoes^\rfine"});
  }

  [[nodiscard]] int at(std::string_view text) const { return ItemRun::caretOf(Rsai, text); }

  ItemRun run;
  Surface& Rsai = run.controls.Rsai;
};

TEST_F(FindTheMistake, ShowsUnderlinedPhrasesWithoutTheirMarks) {
  EXPECT_EQ(Rsai.Text(), std::string("Hãy chön chÕ sai trong câu sau ðây:"_bytes) +
                             "\r\rShe go to  school   every day  home.\r\r<Back>    <Next>");
  EXPECT_TRUE(lookAt(Rsai, at("go to")).underline);
  EXPECT_EQ(lookAt(Rsai, at("school")).color, 0xFF0000U);
  EXPECT_FALSE(lookAt(Rsai, at("home")).underline);
}

TEST_F(FindTheMistake, TheWrongPhraseIsTheAnswer) {
  run.click(Rsai, at("go to"));
  EXPECT_EQ(run.item.KetQuaCau, 1);
  EXPECT_EQ(run.exercises.scoring.SoDung, 1);
  EXPECT_TRUE(lookAt(Rsai, at("go to")).bold);
  EXPECT_EQ(lookAt(Rsai, at("go to")).color, 255U);
  run.click(Rsai, at("go to"));
  EXPECT_EQ(run.exercises.scoring.SoDung, 1);
}

TEST_F(FindTheMistake, AnotherPhraseSpendsTheItem) {
  run.click(Rsai, at("school") + 2);
  EXPECT_EQ(run.item.KetQuaCau, -1);
  EXPECT_TRUE(lookAt(Rsai, at("school")).bold);
  EXPECT_EQ(lookAt(Rsai, at("school")).color, 0xFF0000U);
  run.click(Rsai, at("go to"));
  EXPECT_EQ(run.item.KetQuaCau, -1) << "a second click counts nothing";
  EXPECT_EQ(run.exercises.scoring.SoDung, 0);
  EXPECT_FALSE(lookAt(Rsai, at("school")).bold) << "the next press takes the bold off";
  EXPECT_TRUE(lookAt(Rsai, at("go to")).bold);
}

TEST_F(FindTheMistake, TheVerdictIsToldButNotWithAnExplanation) {
  run.click(Rsai, at("school") + 2);
  run.click(Rsai, at("go to"));
  run.rightClick(Rsai, at("go to"));
  EXPECT_EQ(run.machine.narrator.verdicts(), (std::vector<Verdict>{{0, 1}, {1, 1}}));
}

TEST_F(FindTheMistake, JustBehindTheWrongPhraseCountsAsRight) {
  run.click(Rsai, at("go to") + 3);
  EXPECT_EQ(run.item.KetQuaCau, 1);
}

TEST_F(FindTheMistake, OpensWithTheCaretBehindTheFirstCellOfThePhrase) {
  EXPECT_EQ(Rsai.SelStart(), at("go to"));
}

TEST_F(FindTheMistake, AnyKeyClosesTheBox) {
  run.rightClick(Rsai, at("go to"));
  run.key(key::Right);
  EXPECT_FALSE(run.controls.RHDBT.Visible());
  EXPECT_FALSE(run.controls.Rnen2.Visible());
}

TEST_F(FindTheMistake, TheHeadingDoesNothing) {
  run.click(Rsai, 3);
  EXPECT_EQ(run.item.KetQuaCau, 0);
  EXPECT_FALSE(run.controls.RHD.Visible());
}

TEST_F(FindTheMistake, PlainTextIsLookedUp) {
  run.click(Rsai, at("home") + 2);
  EXPECT_EQ(run.state.word.TuHienTai, "home");
  EXPECT_EQ(run.item.KetQuaCau, 0);
}

TEST_F(FindTheMistake, ARightClickExplainsWithoutCounting) {
  run.rightClick(Rsai, at("go to"));
  EXPECT_EQ(run.controls.RHDBT.Text(), "goes");
  EXPECT_EQ(run.item.KetQuaCau, 0);
  EXPECT_TRUE(run.item.DaCham);
  EXPECT_TRUE(lookAt(Rsai, at("go to")).bold);
  run.exercises.box.DongGiai();
  run.rightClick(Rsai, at("every") + 1);
  EXPECT_EQ(run.controls.RHDBT.Text(), "General");
}

TEST_F(FindTheMistake, AFarPointerEndsTheDisplay) {
  run.rightClick(Rsai, at("go to"));
  const SurfacePoint click = run.state.word.ViTriChuot;
  const int reach = run.state.measures.Phan12;
  Rsai.moveMouse(shift::None, {click.x + reach, click.y});
  EXPECT_TRUE(run.controls.RHDBT.Visible());
  Rsai.moveMouse(shift::None, {click.x + reach + 1, click.y});
  EXPECT_FALSE(run.controls.RHDBT.Visible());
  EXPECT_FALSE(lookAt(Rsai, at("go to")).bold);
}

TEST(MistakeBounds, DamagedRecordsDoNoHarm) {
  for (const char* question :
       {"212", "212*", "212a*b\r+\rA\r", "212*a_ b\r+\rZ\r", "212x\r+\r!\r"}) {
    ItemRun run(bankOf({question, ""}));
    run.startUnit();
    run.clickEverywhere(run.controls.Rsai);
    EXPECT_TRUE(run.controls.Rsai.Visible()) << question;
  }
}

} // namespace
} // namespace talvora
