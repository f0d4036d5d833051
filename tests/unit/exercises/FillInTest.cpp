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
using test::StoredItem;

constexpr Colour Red = 255;
constexpr Colour Blue = 0xFF0000;

ItemStores withALesson(const StoredItem& item) {
  ItemStores stores = bankOf(item);
  stores.lessons = {{12, "Lesson twelve\rbody"}};
  return stores;
}

class FillIn : public testing::Test {
 protected:
  explicit FillIn(const StoredItem& item = {"400She *went___ home.", ""}) : run(withALesson(item)) {
    run.startUnit();
  }

  /// What stands in the blank that begins at a position of the first line of the body.
  [[nodiscard]] std::string cells(int from, int count) const {
    return RDT.TextBetween(from, from + count);
  }

  ItemRun run;
  Surface& RDT = run.controls.RDT;
};

// The heading is empty, so that the body begins at caret 2: "She " and the blank's first cell at 6.

TEST_F(FillIn, ShowsCellsInPlaceOfTheBlankAndTheLinksBelow) {
  EXPECT_EQ(RDT.Text(), "\r\rShe ________ home.\r<Back>    <Next>");
  EXPECT_TRUE(lookAt(RDT, 6).underline);
  EXPECT_TRUE(lookAt(RDT, 13).underline);
  EXPECT_FALSE(lookAt(RDT, 5).underline);
  EXPECT_FALSE(lookAt(RDT, 14).underline);
  EXPECT_EQ(lookAt(RDT, 6).color, 0x393971U);
  EXPECT_EQ(lookAt(RDT, ItemRun::caretOf(RDT, "<Back>")).color, Red);
  EXPECT_EQ(RDT.SelStart(), 7);
  EXPECT_EQ(run.focus(), "RDT");
  EXPECT_THAT(run.form.Caption(), testing::ContainsRegex("    Cau  [0-9]+$"));
}

TEST_F(FillIn, TypingOverwritesCellsAndNeverShiftsTheText) {
  const int length = RDT.TextLength();
  run.type("went");
  EXPECT_EQ(cells(6, 8), "_went___");
  EXPECT_EQ(RDT.SelStart(), 11);
  EXPECT_TRUE(lookAt(RDT, 8).underline);
  run.type("abcdefgh");
  EXPECT_EQ(cells(6, 9), "_wentabc ") << "behind the last cell a key does nothing";
  EXPECT_EQ(RDT.TextLength(), length);
}

TEST_F(FillIn, ABlankTypedIntoACellKeepsTheLength) {
  const int length = RDT.TextLength();
  run.type("we nt");
  EXPECT_EQ(cells(6, 8), "_we nt__");
  EXPECT_EQ(RDT.TextLength(), length);
  run.key(key::Enter);
  EXPECT_EQ(run.item.KetQuaCau, -1) << "an inner blank counts";
}

TEST_F(FillIn, BackspaceEmptiesTheCellBeforeTheCaret) {
  run.type("wx");
  run.key(key::Backspace);
  EXPECT_EQ(cells(6, 8), "_w______");
  EXPECT_EQ(RDT.SelStart(), 8);
}

TEST_F(FillIn, BackspaceAtTheFirstCellAndDeleteDoNothing) {
  const std::string before = RDT.Text();
  RDT.SelStart(6);
  run.key(key::Backspace);
  EXPECT_EQ(RDT.Text(), before);
  run.key(key::Delete);
  EXPECT_EQ(RDT.Text(), before);
  EXPECT_EQ(RDT.SelStart(), 6);
  RDT.SelStart(2);
  run.type("x");
  EXPECT_EQ(RDT.Text(), before) << "plain text takes no key";
}

TEST_F(FillIn, WithASelectionNoKeyDoesAnything) {
  const std::string before = RDT.Text();
  RDT.SelStart(7);
  RDT.SelLength(2);
  run.type("x");
  run.key(key::Backspace);
  run.key(key::Enter);
  EXPECT_EQ(RDT.Text(), before);
  EXPECT_FALSE(run.item.DaCham);
}

TEST_F(FillIn, EnterJudgesOnceInAnyCaseOfLetters) {
  run.type("WENT");
  run.key(key::Enter);
  EXPECT_TRUE(run.item.DaCham);
  EXPECT_EQ(run.item.KetQuaCau, 1);
  EXPECT_EQ(run.exercises.scoring.SoDung, 1);
  EXPECT_EQ(lookAt(RDT, 7).color, Blue);
  EXPECT_EQ(lookAt(RDT, 14).color, 0x750000U);
  const double before = run.number("ViTriCau");
  run.key(key::Enter);
  EXPECT_EQ(run.number("ViTriCau"), before + 1) << "the second Enter moves on";
  EXPECT_FALSE(run.item.DaCham);
}

TEST_F(FillIn, AWrongAnswerIsRedAndTellsItsKey) {
  run.type("goed");
  run.key(key::Enter);
  EXPECT_EQ(run.item.KetQuaCau, -1);
  EXPECT_EQ(run.exercises.scoring.SoDung, 0);
  EXPECT_EQ(lookAt(RDT, 7).color, Red);
  EXPECT_EQ(run.item.OSai.at(1).Chu, "went");
}

