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

using Spans = std::vector<ExplanationSpan>;

TEST(ExplanationMarkup, ARedSpanEndsAtABlankAPointACommaOrALineEnd) {
  for (const char end : {' ', '.', ',', '\r'}) {
    const ExplanationText shown = layOutExplanation(std::string("\r#go") + end + "x");
    EXPECT_EQ(shown.text, std::string("go") + end + "x");
    EXPECT_EQ(shown.red, (Spans{{0, 2}}));
  }
}

TEST(ExplanationMarkup, ASpanThatItsOwnMarkClosesLosesACharacter) {
  EXPECT_EQ(layOutExplanation("\r#go?# x").red, (Spans{{0, 2}}));
  EXPECT_EQ(layOutExplanation("\r#g# x").red, Spans{}) << "a length of 0 means none";
  EXPECT_EQ(layOutExplanation("\r&abc& x").blue, (Spans{{0, 2}}));
}

TEST(ExplanationMarkup, ABlueSpanEndsAtAColonOrALineEnd) {
  EXPECT_EQ(layOutExplanation("\r&a b: c").blue, (Spans{{0, 3}}));
  EXPECT_EQ(layOutExplanation("\r&a b\rc").blue, (Spans{{0, 3}}));
}

TEST(ExplanationMarkup, ALinkReachesToItsLineEndAndIgnoresAmpersands) {
  const ExplanationText shown = layOutExplanation("\rsee\r`A & b: c\rx");
  EXPECT_EQ(shown.text, "see\rA b: c\rx");
  EXPECT_EQ(shown.links, (Spans{{4, 6}}));
  EXPECT_TRUE(shown.blue.empty());
}

TEST(ExplanationMarkup, AMarkClosesASpanOfAnotherKindAtItsFullLength) {
  const ExplanationText shown = layOutExplanation("\r&ab#cd &ef\r");
  EXPECT_EQ(shown.blue, (Spans{{0, 2}, {5, 2}}));
  EXPECT_EQ(shown.red, (Spans{{2, 2}}));
}

TEST(ExplanationMarkup, TheFirstCharacterAndSuperfluousBlanksAreDropped) {
  EXPECT_EQ(layOutExplanation("\r a  b ( c ) d ").text, "a b (c) d");
  EXPECT_EQ(layOutExplanation("").text, "");
  EXPECT_EQ(layOutExplanation("x").text, "");
}

TEST(ExplanationMarkup, AtMost300SpansOfAKindAreKept) {
  std::string text = "\r";
  for (int word = 0; word < 400; ++word)
    text += "#a ";
  EXPECT_EQ(layOutExplanation(text).red.size(), 300U);
}

class Explanation : public testing::Test {
 protected:
  Explanation() : run(contents()) {
    run.startUnit();
    run.controls.RDOS.Visible(false);
    run.key(key::Enter);
  }

  static ItemStores contents() {
    ItemStores stores = bankOf({"400She *went___ home.", "General^\rRead this\r?12\r?300\r?999\r"});
    stores.lessons = {{12, ".Present simple\rThe lesson."}, {357, "Last\r"}};
    return stores;
  }

  void explainAt(SurfacePoint pointer, const std::string& text) {
    run.state.atHand.pointAt(pointer);
    run.exercises.box.HienLoiGiai(text, RDT);
  }
  void openBox() { run.click(RDT, run.item.OTrong.at(1).Dau); }

  ItemRun run;
  Surface& RDT = run.controls.RDT;
  Surface& RHDBT = run.controls.RHDBT;
};

