#include "DictionaryRun.h"

#include "text/Rounding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::DictionaryRun;

class PopupTest : public testing::Test {
 protected:
  void showAt(SurfacePoint pointer, const std::string& word = "cat") {
    run.state.atHand.pointAt(pointer);
    run.lookUp(word);
  }
  [[nodiscard]] int heightOf(int lines) {
    return lines * run.form.TextHeight("AAAA") + run.form.TextWidth(" ");
  }
  [[nodiscard]] int framed(int height) { return height + run.form.TextWidth("  "); }
  CharStyle styleAt(int caret) {
    for (const StyledRun& each : RHD.runs()) {
      if (each.from <= caret && caret < each.to) return each.style;
    }
    return {};
  }

  DictionaryRun run{
      {{"cat", "#n. #_an animal_a ^man _a #whip #"}, {"long", "_1_2_3_4_5_6_7_8_9_10_11_12"}}};
  Surface& RHD = run.controls.RHD;
  const Measures& m = run.state.measures;
};

TEST_F(PopupTest, StandsBesideThePointerInAllFourQuarters) {
  const double d = m.Phan12 - m.Phan12 / 3.0;
  const int left = m.RongBai / 2 - 1;
  const int right = m.RongBai / 2;
  const int upper = m.CaoBai / 2 - 1;
  const int lower = m.CaoBai / 2;
  showAt({left, upper});
  EXPECT_EQ(RHD.Left(), Round(m.LeTraiBai + d + left));
  EXPECT_EQ(RHD.Top(), Round(m.LeTrenBai + d + upper));
  showAt({right, upper});
  EXPECT_EQ(RHD.Left(), Round(d + right - m.Phan3));
  EXPECT_EQ(RHD.Top(), Round(m.LeTrenBai + d + upper));
  showAt({left, lower});
  EXPECT_EQ(RHD.Left(), Round(m.LeTraiBai + d + left));
  EXPECT_EQ(RHD.Top(), 426 + lower - m.Phan6);
  showAt({right, lower});
  EXPECT_EQ(RHD.Left(), Round(d + right - m.Phan3));
  EXPECT_EQ(RHD.Top(), 426 + lower - m.Phan6);
  EXPECT_EQ(RHD.Width(), m.Phan3);
}

TEST_F(PopupTest, StaysOnTheFormWithItsPlate) {
  const Surface& plate = run.controls.Rnen;
  // At the least height of the lower half an entry of many lines reaches below the form.
  const SurfacePoint pointer{100, m.CaoBai - 100};
  showAt(pointer, "long");
  const double d = m.Phan12 - m.Phan12 / 3.0;
  const int stated = Round(d) / 2 + pointer.y - m.Phan6;
  const int aboveIt = RHD.Top() - plate.Top();
  ASSERT_GT(stated - aboveIt + plate.Height(), run.form.Height());
  EXPECT_EQ(plate.Top() + plate.Height(), run.form.Height()) << "by just that much";
  EXPECT_EQ(aboveIt, Round(2.0 * m.CaoMH / 200));
  EXPECT_EQ(RHD.Left(), Round(m.LeTraiBai + d + pointer.x));
  EXPECT_EQ(RHD.Left() - plate.Left(), Round(2.0 * m.RongMH / 400));
}

TEST_F(PopupTest, ALongTranslationStaysOnTheForm) {
  // The text is parked at the right, so that there is room for all of the message in one line.
  run.state.atHand.pointAt({m.RongBai / 2 - 1, 100});
  run.state.atHand.showInstead(std::string(45, 'w'));
  run.state.atHand.takeMessageAsEntry();
  run.dictionary.TraTu();
  const Surface& plate = run.controls.Rnen;
  ASSERT_TRUE(RHD.Visible());
  EXPECT_EQ(plate.Left() + plate.Width(), run.form.Width());
  EXPECT_EQ(RHD.Left() - plate.Left(), Round(2.0 * m.RongMH / 400));
}

TEST_F(PopupTest, WhatIsWiderThanTheFormKeepsItsBeginning) {
  run.state.atHand.pointAt({100, 100});
  run.state.atHand.showInstead(std::string(500, 'w'));
  run.state.atHand.takeMessageAsEntry();
  run.dictionary.TraTu();
  EXPECT_GE(run.controls.Rnen.Left(), 0);
}

