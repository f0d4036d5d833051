#include "listening/DrillRun.h"
#include "listening/NGHE_VIET.h"
#include "text/Rounding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::DrillRun;
using test::valueOf;

class Dictation : public testing::Test {
 protected:
  explicit Dictation(const ScriptedOptions& options = {})
      : run(options), dictation(run.base.form, run.controls(), run.state(), run.stores,
                                run.base.shell, run.services, run.base.machine.clock),
        Rviet(run.controls().Rviet) {
    dictation.ChonDongR1 = [this] { ++linesChosen; };
    dictation.BongLoiGiai = [this] { run.controls().Rnen2.Visible(true); };
  }

  void open(int slot, const std::string& text, const std::string& translation,
            bool speaking = false) {
    run.writeTexts({{slot, {text, translation}}}, speaking);
    run.open(speaking ? 7 : 1, speaking ? file::SpeakingPositions : file::TextPositions);
    Surface& R1 = run.controls().R1;
    R1.Text("\t\tone\r\t\ttwo\r");
    run.base.show(R1);
    R1.SelStart(6);
    run.state().list.SoBaiChon = slot;
    run.base.machine.log.take();
    dictation.MoNgheViet();
  }
  void openThree() {
    open(5, "Title\r_\tThe cat sat. _It's well-known, Mai. _Third one here. _Last one.\r",
         "_Meo ngoi._Ai cung biet._Cau ba._Cuoi.");
  }

  std::string model() { return valueOf<std::string>(dictation, "CauMau"); }
  int number(const std::string& name) { return static_cast<int>(valueOf<double>(dictation, name)); }

  DrillRun run;
  NGHE_VIET dictation;
  Surface& Rviet;
  int linesChosen = 0;
};

TEST_F(Dictation, OpensOnTheFirstSentenceBehindTheTitle) {
  openThree();
  EXPECT_EQ(number("CauViet"), 2);
  EXPECT_EQ(model(), "The cat sat");
  EXPECT_THAT(run.controls().RHDBT.Text(), testing::HasSubstr("Meo ngoi."));
  EXPECT_FALSE(run.controls().RHDBT.Enabled());
  EXPECT_TRUE(run.state().places.DangBan);
  EXPECT_FALSE(run.controls().R1.Enabled());
  EXPECT_EQ(run.focus(), "Rviet");
  EXPECT_EQ(run.spoken(), (std::vector<std::string>{"the cat sat", "the cat sat"}));
}

TEST_F(Dictation, TheTranslationStandsAboveTheTypingLine) {
  openThree();
  const Surface& RHDBT = run.controls().RHDBT;
  EXPECT_EQ(Rviet.Width(), Round(run.state().measures.RongMH * 24 / 25.0));
  EXPECT_EQ(RHDBT.Height(), Round(Rviet.Top() - Rviet.Height() / 5.0));
  EXPECT_EQ(RHDBT.Top(), (Rviet.Top() - RHDBT.Height()) / 2);
  EXPECT_EQ(run.controls().Rnen3.BackColor(), 255U);
}

TEST_F(Dictation, ItsWaitsEndWhenTheProgramIsWantedClosed) {
  openThree();
  run.base.machine.clock.wantClosing(0);
  const std::int64_t from = run.base.machine.time.nowMs();
  run.type('x');
  while (number("CauViet") == 2)
    run.key(key::Right);
  EXPECT_EQ(run.base.machine.time.nowMs(), from);
}

class WideDictation : public Dictation {
 protected:
  WideDictation() : Dictation(wide()) {}

  static ScriptedOptions wide() {
    ScriptedOptions options;
    options.screenWidth = 1366;
    return options;
  }
};

TEST_F(WideDictation, TheTypingLineIsRoundedToTheNearestTwip) {
  openThree();
  // 20490 - 819.6
  ASSERT_EQ(run.state().measures.RongMH, 20490);
  EXPECT_EQ(Rviet.Width(), 19670);
}

TEST_F(Dictation, TypedLettersShowInTheSentencesOwnCase) {
  openThree();
  run.type("tHE c");
  EXPECT_EQ(Rviet.Text(), "\rThe c\r");
  EXPECT_EQ(number("ViTriGo"), 5);
}