TEST_F(Explanation, ALinkOpensItsLessonOverTheExerciseAndEscComesBack) {
  openBox();
  EXPECT_THAT(RHDBT.Text(), testing::HasSubstr("NhÍp chuÖt ðÇ xem:\rPresent simple\r"_bytes));
  const std::string text = run.state.text.CauHoi;
  const int link = ItemRun::caretOf(RHDBT, "Present simple");
  EXPECT_EQ(lookAt(RHDBT, link).color, 0xFF0000U);
  run.click(RHDBT, link + 3);
  EXPECT_TRUE(run.controls.RVP2.Visible());
  EXPECT_TRUE(run.controls.Frame3.Visible());
  EXPECT_THAT(run.controls.RVP2.Text(), testing::StartsWith("Present simple\rThe lesson."));
  EXPECT_TRUE(RDT.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(run.controls.RVP2.Visible());
  EXPECT_FALSE(run.controls.Frame3.Visible());
  EXPECT_TRUE(RHDBT.Visible());
  EXPECT_EQ(run.focus(), "RHDBT");
  EXPECT_EQ(run.state.text.CauHoi, text);
  run.key(key::Esc);
  EXPECT_FALSE(RHDBT.Visible());
  EXPECT_TRUE(RDT.Visible());
  EXPECT_EQ(run.focus(), "RDT");
}

TEST_F(Explanation, ATitleOfNoLessonOpensNothing) {
  run.item.OTrong.setText(1, "\r`No such lesson\rschool");
  openBox();
  EXPECT_EQ(run.number("SoLienKet"), 1);
  run.click(RHDBT, ItemRun::caretOf(RHDBT, "such"));
  EXPECT_FALSE(run.controls.RVP2.Visible());
}

TEST_F(Explanation, AWordOfTheBoxIsLookedUp) {
  run.item.OTrong.setText(1, "\rgo to school now");
  openBox();
  run.click(RHDBT, ItemRun::caretOf(RHDBT, "school") + 2);
  EXPECT_EQ(run.state.word.TuHienTai, "school");
  EXPECT_TRUE(run.controls.RHD.Visible());
  EXPECT_TRUE(RHDBT.Visible());
}

TEST_F(Explanation, AReferenceOutsideTheListIsNoLink) {
  openBox();
  EXPECT_EQ(run.number("SoLienKet"), 2);
  EXPECT_THAT(RHDBT.Text(), testing::HasSubstr("999"));
}

TEST_F(Explanation, TitlesAreFoundExactly) {
  EXPECT_EQ(run.exercises.box.TimBaiHoc("Present simple"), 12);
  EXPECT_EQ(run.exercises.box.TimBaiHoc("Present simple\r"), 12);
  EXPECT_EQ(run.exercises.box.TimBaiHoc("Last"), 357);
  EXPECT_EQ(run.exercises.box.TimBaiHoc("present simple"), 0);
}

TEST_F(Explanation, TwelveLinesGetTheirHeightAndThirteenGetTen) {
  const int line = run.form.TextHeight("AAAA");
  const int frame = run.form.TextWidth(" ") + run.form.TextWidth("  ");
  for (const auto& [lines, shown] : {std::pair{3, 3}, {12, 12}, {13, 10}, {40, 10}}) {
    std::string text = "\rx";
    for (int more = 1; more < lines; ++more)
      text += "\rx";
    explainAt({3000, 100}, text);
    EXPECT_EQ(RHDBT.Height(), shown * line + frame) << lines;
    run.exercises.box.DongGiai();
  }
}

TEST_F(Explanation, APointerInTheUpperHalfPutsTheBoxBelowIt) {
  explainAt({3000, 1000}, "\rshort");
  // A twelfth of the screen's width less its third: 1,280 - 426.67.
  ASSERT_EQ(run.state.measures.Phan12, 1280);
  EXPECT_EQ(RHDBT.Top(), 1000 + 853 + run.state.measures.LeTrenBai);
}

TEST_F(Explanation, ABlankThatIsExplainedLikeTheItemGetsItsDarkPanel) {
  run.exercises.item.GiaiChung = "\rsame";
  explainAt({3000, 1000}, "\rsame");
  EXPECT_EQ(RHDBT.BackColor(), 0x750000U);
}

TEST_F(Explanation, APointerInTheLowerHalfPutsTheBoxAboveIt) {
  const int y = run.state.measures.CaoBai - 1000;
  explainAt({3000, y}, "\rshort");
  EXPECT_LT(RHDBT.Top(), y);
  EXPECT_LE(RHDBT.Top() + RHDBT.Height(), y + run.state.measures.Phan12);
}

TEST_F(Explanation, ThePlateStandsAroundTheBox) {
  explainAt({3000, 1000}, "\rshort");
  const Surface& Rnen2 = run.controls.Rnen2;
  EXPECT_TRUE(Rnen2.Visible());
  EXPECT_EQ(Rnen2.BackColor(), 255U);
  EXPECT_LT(Rnen2.Left(), RHDBT.Left());
  EXPECT_LT(Rnen2.Top(), RHDBT.Top());
  EXPECT_GT(Rnen2.Width(), RHDBT.Width());
  EXPECT_GT(Rnen2.Height(), RHDBT.Height());
}

TEST_F(Explanation, TheGeneralOneIsADarkPanelInTheMiddle) {
  explainAt({3000, 1000}, "");
  EXPECT_EQ(RHDBT.Text(), "General");
  EXPECT_EQ(lookAt(RHDBT, 0).color, 0xFFFFC0U);
  EXPECT_EQ(RHDBT.BackColor(), 0x750000U);
  EXPECT_EQ(RHDBT.Left(), (run.state.measures.RongMH - RHDBT.Width()) / 2);
  run.exercises.box.DongGiai();
  EXPECT_EQ(RHDBT.BackColor(), run.state.measures.MauNenHD);
}

TEST_F(Explanation, AGeneralOneOfOneEndlessWordStillShows) {
  run.item.GiaiChung = std::string(3000, 'w');
  explainAt({3000, 1000}, "");
  EXPECT_TRUE(RHDBT.Visible());
  run.exercises.box.DongGiai();
  run.item.GiaiChung = std::string(500, 'w') + " " + std::string(500, 'w');
  explainAt({3000, 1000}, "");
  EXPECT_TRUE(RHDBT.Visible());
}

TEST_F(Explanation, ASmallMovementKeepsTheBoxAndALargeOneClosesIt) {
  openBox();
  const SurfacePoint click = run.state.word.ViTriChuot;
  const int reach = run.state.measures.Phan12;
  RDT.moveMouse(shift::None, {click.x + reach, click.y + reach});
  EXPECT_TRUE(RHDBT.Visible());
  RDT.moveMouse(shift::None, {click.x, click.y + reach + 1});
  EXPECT_FALSE(RHDBT.Visible());
  EXPECT_EQ(RDT.TextBetween(6, 14), "_went___") << "the model answer stays";
  EXPECT_EQ(run.focus(), "RDT");
}

TEST_F(Explanation, ALetterOnTheBoxClosesItAndOpensTheLookUpList) {
  openBox();
  RHDBT.SetFocus();
  run.type("w");
  EXPECT_FALSE(RHDBT.Visible());
  EXPECT_TRUE(run.controls.RTD.Visible());
}

} // namespace
} // namespace talvora