TEST_F(PopupTest, ShowsEachSenseOnALineAndFitsTheirNumber) {
  showAt({100, 100});
  EXPECT_EQ(RHD.Text(), "cat n. \r - an animal\r - a man \r - a whip \r");
  EXPECT_EQ(RHD.Height(), framed(heightOf(RHD.GetLineFromChar(RHD.TextLength()) + 1)));
  EXPECT_EQ(RHD.SelStart(), 0);
  EXPECT_TRUE(RHD.Visible());
}

TEST_F(PopupTest, ColoursTheHeadTheBlueAndTheItalicStretches) {
  showAt({100, 100});
  const std::string text = RHD.Text();
  const auto caretOf = [&](const char* part) { return static_cast<int>(text.find(part)); };
  EXPECT_EQ(styleAt(0).color, 255U);
  EXPECT_TRUE(styleAt(2).font.bold);
  EXPECT_FALSE(styleAt(3).font.bold);
  EXPECT_EQ(styleAt(caretOf("n.")).color, 0xFF0000U);
  EXPECT_EQ(styleAt(caretOf("animal")).color, 0U);
  EXPECT_EQ(styleAt(caretOf("man \r")).color, 255U);
  EXPECT_TRUE(styleAt(caretOf("man \r")).italic);
  EXPECT_FALSE(styleAt(caretOf("whip")).italic);
  EXPECT_EQ(styleAt(caretOf("whip")).color, 0xFF0000U);
}

TEST_F(PopupTest, TakesTenLinesOfHeightForMoreThanTwelve) {
  showAt({100, 100}, "long");
  ASSERT_GT(RHD.GetLineFromChar(RHD.TextLength()) + 1, 12);
  EXPECT_EQ(RHD.Height(), framed(heightOf(10)));
}

TEST_F(PopupTest, StandsOnItsRedPlate) {
  showAt({100, 100});
  const Surface& Rnen = run.controls.Rnen;
  EXPECT_TRUE(Rnen.Visible());
  EXPECT_EQ(Rnen.BackColor(), 255U);
  EXPECT_EQ(Rnen.Height(), RHD.Height() + Round(2 * m.CaoMH / 100.0));
  EXPECT_EQ(Rnen.Width(), RHD.Width() + 2 * Round(2 * m.RongMH / 400.0));
  EXPECT_EQ(Rnen.Top(), RHD.Top() - Round(2 * m.CaoMH / 200.0));
  EXPECT_EQ(Rnen.Left(), RHD.Left() - Round(2 * m.RongMH / 400.0));
}

TEST_F(PopupTest, SpeaksTheWordThatWasFound) {
  run.lookUp("cats");
  EXPECT_THAT(run.spoken(), testing::ElementsAre("cat", "cat"));
}

TEST_F(PopupTest, ShowsAMessageInItsOwnColoursAndWidth) {
  WordAtHand& atHand = run.state.atHand;
  atHand.pointAt({100, 100});
  atHand.take("the cat sat.");
  atHand.showInstead("one two three");
  atHand.takeMessageAsEntry();
  run.dictionary.TraTu();
  EXPECT_EQ(RHD.Text(), "one two three");
  EXPECT_EQ(RHD.BackColor(), 0x750000U);
  EXPECT_EQ(styleAt(0).color, 0xFFFFC0U);
  EXPECT_TRUE(styleAt(0).font.bold); // the screen is of the large class
  EXPECT_EQ(RHD.SelStart(), 0);
}

TEST_F(PopupTest, TakesTheWidthOfTheFirstLineOfAMessage) {
  WordAtHand& atHand = run.state.atHand;
  atHand.pointAt({100, 100});
  atHand.take("x");
  atHand.showInstead("one two");
  atHand.takeMessageAsEntry();
  run.dictionary.TraTu();
  EXPECT_EQ(RHD.Width(), run.form.TextWidth("one two") + run.form.TextWidth("  "));
  const int lines = RHD.GetLineFromChar(RHD.TextLength() - 1) + 1;
  EXPECT_EQ(RHD.Height(), framed(heightOf(lines)));
}

