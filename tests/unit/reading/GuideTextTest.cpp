// The guide text, which answers by places: up to 699 a click looks words up, from 700 to 985 the
// sentences show their messages, up to 1141 words again, and behind that nothing.
#include "dictionary/DictionaryRun.h"
#include "support/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ProgramRun;

constexpr int SentenceLength = 20;
constexpr int Sentences = 70;

class OpenGuide : public testing::Test {
 protected:
  OpenGuide() {
    // Mark and sentence together take twenty characters, so that carets are easy to tell.
    std::string text = "A title of nineteen";
    std::string translation;
    for (int sentence = 0; sentence < Sentences; ++sentence) {
      text += "_the boat was at sea";
      translation += "_cau " + std::to_string(sentence);
    }
    run.writeTexts({{1, "*Heading\r", ""}, {2, text, translation}});
    test::writeWordFiles(
        run.folder, test::withLetterLines(
                        {{"at", "_in"}, {"boat", "_ship"}, {"sea", "_water"}, {"the", "_that"}}));
    run.folder.writeIntegers("data.Kcu", {0, 1});
    run.start();
    run.clickButton(1);
    run.controls().RDOS.Visible(false);
    run.key(key::Down);
    run.key(key::Enter);
    forgetLog();
  }

  /// The caret inside a word of the sentence that holds a caret.
  [[nodiscard]] int inWord(int caret, const std::string& word) const {
    const auto sentence = static_cast<std::size_t>(caret / SentenceLength * SentenceLength);
    return static_cast<int>(R2.Text().find(word, sentence)) + 1;
  }
  void forgetLog() { static_cast<void>(run.machine.log.take()); }
  /// What was said and when speech was stopped, in order.
  [[nodiscard]] std::vector<std::string> heard() const {
    std::vector<std::string> all;
    for (const LogEntry& entry : run.machine.log.entries()) {
      if (entry.what == "speak") all.push_back(std::get<std::string>(*entry.find("text")));
      if (entry.what == "stopspeaking") all.emplace_back("(stop)");
    }
    return all;
  }
  void pressSpace(int caret) {
    R2.SelStart(caret);
    forgetLog();
    run.form().pressKey(key::Space, shift::None, ' ');
  }
  void releaseSpace() { run.form().releaseKey(key::Space, shift::None); }

  ProgramRun run;
  Surface& R2 = run.controls().R2;
  Surface& RHD = run.controls().RHD;
};

TEST_F(OpenGuide, IsTheSecondTextOfTheReadingStore) {
  EXPECT_TRUE(run.flag("LaBaiHuongDan"));
  ASSERT_GT(R2.TextLength(), 1200);
  run.key(key::Esc);
  EXPECT_FALSE(run.flag("LaBaiHuongDan"));
}

TEST_F(OpenGuide, LooksAWordUpAndSaysIt) {
  run.click(R2, inWord(640, "boat"));
  EXPECT_EQ(RHD.Text(), "boat \r - ship\r");
  EXPECT_EQ(run.text("TuHienTai"), "boat");
  EXPECT_EQ(heard().back(), "boat");
}

TEST_F(OpenGuide, TakesTheFirstWordOfASentenceOutsideThePractice) {
  run.doubleClick(R2, inWord(640, "boat"));
  EXPECT_EQ(run.text("TuHienTai"), "the");
  EXPECT_EQ(R2.SelText(), "boat was at sea") << "the selection narrows to the rest";
  EXPECT_EQ(RHD.Text(), "cau 31");
  EXPECT_EQ(heard().back(), "the");
}

TEST_F(OpenGuide, ShowsTheMessageOfAPracticeSentenceOnADoubleClick) {
  run.doubleClick(R2, inWord(800, "boat"));
  EXPECT_EQ(run.text("TuHienTai"), "x");
  EXPECT_EQ(RHD.Text(), "cau 39");
  EXPECT_EQ(R2.SelText(), "the boat was at ") << "three characters shorter";
}

TEST_F(OpenGuide, ShowsTheMessageOfAPracticeSentenceWhileSpaceIsHeld) {
  pressSpace(805);
  EXPECT_EQ(run.text("TuHienTai"), "x");
  EXPECT_EQ(RHD.Text(), "cau 39");
  EXPECT_TRUE(RHD.Visible());
  EXPECT_THAT(heard(), testing::ElementsAre("(stop)", "x", "x", "(stop)", "(stop)", "x", "x"))
      << "the popup's speech stops, and the word at hand is said";
  releaseSpace();
  EXPECT_FALSE(RHD.Visible());
  EXPECT_EQ(R2.SelStart(), 805);
  EXPECT_EQ(R2.SelLength(), 0);
}

TEST_F(OpenGuide, ShowsNothingOnASingleClickInAPracticeSentence) {
  run.click(R2, inWord(640, "boat"));
  forgetLog();
  run.click(R2, inWord(800, "sea"));
  EXPECT_EQ(run.text("ThongBaoHD"), "");
  // Without a message the word that was clicked last is at hand again.
  EXPECT_EQ(run.text("TuHienTai"), "boat");
  EXPECT_EQ(heard().back(), "boat");
}

TEST_F(OpenGuide, KeepsASelectionOfThreeCharactersWhole) {
  run.click(R2, inWord(800, "was"));
  EXPECT_EQ(R2.SelText(), "was");
}

TEST_F(OpenGuide, AnswersBehindThePracticeAsAheadOfIt) {
  run.click(R2, inWord(1000, "sea"));
  EXPECT_EQ(RHD.Text(), "sea \r - water\r");
}

TEST_F(OpenGuide, AnswersNothingAtItsEnd) {
  const int caret = inWord(1160, "boat");
  run.click(R2, caret);
  EXPECT_FALSE(RHD.Visible());
  EXPECT_EQ(R2.SelLength(), 0);
  EXPECT_EQ(R2.SelStart(), caret);
  EXPECT_EQ(run.text("TuHienTai"), "");
  EXPECT_TRUE(heard().empty());
}

TEST_F(OpenGuide, HasItsBordersBetweenTheseCarets) {
  const auto wordAtHandBehindSpace = [this](int caret) {
    pressSpace(caret);
    const std::string word = run.text("TuHienTai");
    releaseSpace();
    return word;
  };
  EXPECT_EQ(wordAtHandBehindSpace(699), "the");
  EXPECT_EQ(wordAtHandBehindSpace(700), "x");
  EXPECT_EQ(wordAtHandBehindSpace(985), "x");
  EXPECT_EQ(wordAtHandBehindSpace(986), "the");
  EXPECT_EQ(wordAtHandBehindSpace(1141), "the");
  EXPECT_EQ(wordAtHandBehindSpace(1142), "");
}

TEST_F(OpenGuide, DoesNotReadItselfAloudAndSaysNothingOnARightClick) {
  run.click(R2, inWord(640, "boat"));
  forgetLog();
  run.click(R2, inWord(640, "boat"), MouseButton::Right);
  run.key(key::F9);
  EXPECT_FALSE(run.flag("DangDocCa"));
  EXPECT_THAT(heard(), testing::Not(testing::Contains("boat")));
}

} // namespace
} // namespace talvora