TEST_F(Dictation, AWrongKeyFlashesAndTheSentenceIsSpokenAgain) {
  openThree();
  run.base.machine.log.take();
  run.type('x');
  EXPECT_EQ(Rviet.Text(), "\r\r");
  EXPECT_EQ(number("ViTriGo"), 0);
  const auto entries = run.base.machine.log.take();
  int flashes = 0;
  int words = 0;
  for (const LogEntry& entry : entries) {
    if (entry.what == "sleep") flashes += std::get<std::int64_t>(*entry.find("ms")) == 20;
    words += entry.what == "speak";
  }
  EXPECT_EQ(flashes, 1);
  EXPECT_EQ(words, 2);
}

TEST_F(Dictation, AFinishedSentenceShowsItsPointRestsAndGoesOn) {
  openThree();
  run.base.machine.log.take();
  run.type("the cat sat");
  EXPECT_EQ(model(), "It's well-known, Mai");
  EXPECT_EQ(Rviet.Text(), "\r\r");
  bool rested = false;
  for (const LogEntry& entry : run.base.machine.log.take()) {
    if (entry.what == "sleep") rested |= std::get<std::int64_t>(*entry.find("ms")) == 500;
  }
  EXPECT_TRUE(rested);
}

TEST_F(Dictation, ABlankPassesForAHyphenAndAComma) {
  openThree();
  run.key(key::Down);
  run.type("it's well known");
  EXPECT_EQ(Rviet.Text(), "\rIt's well-known\r");
  run.type(' ');
  EXPECT_EQ(Rviet.Text(), "\rIt's well-known,\r");
}

TEST_F(Dictation, TheRightArrowAndTheCaretSignGiveALetterAway) {
  openThree();
  run.key(key::Right);
  EXPECT_EQ(Rviet.Text(), "\rT\r");
  run.type('^');
  EXPECT_EQ(Rviet.Text(), "\rTh\r");
}

TEST_F(Dictation, UpOnTheFirstSentenceStaysThere) {
  openThree();
  run.type("the");
  run.key(key::Up);
  EXPECT_EQ(number("CauViet"), 2);
  EXPECT_EQ(number("ViTriGo"), 0);
}

TEST_F(Dictation, TheLastSentenceIsNotDictated) {
  openThree();
  run.key(key::Down);
  run.key(key::Down);
  EXPECT_EQ(model(), "Third one here");
  EXPECT_EQ(number("CauViet"), 4);
  run.key(key::Down);
  EXPECT_FALSE(Rviet.Visible());
  EXPECT_EQ(run.focus(), "R1");
}

TEST_F(Dictation, LeftSpeaksAgain) {
  openThree();
  run.base.machine.log.take();
  run.key(key::Left);
  EXPECT_EQ(run.spoken(), (std::vector<std::string>{"the cat sat", "the cat sat"}));
}

TEST_F(Dictation, EscTakesTheHintAwayFirstAndThenEnds) {
  openThree();
  ASSERT_TRUE(run.controls().RDOS.Visible());
  run.key(key::Esc);
  EXPECT_TRUE(Rviet.Visible());
  run.controls().RHDBT.Visible(false);
  run.key(key::Esc);
  EXPECT_FALSE(Rviet.Visible());
  EXPECT_FALSE(run.controls().Rnen3.Visible());
  EXPECT_FALSE(run.controls().Rnen2.Visible());
  EXPECT_FALSE(run.state().places.DangBan);
  EXPECT_TRUE(run.controls().R1.Enabled());
  EXPECT_EQ(run.controls().R1.SelStart(), 6);
  EXPECT_EQ(linesChosen, 1);
}

TEST_F(Dictation, ThePlateIsParkedForTheNextThatNeedsIt) {
  openThree();
  run.key(key::Esc);
  run.controls().RHDBT.Visible(false);
  run.key(key::Esc);
  const Surface& Rnen3 = run.controls().Rnen3;
  EXPECT_FALSE(Rnen3.Visible());
  EXPECT_EQ(Rnen3.Top(), run.state().measures.CaoMH + 100);
  EXPECT_EQ(Rnen3.BackColor(), 0xFFFFFFU);
  EXPECT_EQ(Rnen3.Text(), "");
}