TEST_F(PopupTest, IsPlainOnASmallerScreen) {
  run.state.measures.CoNut = 10;
  WordAtHand& atHand = run.state.atHand;
  atHand.showInstead("one");
  atHand.takeMessageAsEntry();
  run.dictionary.TraTu();
  EXPECT_FALSE(styleAt(0).font.bold);
}

TEST_F(PopupTest, ClosesWithItsPlateItsBackColourAndTheFocus) {
  WordAtHand& atHand = run.state.atHand;
  atHand.keepCaret(4);
  atHand.showInstead("one");
  atHand.takeMessageAsEntry();
  run.dictionary.TraTu();
  RHD.SetFocus();
  run.shell.upward.DongNghia();
  EXPECT_FALSE(RHD.Visible());
  EXPECT_FALSE(run.controls.Rnen.Visible());
  EXPECT_EQ(RHD.BackColor(), m.MauNenHD);
  EXPECT_EQ(run.form.ActiveControl(), &run.controls.R2);
  EXPECT_EQ(run.controls.R2.SelStart(), 4);
  EXPECT_EQ(run.machine.log.entries().back().what, "stopspeaking");
}

TEST_F(PopupTest, ClearsTheWordOnceWhenThatWasAsked) {
  run.lookUp("cat");
  run.shell.upward.DongNghia();
  EXPECT_EQ(run.state.word.TuHienTai, "cat");
  run.state.atHand.dropWithPopup();
  run.shell.upward.DongNghia();
  EXPECT_EQ(run.state.word.TuHienTai, "");
  EXPECT_FALSE(run.state.word.XoaTuKhiDong);
}

TEST_F(PopupTest, HandsTheTextToTheVocabularyWhileThatShowsASentence) {
  std::string given;
  run.dictionary.popup().VeCauTuVung = [&](const std::string& text) { given = text; };
  run.dictionary.popup().XemCauTuVung = true;
  run.lookUp("cat");
  EXPECT_TRUE(given.starts_with("cat~#n. #_an animal")) << given;
  EXPECT_TRUE(RHD.Visible());
}

TEST_F(PopupTest, ClosesOnEscAndOnARightClick) {
  run.lookUp("cat");
  RHD.SetFocus();
  run.key(key::Esc, key::Esc);
  EXPECT_FALSE(RHD.Visible());
  run.lookUp("cat");
  RHD.pressMouse(MouseButton::Right, shift::None, {0, 0});
  RHD.releaseMouse(MouseButton::Right, shift::None, {0, 0});
  EXPECT_FALSE(RHD.Visible());
}

TEST_F(PopupTest, LooksUpAWordThatIsClickedInIt) {
  run.lookUp("long");
  RHD.Text("a cat's tail");
  const SurfacePoint at = RHD.pointOf(4);
  RHD.pressMouse(MouseButton::Left, shift::None, at);
  RHD.releaseMouse(MouseButton::Left, shift::None, at);
  EXPECT_TRUE(RHD.Visible());
  EXPECT_EQ(run.state.word.TuDaBam, "cat's");
  EXPECT_EQ(run.state.word.TuHienTai, "cat");
  EXPECT_TRUE(run.shown().starts_with("cat n.")) << run.shown();
}

TEST_F(PopupTest, ClosesWithThePressAndComesBackWithTheReleaseBesideThePointer) {
  run.lookUp("long");
  RHD.Text("a cat's tail");
  const SurfacePoint at = RHD.pointOf(4);
  const SurfacePoint onPage{RHD.Left() + at.x - m.LeTraiBai, RHD.Top() + at.y - m.LeTrenBai};
  RHD.pressMouse(MouseButton::Left, shift::None, at);
  EXPECT_FALSE(RHD.Visible());
  EXPECT_EQ(run.form.ActiveControl(), &run.controls.R2);
  RHD.releaseMouse(MouseButton::Left, shift::None, at);
  EXPECT_TRUE(RHD.Visible());
  EXPECT_EQ(run.state.word.ViTriChuot, onPage);
}

