// Reading a whole text aloud: its order, its keys, its pages, and how it ends.
#include "support/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ProgramRun;
using test::StoredText;
using Texts = std::vector<std::string>;

constexpr int RecordedText = 400;
constexpr int GuideText = 2;
/// Caret in the first sentence behind the title of `shortText`.
constexpr int FirstSentence = 10;

StoredText shortText(int slot) {
  return {slot, "Title\r_\tOne here. _Two there.\r", "_Mot._Hai."};
}

class ReadAloudTest : public testing::Test {
 protected:
  void open(const StoredText& text, std::int32_t soundOn = 1) {
    run.writeTexts({text});
    run.folder.writeIntegers("data.Kcu", {0, soundOn, 0, 5});
    run.start();
    run.clickButton(1);
    run.controls().RDOS.Visible(false);
    Surface& R1 = run.controls().R1;
    R1.SelStart(static_cast<int>(R1.Text().find("\tT")) + 1);
    run.key(key::Home);
    run.key(key::Enter);
    static_cast<void>(run.machine.log.take());
  }

  /// Reads aloud from a caret on, with Esc after so many milliseconds.
  void readFrom(int caret, int escAfter) {
    R2.SelStart(caret);
    run.machine.input.hold(key::Esc, escAfter, 25);
    // A loop that does not hear Esc still ends, and far too late for what is expected.
    run.machine.input.giveUpAt(run.machine.time.nowMs() + 100'000);
    run.key(key::F9);
  }
  void press(int keyCode, int after) { run.machine.input.hold(keyCode, after, 25); }

  [[nodiscard]] Texts spoken() const {
    Texts texts;
    for (const LogEntry& entry : run.machine.log.entries()) {
      if (entry.what == "speak") texts.push_back(std::get<std::string>(*entry.find("text")));
    }
    return texts;
  }
  [[nodiscard]] Texts played() const {
    Texts stretches;
    for (const LogEntry& entry : run.machine.log.entries()) {
      if (entry.what != "mm" || std::get<std::string>(*entry.find("command")) != "Play") continue;
      stretches.push_back(std::to_string(std::get<std::int64_t>(*entry.find("from"))) + "-" +
                          std::to_string(std::get<std::int64_t>(*entry.find("to"))));
    }
    return stretches;
  }

  ProgramRun run;
  Surface& R2 = run.controls().R2;
};

// Speech takes 60 ms a character; ahead of each sentence stand 20 ms. So "one here" is over after
// 500 ms, "two there" after 1060 and "title" after 1380.

TEST_F(ReadAloudTest, GoesFromTheSentenceAtTheCaretToTheLastAndBeginsAnew) {
  open(shortText(1));
  readFrom(FirstSentence, 1440);
  EXPECT_EQ(spoken(), (Texts{"one here", "two there", "title", "one here"}));
}

TEST_F(ReadAloudTest, ReadsWithTheSoundOffToo) {
  open(shortText(1), 0);
  readFrom(FirstSentence, 400);
  EXPECT_EQ(spoken(), Texts{"one here"});
}

TEST_F(ReadAloudTest, EscEndsItWithTheCaretOnTheSentenceAndNothingSelected) {
  open(shortText(1));
  readFrom(0, 400);
  EXPECT_EQ(spoken(), (Texts{"title", "one here"}));
  EXPECT_FALSE(run.machine.speech.IsSpeaking());
  EXPECT_EQ(R2.SelLength(), 0);
  EXPECT_EQ(run.number("ViTriCaret"), R2.SelStart());
  EXPECT_EQ(run.number("CauChon"), 2);
}

TEST_F(ReadAloudTest, TheNextEscEndsTheStateAndDoesNothingElse) {
  open(shortText(1));
  readFrom(0, 100);
  EXPECT_TRUE(run.flag("DangDocCa"));
  run.key(key::Esc);
  EXPECT_FALSE(run.flag("DangDocCa"));
  EXPECT_TRUE(R2.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(R2.Visible());
}

TEST_F(ReadAloudTest, EscInTheLastSentenceEndsTheStateAtOnce) {
  open(shortText(1));
  readFrom(FirstSentence, 900);
  EXPECT_EQ(spoken().back(), "two there");
  EXPECT_FALSE(run.flag("DangDocCa"));
  run.key(key::Esc);
  EXPECT_FALSE(R2.Visible());
}

TEST_F(ReadAloudTest, SpaceAndArrowsAreDeafWhileItLasts) {
  open(shortText(1));
  readFrom(0, 100);
  const int caret = R2.SelStart();
  run.key(key::Space);
  EXPECT_FALSE(run.flag("GiuSpace"));
  run.key(key::Left);
  EXPECT_EQ(R2.SelStart(), caret - 1) << "the surface's own step, not a word's";
}

TEST_F(ReadAloudTest, ItsKeysAreTheHintWhileItReads) {
  open(shortText(1));
  Surface& RDOS = run.controls().RDOS;
  std::string shown;
  R2.SelChange = [&] {
    if (RDOS.Visible()) shown = RDOS.Text();
  };
  readFrom(0, 100);
  EXPECT_THAT(shown, testing::HasSubstr("ESC = tho"));
  EXPECT_FALSE(RDOS.Visible());
}

TEST_F(ReadAloudTest, TheGuideTextIsNotReadAloud) {
  open(shortText(GuideText));
  readFrom(0, 100);
  EXPECT_EQ(spoken(), Texts{});
}

TEST_F(ReadAloudTest, ATextOfItsTitleAloneIsReadAgainAndAgain) {
  open({1, "Title", ""});
  readFrom(0, 700);
  EXPECT_EQ(spoken(), (Texts{"title", "title", "title"}));
  EXPECT_FALSE(run.flag("DangDocCa"));
}

// -- The arrows.

TEST_F(ReadAloudTest, RightAndDownGoToTheNextSentenceAtOnce) {
  open(shortText(1));
  press(key::Right, 100);
  press(key::Down, 250);
  readFrom(FirstSentence, 400);
  EXPECT_EQ(spoken(), (Texts{"one here", "two there", "title"}));
}

TEST_F(ReadAloudTest, LeftRepeatsTheSentenceUntilRightLeadsOn) {
  open(shortText(1));
  press(key::Left, 100);
  press(key::Right, 1300);
  readFrom(FirstSentence, 1600);
  EXPECT_EQ(spoken(), (Texts{"one here", "one here", "one here", "two there"}));
}

TEST_F(ReadAloudTest, LeftRepeatsTheSentenceThatScrollsTheSurfaceOnToo) {
  open(shortText(1));
  press(key::Left, 600);
  readFrom(FirstSentence, 1300);
  EXPECT_EQ(spoken(), (Texts{"one here", "two there", "two there"}));
}

TEST_F(ReadAloudTest, UpGoesBackASentenceAtOnce) {
  open(shortText(1));
  press(key::Up, 600);
  readFrom(FirstSentence, 900);
  EXPECT_EQ(spoken(), (Texts{"one here", "two there", "one here"}));
}

TEST_F(ReadAloudTest, UpInTheTitleStaysThere) {
  open(shortText(1));
  press(key::Up, 100);
  readFrom(0, 300);
  EXPECT_EQ(spoken(), (Texts{"title", "title"}));
}

// -- Pages.

TEST_F(ReadAloudTest, EveryFifteenSentencesTheSurfaceIsScrolledOn) {
  std::string body = "T\r";
  for (int sentence = 1; sentence <= 20; ++sentence)
    body += "_Go. ";
  open({1, body, ""});
  std::vector<int> jumps;
  auto before = R2.SelChange;
  R2.SelChange = [&] {
    if (R2.SelStart() == R2.TextLength() - 3) jumps.push_back(static_cast<int>(spoken().size()));
    before.tell();
  };
  // The title takes 80 ms and each sentence 140.
  readFrom(0, 2500);
  EXPECT_EQ(jumps, std::vector{14}) << "ahead of the fifteenth";
}

// -- A recording.

class RecordedReadAloudTest : public ReadAloudTest {
 protected:
  RecordedReadAloudTest() {
    run.folder.writeIntegers("DataS", {1, 401, 901});
    run.folder.write("sound/1.wav", "");
    open(shortText(RecordedText));
  }
};

TEST_F(RecordedReadAloudTest, StretchesArePlayedAndTheTitleIsLeftOut) {
  readFrom(0, 1200);
  EXPECT_EQ(played(), (Texts{"1-401", "401-901", "1-401"}));
  EXPECT_EQ(spoken(), Texts{});
}

TEST_F(RecordedReadAloudTest, RightGoesToTheNextStretchAndLeftRepeats) {
  press(key::Right, 100);
  press(key::Left, 300);
  readFrom(0, 900);
  EXPECT_EQ(played(), (Texts{"1-401", "401-901", "401-901"}));
}

} // namespace
} // namespace talvora