TEST_F(Dictation, BackspaceTakesNothingBack) {
  openThree();
  run.type("the");
  run.key(key::Backspace);
  EXPECT_EQ(Rviet.Text(), "\rThe\r");
}

TEST_F(Dictation, DeleteTakesNothingAway) {
  openThree();
  run.type("the");
  Rviet.SelStart(1);
  run.key(key::Delete);
  EXPECT_EQ(Rviet.Text(), "\rThe\r");
}

TEST_F(Dictation, EnterIsAWrongKeyLikeAnyOther) {
  openThree();
  run.base.machine.log.take();
  run.key(key::Enter);
  EXPECT_EQ(Rviet.Text(), "\r\r");
  EXPECT_EQ(run.spoken(), (std::vector<std::string>{"the cat sat", "the cat sat"}));
}

TEST_F(Dictation, EscClosesTheHintThenTheTranslationAndThenEnds) {
  openThree();
  // The program lets the box close itself; here its place is taken.
  run.base.shell.gestures.onClose(CloseRank::Explanation, run.controls().RHDBT,
                                  [this](Surface&) { run.controls().RHDBT.Visible(false); });
  run.key(key::Esc);
  EXPECT_FALSE(run.controls().RDOS.Visible());
  EXPECT_TRUE(run.controls().RHDBT.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(run.controls().RHDBT.Visible());
  EXPECT_TRUE(Rviet.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(Rviet.Visible());
}

TEST_F(Dictation, AClickLooksUpTheWholeWordWhereverTheTextHasItsLineEnds) {
  openThree();
  run.type("the cat s");
  // At these places the text itself has its title's end, its mark and its tab.
  for (const int caret : {5, 6, 7, 8}) {
    run.click(Rviet, caret);
    EXPECT_EQ(run.state().word.TuDaBam, "cat") << caret;
    EXPECT_EQ(run.state().word.TuHienTai, "The cat sat");
  }
}

TEST_F(Dictation, AClosingPopupGivesTheSentenceBack) {
  openThree();
  run.type("the");
  run.state().atHand.take("cat");
  run.base.shell.focusReturn.TraLaiBeMat();
  EXPECT_EQ(run.state().word.TuHienTai, "The cat sat");
  EXPECT_EQ(run.state().word.ThongBaoHD, "x");
  EXPECT_EQ(Rviet.SelStart(), 4);
}

TEST_F(Dictation, TheGuideTextHasNone) {
  open(2, "Guide\r_\tOne two. _Three four.\r", "_A._B.");
  EXPECT_FALSE(Rviet.Visible());
  EXPECT_FALSE(run.state().places.DangBan);
}

TEST_F(Dictation, ARecordedTextPlaysItsSentences) {
  run.folder.write("sound/1.wav", "x");
  run.folder.writeIntegers("DataS", {1, 100, 250, 400});
  open(400, "Title\r_\tOne two. _Three four. _Five.\r", "_A._B._C.");
  EXPECT_TRUE(run.voice.AmThanhThuc);
  bool played = false;
  for (const LogEntry& entry : run.base.machine.log.take()) {
    if (entry.what != "mm" || std::get<std::string>(*entry.find("command")) != "Play") continue;
    EXPECT_EQ(std::get<std::int64_t>(*entry.find("from")), 1);
    EXPECT_EQ(std::get<std::int64_t>(*entry.find("to")), 100);
    played = true;
  }
  EXPECT_TRUE(played);
}

TEST_F(Dictation, ASpeakingTextIsDictatedWithoutARecording) {
  run.voice.AmThanhThuc = true;
  open(2025, "Title\r_\tOne two. _Three four. _Five.\r", "_A._B._C.", true);
  EXPECT_FALSE(run.voice.AmThanhThuc);
  EXPECT_EQ(model(), "One two");
}

TEST_F(Dictation, ATextOfOneSentenceEndsAtOnce) {
  open(5, "Title\r_\tOne two.\r", "_A.");
  EXPECT_FALSE(Rviet.Visible());
  EXPECT_EQ(run.focus(), "R1");
}

TEST_F(Dictation, ATextWithoutAnySentenceEndsAtOnce) {
  open(5, "", "");
  EXPECT_FALSE(Rviet.Visible());
}

} // namespace
} // namespace talvora