TEST_F(PopupTest, LosesTheColoursOfAMessageWhenAWordOfItIsLookedUp) {
  WordAtHand& atHand = run.state.atHand;
  atHand.showInstead("a cat sat");
  atHand.takeMessageAsEntry();
  run.dictionary.TraTu();
  const SurfacePoint at = RHD.pointOf(3);
  RHD.pressMouse(MouseButton::Left, shift::None, at);
  RHD.releaseMouse(MouseButton::Left, shift::None, at);
  EXPECT_TRUE(run.shown().starts_with("cat n.")) << run.shown();
  EXPECT_EQ(RHD.BackColor(), m.MauNenHD);
  EXPECT_EQ(run.state.word.ThongBaoHD, "");
}

TEST_F(PopupTest, StaysClosedBehindAClickOnNoWord) {
  run.lookUp("cat");
  RHD.Text("xyzzy plugh");
  const SurfacePoint at = RHD.pointOf(2);
  RHD.pressMouse(MouseButton::Left, shift::None, at);
  RHD.releaseMouse(MouseButton::Left, shift::None, at);
  EXPECT_FALSE(RHD.Visible());
  EXPECT_FALSE(run.controls.Rnen.Visible());
}

TEST_F(PopupTest, GivesTheKeyboardToAnExplanationThatItStandsOver) {
  run.lookUp("cat");
  RHD.moveMouse(shift::None, {10, 10});
  EXPECT_EQ(run.form.ActiveControl(), &run.controls.R2) << "without an explanation it stays";
  run.shell.pages.add({.surface = run.controls.RHDBT, .explains = true});
  run.controls.RHDBT.Visible(true);
  RHD.moveMouse(shift::None, {10, 10});
  EXPECT_EQ(run.form.ActiveControl(), &run.controls.RHDBT);
}

TEST_F(PopupTest, LetsTheWordGoOnAnotherKeyInTheReadingSectionOnly) {
  for (const int section : {7, 1}) {
    run.state.places.MucMenu = section;
    run.state.atHand.keepCaret(5);
    run.controls.R2.SelStart(4);
    run.controls.R2.SelLength(4);
    run.lookUp("cat");
    RHD.SetFocus();
    run.key(key::Enter, key::Enter);
    EXPECT_FALSE(RHD.Visible());
    EXPECT_EQ(run.form.ActiveControl(), &run.controls.R2) << section;
    EXPECT_EQ(run.controls.R2.SelLength(), section == 1 ? 0 : 4);
  }
  EXPECT_EQ(run.controls.R2.SelStart(), 5);
}

TEST_F(PopupTest, OpensTheLookUpListOnALetter) {
  run.lookUp("cat");
  RHD.SetFocus();
  run.key('L', 'l');
  EXPECT_FALSE(RHD.Visible());
  EXPECT_TRUE(run.controls.RTD.Visible());
  EXPECT_EQ(run.state.word.TuHienTai, "l");
}

// -- Wrapping.

int widthOf(std::string_view text) {
  return static_cast<int>(text.size());
}

TEST(MessageWrapping, LeavesAMessageThatFitsOnOneLine) {
  const WrappedMessage wrapped = wrapMessage("one two", 7, widthOf);
  EXPECT_EQ(wrapped.firstLine, "one two");
  EXPECT_EQ(wrapped.lines, 1);
}

TEST(MessageWrapping, TakesOneWordMoreThanItsShareForTheFirstLine) {
  const WrappedMessage wrapped = wrapMessage("aa bb cc dd ee ff", 12, widthOf);
  EXPECT_EQ(wrapped.lines, 2);
  EXPECT_EQ(wrapped.firstLine, "aa bb cc dd");
  EXPECT_EQ(wrapMessage("aa bb cc dd ee ff", 10, widthOf).firstLine, "aa bb cc");
}

TEST(MessageWrapping, EndsAtOneWordThatDoesNotFit) {
  EXPECT_EQ(wrapMessage("endlessly long", 3, widthOf).firstLine, "endlessly");
  EXPECT_EQ(wrapMessage("endlessly", 3, widthOf).firstLine, "endlessly");
  EXPECT_EQ(wrapMessage("", -1, widthOf).firstLine, "");
}

} // namespace
} // namespace talvora
