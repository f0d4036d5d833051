// How a caret becomes a word: where the caret goes first, how far the selection reaches, and what
// of it is kept.
#include "support/ShellRun.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ShellRun;

class WordPickTest : public testing::Test {
 protected:
  WordPickTest() { run.show(R2); }

  void showText(const std::string& text) {
    run.state.text.CauHoi = text;
    R2.Text(text);
  }
  /// Picks the word at a caret of a text and gives the selection.
  std::string pick(const std::string& text, int caret) {
    showText(text);
    run.state.atHand.take("before");
    R2.SelStart(caret);
    pickBehindClick();
    return R2.SelText();
  }
  void pickBehindClick() { run.shell.wordPick.ChonTu(R2); }
  [[nodiscard]] std::string word() const { return run.state.word.TuHienTai; }

  ShellRun run;
  Surface& R2 = run.controls.R2;
};

TEST_F(WordPickTest, WidensToBothSidesInsideAWord) {
  for (const int caret : {4, 5, 6, 7})
    EXPECT_EQ(pick("the word here", caret), "word") << caret;
  EXPECT_EQ(word(), "word");
}

TEST_F(WordPickTest, WidensToBothSidesAtTheStartOfTheText) {
  // The characters at the left of these two carets are not looked at.
  EXPECT_EQ(pick(", or", 1), "");
  EXPECT_EQ(word(), "before");
  EXPECT_EQ(pick("one two", 0), "one");
  EXPECT_EQ(pick("one two", 1), "one");
}

TEST_F(WordPickTest, GoesByWhatTheSurfaceShowsAndNotByTheTextAtHand) {
  showText("one, two three");
  for (const char* other : {"", "_.one,,,,,,,,,,,,", "_.\r\r\r\r\r\r\r\r\r\r\r\r\r\r\r"}) {
    run.state.text.CauHoi = other;
    for (const int caret : {11, 12, 13, 14}) {
      R2.SelStart(caret);
      pickBehindClick();
      EXPECT_EQ(R2.SelText(), "three") << other << caret;
      R2.SelStart(caret);
      run.shell.wordPick.ChonTuBT(R2);
      EXPECT_EQ(R2.SelText(), "three") << other << caret;
    }
    R2.SelStart(4);
    run.shell.wordPick.ChonTuBT(R2);
    EXPECT_EQ(R2.SelText(), "two") << "the blank behind a comma";
    R2.SelStart(5);
    run.shell.wordPick.ChonTuBT(R2);
    EXPECT_EQ(R2.SelText(), "two");
  }
}

TEST_F(WordPickTest, OnALessonALineEndIsSteppedOverByTwo) {
  showText("one.\r\xA0\ttwo three");
  R2.SelStart(5);
  run.shell.wordPick.ChonTuBT(R2);
  EXPECT_EQ(R2.SelText(), "two");
}

TEST_F(WordPickTest, OnALessonALinesFirstWordIsTakenWholeFromItsVeryStart) {
  for (const std::string ahead : {"", "\t", "\xA0", "\xA0\t", "- "}) {
    showText("one.\r" + ahead + "two three");
    R2.SelStart(5);
    run.shell.wordPick.ChonTuBT(R2);
    EXPECT_EQ(R2.SelText(), "two") << ahead;
    EXPECT_EQ(word(), "two") << ahead;
  }
  showText("one.\r\rtwo three");
  R2.SelStart(5);
  run.shell.wordPick.ChonTuBT(R2);
  EXPECT_EQ(R2.SelText(), "") << "an empty line has no word";
}

TEST_F(WordPickTest, StepsOverTheMarkBehindALineEnd) {
  EXPECT_EQ(pick("One.\r\xA0Two here", 5), "Two");
  EXPECT_EQ(pick("One.\r\tTwo here", 5), "Two");
}

TEST_F(WordPickTest, ALinesFirstWordWithoutAMarkIsTakenWhole) {
  EXPECT_EQ(pick("One.\rThere is", 5), "There");
  EXPECT_EQ(word(), "There");
  EXPECT_EQ(pick("One.\r2nd of it", 5), "2nd");
}

TEST_F(WordPickTest, APageIsToldOfThePickOnce) {
  showText("the word here");
  R2.SelStart(6);
  int told = 0;
  R2.SelChange = [&told] { ++told; };
  pickBehindClick();
  EXPECT_EQ(R2.SelText(), "word");
  EXPECT_EQ(told, 1);
}

TEST_F(WordPickTest, StepsOverTheTabBehindASentenceMark) {
  EXPECT_EQ(pick("One.\r\xA0\tTwo here", 6), "Two");
  EXPECT_EQ(R2.SelStart(), 7);
}

TEST_F(WordPickTest, TakesTheWordThatFollowsASentenceMark) {
  EXPECT_EQ(pick("One. \xA0Two here", 6), "Two");
  EXPECT_EQ(R2.SelStart(), 6);
}