TEST_F(FillIn, JudgingLeavesTheCaretWhereItWas) {
  run.type("go");
  const int caret = RDT.SelStart();
  run.key(key::Enter);
  EXPECT_EQ(RDT.SelStart(), caret);
}

TEST_F(FillIn, EscClosesWhatStandsOverTheItemFirst) {
  run.key(key::F2);
  EXPECT_TRUE(run.controls.RDOS.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(run.controls.RDOS.Visible());
  EXPECT_TRUE(RDT.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(RDT.Visible());
  EXPECT_EQ(run.focus(), "RN1");
  EXPECT_EQ(run.form.Caption(), run.state.measures.TieuDeE);
}

TEST_F(FillIn, AClickOnAWordLooksItUp) {
  run.click(RDT, ItemRun::caretOf(RDT, "home") + 2);
  EXPECT_EQ(run.state.word.TuHienTai, "home");
  EXPECT_TRUE(run.controls.RHD.Visible());
}

TEST_F(FillIn, AKeyClosesThePopupAndTypingGoesOn) {
  run.click(RDT, ItemRun::caretOf(RDT, "home") + 2);
  run.key(key::Left);
  EXPECT_FALSE(run.controls.RHD.Visible());
}

class TwoBlanks : public FillIn {
 protected:
  TwoBlanks() : FillIn({"400Then *i went___ and *has gone\\gone\\done___ and *   __ x", ""}) {}

  /// Types into the blank whose first cell is the number-th one of that kind in the text.
  void fill(int number, std::string_view text) {
    RDT.SelStart(run.item.OTrong.at(number).Dau);
    run.type(text);
  }
};

TEST_F(TwoBlanks, EitherOfTwoFormsIsAccepted) {
  fill(1, "i went");
  fill(2, "Has Gone");
  run.key(key::Enter);
  EXPECT_EQ(run.item.KetQuaCau, 1);
}

TEST_F(TwoBlanks, TheSecondFormIsAcceptedAndAThirdNever) {
  fill(1, "i went");
  fill(2, "gone");
  run.key(key::Enter);
  EXPECT_EQ(run.item.KetQuaCau, 1);
  EXPECT_EQ(run.item.OSai.count(), 0);
}

TEST_F(TwoBlanks, AThirdFormIsWrong) {
  fill(1, "i went");
  fill(2, "done");
  run.key(key::Enter);
  EXPECT_EQ(run.item.KetQuaCau, -1);
  EXPECT_EQ(run.item.OSai.at(1).Chu, "has gone\\gone\\done");
}

TEST_F(TwoBlanks, HowManyAreRightIsTold) {
  fill(1, "i went");
  fill(2, "done"); // the third one is right when it is left empty
  run.key(key::Enter);
  EXPECT_EQ(run.machine.narrator.verdicts(), (std::vector<Verdict>{{2, 3}}));
  run.key(key::Right);
  EXPECT_EQ(run.machine.narrator.verdicts().size(), 1U);
}

TEST_F(TwoBlanks, AKeyTypedAsItIsWrittenIsRight) {
  fill(1, "i went");
  fill(2, "has gone\\gone\\done");
  run.key(key::Enter);
  EXPECT_EQ(run.item.KetQuaCau, 1) << "odd, but meant";
}

TEST_F(TwoBlanks, AnEmptyKeyIsRightOnlyWhenLeftEmpty) {
  fill(1, "i went");
  fill(2, "gone");
  fill(3, "a");
  run.key(key::Enter);
  EXPECT_EQ(run.item.KetQuaCau, -1) << "one wrong blank makes the item wrong";
  EXPECT_EQ(run.item.OSai.at(1).Chu, "_______");
}

TEST_F(TwoBlanks, TheModelAnswerWritesThePronounAsACapital) {
  run.key(key::Enter);
  EXPECT_EQ(run.item.ODaLam.at(1).Chu, "_I went___");
}

class ExplainedBlanks : public FillIn {
 protected:
  ExplainedBlanks()
      : FillIn({"400She *went___ home and *sat___ down.",
                "General text^\rOne &blue: black #red. end\r?12\r^"}) {}

  void askAt(int number) { run.rightClick(RDT, run.item.OTrong.at(number).Dau); }

  Surface& RHDBT = run.controls.RHDBT;
};

TEST_F(ExplainedBlanks, BeforeJudgingABlankTellsNothing) {
  askAt(1);
  EXPECT_FALSE(RHDBT.Visible());
  run.click(RDT, run.item.OTrong.at(1).Dau);
  EXPECT_FALSE(RHDBT.Visible());
}

TEST_F(ExplainedBlanks, BeforeJudgingARightClickOnTheTextGivesTheGeneralExplanation) {
  run.rightClick(RDT, ItemRun::caretOf(RDT, "home"));
  EXPECT_TRUE(RHDBT.Visible());
  EXPECT_EQ(RHDBT.Text(), "General text");
  EXPECT_EQ(RHDBT.BackColor(), 0x750000U);
  EXPECT_FALSE(run.state.word.ChoGiai);
}

TEST_F(ExplainedBlanks, AfterJudgingABlankTellsItsAnswerAndItsExplanation) {
  run.key(key::Enter);
  run.click(RDT, run.item.OTrong.at(1).Dau);
  EXPECT_TRUE(RHDBT.Visible());
  EXPECT_THAT(RHDBT.Text(), testing::StartsWith("One blue: black red. end\r"));
  EXPECT_EQ(RDT.TextBetween(6, 14), "_went___");
  EXPECT_TRUE(lookAt(RDT, 7).bold);
  EXPECT_EQ(lookAt(RDT, 7).color, Blue);
}

TEST_F(ExplainedBlanks, ABlankWithoutAnExplanationTakesTheFirstOnes) {
  run.key(key::Enter);
  askAt(2);
  EXPECT_THAT(RHDBT.Text(), testing::StartsWith("One blue"));
}

TEST_F(ExplainedBlanks, TheNextPressTakesTheBoldOffAndKeepsTheModelAnswer) {
  run.type("x");
  run.key(key::Enter);
  run.click(RDT, run.item.OTrong.at(1).Dau);
  RDT.pressMouse(MouseButton::Left, shift::None, RDT.pointOf(3));
  EXPECT_FALSE(lookAt(RDT, 7).bold);
  EXPECT_EQ(RDT.TextBetween(6, 14), "_went___");
  EXPECT_EQ(run.item.ChuCu, "");
}

TEST_F(ExplainedBlanks, AnyKeyClosesTheBox) {
  run.key(key::Enter);
  run.click(RDT, run.item.OTrong.at(1).Dau);
  run.key(key::Right);
  EXPECT_FALSE(RHDBT.Visible());
  EXPECT_FALSE(run.controls.Rnen2.Visible());
}

TEST_F(ExplainedBlanks, EscClosesTheBoxAndStaysInTheItem) {
  run.key(key::Enter);
  run.click(RDT, run.item.OTrong.at(1).Dau);
  run.key(key::Esc);
  EXPECT_FALSE(RHDBT.Visible());
  EXPECT_TRUE(RDT.Visible());
}

TEST_F(ExplainedBlanks, AfterJudgingALetterOpensTheLookUpList) {
  run.key(key::Enter);
  run.type("s");
  EXPECT_TRUE(run.controls.RTD.Visible());
}

class Hinted : public FillIn {
 protected:
  Hinted() : FillIn({"400|go, be\rShe *goes___ home, it *is___ late.", ""}) {}

  Surface& RDOS = run.controls.RDOS;
};

TEST_F(Hinted, TheHintOfTheFirstBlankShowsWhenTheItemOpens) {
  EXPECT_EQ(run.item.LoaiBT, ItemKind::FillInHints);
  EXPECT_TRUE(RDOS.Visible());
  EXPECT_EQ(RDOS.Text(), "ÐiÈn däng ðúng cûa  go  vào chÕ trÓng."_bytes);
}

TEST_F(Hinted, TheHintFollowsTheCaret) {
  run.click(RDT, run.item.OTrong.at(2).Dau);
  EXPECT_EQ(RDOS.Text(), "ÐiÈn däng ðúng cûa  be  vào chÕ trÓng."_bytes);
  EXPECT_FALSE(run.controls.RHDBT.Visible());
  run.key(key::Right);
  EXPECT_THAT(RDOS.Text(), testing::HasSubstr(" be "));
}

TEST_F(Hinted, EscHidesTheHintAndItsReleaseBringsNoneSoThatTheItemCanBeLeft) {
  run.key(key::Esc);
  EXPECT_FALSE(RDOS.Visible());
  EXPECT_TRUE(RDT.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(RDT.Visible());
}

TEST_F(Hinted, BeforeJudgingARightClickOnABlankExplainsNothing) {
  run.rightClick(RDT, run.item.OTrong.at(1).Dau);
  EXPECT_FALSE(run.controls.RHDBT.Visible());
}

TEST_F(Hinted, JudgingTakesTheHintAway) {
  run.key(key::Enter);
  EXPECT_FALSE(RDOS.Visible());
  run.key(key::Right);
  EXPECT_FALSE(RDOS.Visible());
}

TEST_F(Hinted, AFarPointerTakesTheHintAwayAndTheCaretStays) {
  run.type("g");
  const int caret = RDT.SelStart();
  RDT.moveMouse(shift::None, {1, 1});
  RDT.moveMouse(shift::None, {8000, 5000});
  EXPECT_FALSE(RDOS.Visible());
  EXPECT_EQ(RDT.SelStart(), caret);
}

class Byte188 : public FillIn {
 protected:
  Byte188() : FillIn({"400A *go\xBC home *x", ""}) {}
};

TEST_F(Byte188, EndsAKeyLikeASingleRoomMark) {
  EXPECT_EQ(run.item.OTrong.at(1).Cuoi - run.item.OTrong.at(1).Dau + 1, 5) << "*go and two cells";
  run.type("go");
  run.key(key::Enter);
  EXPECT_EQ(run.item.OSai.count(), 1) << "only the blank without an end is wrong";
}

} // namespace
} // namespace talvora
