// Sentences at a caret, and the caret's steps by word.
#include "reading/SentencePick.h"

#include "support/ShellRun.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ShellRun;

class SentencePickTest : public testing::Test {
 protected:
  SentencePickTest() { run.show(R2); }

  /// Shows a text whose "_" are sentence marks; the translations count from sentence 2.
  void showText(const std::string& text, const std::vector<std::string>& translations = {}) {
    run.state.text.CauHoi = text;
    reading.TachCau("the text");
    R2.Text(run.state.text.CauHoi);
    run.state.text.DichCau = {""};
    for (const std::string& each : translations)
      run.state.text.DichCau.push_back(each);
  }
  std::string sentenceAt(int caret) {
    sentences.ChonCau(R2, caret);
    return R2.SelText();
  }
  int rightOf(int caret) {
    R2.SelStart(caret);
    SentencePick::seekPhaiR2(R2);
    return R2.SelStart();
  }
  int leftOf(int caret) {
    R2.SelStart(caret);
    SentencePick::seekTraiR2(R2);
    return R2.SelStart();
  }

  ShellRun run;
  Stores stores{run.state.places};
  ReadingText reading{stores, run.state.text};
  SentencePick sentences{reading, run.state, run.shell.wordPick};
  Surface& R2 = run.controls.R2;
};

TEST_F(SentencePickTest, TakesTheSentenceWithoutItsTabAndLineEnd) {
  showText("_Title\r_\tOne here. _Two there.\r_", {"Mot.", "Hai."});
  EXPECT_EQ(sentenceAt(12), "One here. ");
  EXPECT_EQ(run.state.text.CauChon, 2);
  EXPECT_EQ(run.state.word.TuHienTai, "One here");
  EXPECT_EQ(run.state.word.ThongBaoHD, "Mot.");
  EXPECT_EQ(run.state.word.NghiaHienTai, "Mot.");
  EXPECT_EQ(sentenceAt(25), "Two there.");
  EXPECT_EQ(run.state.text.CauChon, 3);
  EXPECT_EQ(run.state.word.ThongBaoHD, "Hai.");
}

TEST_F(SentencePickTest, BeginsASentenceAtItsMark) {
  showText("_Title\r_\tOne here. _Two there.\r_", {"Mot.", "Hai."});
  // The mark at caret 19 is the character at position 20.
  EXPECT_EQ(sentenceAt(19), "One here. ");
  EXPECT_EQ(sentenceAt(20), "Two there.");
}

TEST_F(SentencePickTest, IsAskedForBehindTheMarkThatTheCaretStandsAheadOf) {
  showText("_Title\r_\tOne here. _Two there.\r_", {"Mot.", "Hai."});
  const auto asked = [this](int caret) {
    R2.SelStart(caret);
    return SentencePick::askedCaret(R2);
  };
  EXPECT_EQ(asked(7), 8);
  EXPECT_EQ(asked(19), 20);
  EXPECT_EQ(asked(18), 18);
  EXPECT_EQ(asked(20), 20);
  EXPECT_EQ(asked(31), 31) << "the last mark opens no sentence";
}

TEST_F(SentencePickTest, HasNoTranslationForTheTitle) {
  showText("_Title\r_\tOne.\r_", {"Mot."});
  EXPECT_EQ(sentenceAt(3), "Title");
  EXPECT_EQ(run.state.text.CauChon, 1);
  EXPECT_EQ(run.state.word.ThongBaoHD, "");
  EXPECT_EQ(run.state.word.NghiaHienTai, "");
}

TEST_F(SentencePickTest, FallsBackToTheFirstSentenceOutsideAll) {
  showText("_Title\r_\tOne.\r_", {"Mot."});
  EXPECT_EQ(reading.CauTaiViTri(0), 1) << "ahead of the first mark";
  EXPECT_EQ(reading.CauTaiViTri(15), 1) << "behind the last mark";
  EXPECT_EQ(reading.CauTaiViTri(14), 2);
}

TEST_F(SentencePickTest, AskingForASentencesNumberTakesNoMessage) {
  showText("_Title\r_\tOne.\r_", {"Mot."});
  run.state.atHand.showInstead("before");
  EXPECT_EQ(reading.CauTaiViTri(14), 2);
  EXPECT_EQ(run.state.word.ThongBaoHD, "before");
  EXPECT_EQ(sentences.takeTranslationAt(14), 2);
  EXPECT_EQ(run.state.word.ThongBaoHD, "Mot.");
}

TEST_F(SentencePickTest, SelectsNothingOfAnEmptySentence) {
  showText("_T\r_\tOne. __Two.\r_", {"Mot.", "", "Hai."});
  run.state.atHand.take("before");
  EXPECT_EQ(sentenceAt(11), "");
  EXPECT_EQ(run.state.text.CauChon, 3);
  EXPECT_EQ(run.state.word.TuHienTai, "before");
}

// -- Steps by word.

TEST_F(SentencePickTest, GoesRightToTheEndOfTheWord) {
  showText("_Title\r_\tOne here");
  EXPECT_EQ(rightOf(9), 12) << "to the blank";
  EXPECT_EQ(rightOf(2), 6) << "to the line end";
  EXPECT_EQ(rightOf(12), 12) << "a blank ends the empty word ahead of it";
}

TEST_F(SentencePickTest, GoesRightBehindAPoint) {
  for (const char point : {',', '.', '?', '!'}) {
    showText(std::string("One") + point + " two");
    EXPECT_EQ(rightOf(1), 4) << point;
  }
  showText("One; two");
  EXPECT_EQ(rightOf(1), 4) << "to the blank";
}

TEST_F(SentencePickTest, GoesRightOverTheBlankAheadOfASentenceMark) {
  showText("_One. _Two");
  EXPECT_EQ(rightOf(2), 6);
  EXPECT_EQ(R2.CharAt(6), SentenceMark);
}

TEST_F(SentencePickTest, DoesNotGoRightAtTheTextsEnd) {
  showText("One two");
  EXPECT_EQ(rightOf(4), 4);
  EXPECT_EQ(rightOf(7), 7);
}

TEST_F(SentencePickTest, GoesLeftToTheStartOfTheWord) {
  showText("_Title\r_\tOne here");
  EXPECT_EQ(leftOf(16), 13);
  EXPECT_EQ(leftOf(13), 9) << "behind the tab";
  EXPECT_EQ(leftOf(5), 1) << "behind a sentence mark";
}

TEST_F(SentencePickTest, GoesLeftFromAParagraphToTheLastWordOfTheOneAhead) {
  showText("_One here.\r_\tTwo");
  EXPECT_EQ(leftOf(13), 5) << "past the mark, the line end and the point";
}

TEST_F(SentencePickTest, GoesLeftFromASentenceToTheBlankAheadOfIt) {
  showText("_One here. _Two");
  EXPECT_EQ(leftOf(12), 11);
  EXPECT_EQ(leftOf(11), 5);
}

TEST_F(SentencePickTest, DoesNotPassASentenceMarkByThreeNearTheStart) {
  showText("x _\tTwo");
  // Back by one the caret stands at 3, which is below 4.
  EXPECT_EQ(leftOf(4), 3);
  showText("xx _\tTwo");
  EXPECT_EQ(leftOf(5), 0);
}

TEST_F(SentencePickTest, StaysAtTheStart) {
  showText("One two");
  EXPECT_EQ(leftOf(0), 0);
  EXPECT_EQ(leftOf(1), 0);
}

} // namespace
} // namespace talvora