TEST_F(WordPickTest, TakesTheWordThatFollowsATab) {
  EXPECT_EQ(pick("One.\r\tTwo here", 6), "Two");
}

TEST_F(WordPickTest, TakesTheNextWordOnTheBlankBehindAComma) {
  EXPECT_EQ(pick("one, two", 4), "two");
  EXPECT_EQ(R2.SelStart(), 5);
}

TEST_F(WordPickTest, TakesTheLastWordOfALineBehindItsLastPoint) {
  for (const char point : {'.', '?', '!', ':'}) {
    const std::string text = std::string("the end") + point + "\rNext one";
    EXPECT_EQ(pick(text, 8), "end") << point;
    EXPECT_EQ(word(), "end") << point;
  }
}

TEST_F(WordPickTest, TakesTheLastWordOfALineBehindItsQuotationMark) {
  // Neither the quotation mark nor the line end bounds a word on its right.
  EXPECT_EQ(pick("the \"end\"\rof it", 9), "\"end\"\rof");
  EXPECT_EQ(word(), "endof");
}

TEST_F(WordPickTest, TakesNothingOnTheBlankBehindAPoint) {
  for (const char point : {'.', '"', '?', '!', ':'}) {
    const std::string text = std::string("the end") + point + " Next one";
    EXPECT_EQ(pick(text, 8), "") << point;
    EXPECT_EQ(R2.SelStart(), 8) << point;
    EXPECT_EQ(word(), "before") << point;
  }
}

TEST_F(WordPickTest, DoesNotWidenToTheLeftBehindAPointInsideAWord) {
  EXPECT_EQ(pick("see a.m here", 6), "m");
}

TEST_F(WordPickTest, EndsAtEveryBoundOnTheLeft) {
  for (const char bound : std::string_view("< ,;:.?!\r\t\x93")) {
    const std::string text = std::string("xx") + bound + "word yy";
    EXPECT_EQ(pick(text, 5), "word") << static_cast<int>(bound);
  }
  for (const char inside : std::string_view(">\x94\xA0(-\"")) {
    const std::string text = std::string("xx") + inside + "word yy";
    EXPECT_EQ(pick(text, 5), std::string("xx") + inside + "word") << static_cast<int>(inside);
  }
}

TEST_F(WordPickTest, EndsAtEveryBoundOnTheRight) {
  for (const char bound : std::string_view(" ,;:.?>!\x94")) {
    const std::string text = std::string("xx word") + bound + "yy";
    EXPECT_EQ(pick(text, 5), "word") << static_cast<int>(bound);
  }
  for (const char inside : std::string_view("<\r\t\x93\xA0)-\"")) {
    const std::string text = std::string("xx word") + inside + "yy";
    EXPECT_EQ(pick(text, 5), std::string("word") + inside + "yy") << static_cast<int>(inside);
  }
}

TEST_F(WordPickTest, WidensASelectionFromBothItsEnds) {
  showText("the old bank here");
  R2.SelStart(5);
  R2.SelLength(4);
  pickBehindClick();
  EXPECT_EQ(R2.SelText(), "old bank");
  EXPECT_EQ(word(), "old bank");
}

TEST_F(WordPickTest, KeepsOnlyTheCharactersOfWordsAndTrims) {
  EXPECT_EQ(pick("xx (o'clock-9\xE0) yy", 6), "(o'clock-9\xE0)");
  EXPECT_EQ(word(), "o'clock-9");
  EXPECT_EQ(WordPick::lettersOf("  A, b'c-d 10! \x93 "), "A, b'c-d 10");
  EXPECT_EQ(WordPick::lettersOf("?!"), "");
}

TEST_F(WordPickTest, LeavesTheWordWhereNothingIsSelected) {
  run.state.atHand.take("before");
  showText("one");
  run.shell.wordPick.LayTuChon(R2);
  EXPECT_EQ(word(), "before");
  R2.SelLength(3);
  run.shell.wordPick.LayTuChon(R2);
  EXPECT_EQ(word(), "one");
}

TEST_F(WordPickTest, TakesTheFirstWordOffASelectedPhrase) {
  showText("see: Press The Key now");
  R2.SelStart(5);
  R2.SelLength(13);
  run.shell.wordPick.LayCumTu(R2);
  EXPECT_EQ(word(), "press");
  EXPECT_EQ(R2.SelText(), "The Key");
  run.shell.wordPick.LayCumTu(R2);
  EXPECT_EQ(word(), "the");
  EXPECT_EQ(R2.SelText(), "Key");
  run.shell.wordPick.LayCumTu(R2);
  EXPECT_EQ(word(), "the") << "a single word is no phrase";
  EXPECT_EQ(R2.SelText(), "Key");
}

} // namespace
} // namespace talvora
