#include "dictionary/WordList.h"

#include "platform/FatalFailure.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace talvora {
namespace {

using test::TestFolder;

class WordListTest : public testing::Test {
 protected:
  void load(std::string_view lines, const std::vector<std::int32_t>& records = {}) {
    folder.write("datatu.txt", lines);
    folder.writeIntegers("data.mtd", records);
    words.NapTuDien(folder.path(), [this] { ++ticks; });
  }
  std::string failure() {
    try {
      words.NapTuDien(folder.path(), [this] { ++ticks; });
    } catch (const FatalFailure& failed) {
      return failed.what();
    }
    return "none";
  }

  TestFolder folder;
  WordList words;
  int ticks = 0;
};

std::string repeated(std::string_view line, int count) {
  std::string text;
  for (int each = 0; each < count; ++each)
    text += line;
  return text;
}

TEST_F(WordListTest, ReadsLinesOfEveryKindOfLineEnd) {
  load("one\r\ntwo\nthree\rfour");
  ASSERT_EQ(words.count(), 4);
  EXPECT_EQ(words.Chu(1), "one");
  EXPECT_EQ(words.Chu(2), "two");
  EXPECT_EQ(words.Chu(3), "three");
  EXPECT_EQ(words.Chu(4), "four");
}

TEST_F(WordListTest, ALineThatNeverEndsIsCutOff) {
  load("one\n" + std::string(WordList::LongestLine, 'x'));
  EXPECT_EQ(words.Chu(1), "one");
  EXPECT_EQ(words.Chu(2), std::string(WordList::LongestWord, 'x'));
}

TEST_F(WordListTest, EndsTheProgramAtALineThatWouldTakeTooLongToShow) {
  folder.writeIntegers("data.mtd", {});
  folder.write("datatu.txt", "one\n" + std::string(2 * WordList::LongestLine, 'x'));
  EXPECT_THAT(failure(), testing::HasSubstr("datatu.txt: line 2: the line is too long for a word"));
}

TEST_F(WordListTest, CountsNoLineBehindTheLastLineEnd) {
  load("one\r\ntwo\r\n");
  EXPECT_EQ(words.count(), 2);
}

TEST_F(WordListTest, TellsWhereTheParagraphsOfItsTextStart) {
  load("one\r\ntwo\n\rfour");
  EXPECT_THAT(words.paragraphStarts(), testing::ElementsAre(0, 5, 9, 10));
  load("one\r\ntwo\r\n");
  EXPECT_THAT(words.paragraphStarts(), testing::ElementsAre(0, 5, 10));
  load("");
  EXPECT_THAT(words.paragraphStarts(), testing::ElementsAre(0));
}

TEST_F(WordListTest, CountsEmptyLines) {
  load("one\r\r\n\n\ntwo");
  EXPECT_EQ(words.count(), 5);
  EXPECT_EQ(words.Chu(2), "");
  EXPECT_EQ(words.Chu(5), "two");
}

TEST_F(WordListTest, FindsLinesThatMeetThePiecesInWhichTheFileIsRead) {
  // A line end of two characters lies across each multiple of 65536 in one of these.
  for (int shift = 0; shift < 4; ++shift) {
    std::string text(static_cast<std::size_t>(65534 - shift), 'x');
    load(text + "\r\n" + "next\r\n" + std::string(65536, 'y') + "\r" + "last");
    ASSERT_EQ(words.count(), 4) << shift;
    EXPECT_EQ(words.Chu(2), "next");
    EXPECT_EQ(words.Chu(4), "last");
  }
}

TEST_F(WordListTest, HasNoWordOutsideTheList) {
  load("one\r\n");
  for (const int i : {-1, 0, 2, 385083})
    EXPECT_EQ(words.Chu(i), "") << i;
}

TEST_F(WordListTest, ReadsBothPositionsOfAWordAndZeroPastTheFile) {
  load("one\r\ntwo\r\n", {11, 5, 22, 10});
  EXPECT_EQ(words.ViTriNghia(1), 11);
  EXPECT_EQ(words.ViTriDanhSach(1), 5);
  EXPECT_EQ(words.ViTriNghia(2), 22);
  EXPECT_EQ(words.ViTriDanhSach(2), 10);
  for (const int i : {-1, 0, 3, 385082, 400000}) {
    EXPECT_EQ(words.ViTriNghia(i), 0) << i;
    EXPECT_EQ(words.ViTriDanhSach(i), 0) << i;
  }
}

TEST_F(WordListTest, ReadsNoRecordBehindTheNumberOfWords) {
  std::vector<std::int32_t> records(2 * 385083, 7);
  load("one", records);
  EXPECT_EQ(words.ViTriNghia(385082), 7);
  EXPECT_EQ(words.ViTriNghia(385083), 0);
}

TEST_F(WordListTest, MarksASectionAtEachLineOfOneLetter) {
  load("a\r\nable\r\nb\r\nbat\r\nB\r\n,\r\n1\r\nc");
  const std::vector<std::int32_t> slots(words.ChiSoChu.begin(), words.ChiSoChu.end());
  std::vector<std::int32_t> expected(27, 0);
  expected[0] = 1;
  expected[1] = 3;
  expected[2] = 5;
  expected[3] = 6;
  expected[4] = 8;
  expected[26] = 9;
  EXPECT_EQ(slots, expected);
}

TEST_F(WordListTest, WritesTheLastSlotOverATwentySeventhMark) {
  load(repeated("a\r\n", 27) + "end\r\n");
  EXPECT_EQ(words.ChiSoChu[25], 26);
  EXPECT_EQ(words.ChiSoChu[26], 29);
}

TEST_F(WordListTest, EndsTheProgramAtATwentyEighthMark) {
  folder.write("datatu.txt", "word\r\n" + repeated("a\r\n", 28));
  folder.write("data.mtd", "");
  EXPECT_THAT(failure(),
              testing::AllOf(testing::HasSubstr("datatu.txt"), testing::HasSubstr("line 29:")));
}

TEST_F(WordListTest, TakesOneLineMoreThanWordsAndNoFurther) {
  load(repeated("xy\n", 385083));
  EXPECT_EQ(words.count(), 385083);
  folder.write("datatu.txt", repeated("xy\n", 385084));
  EXPECT_THAT(failure(),
              testing::AllOf(testing::HasSubstr("datatu.txt"), testing::HasSubstr("line 385084:")));
}

TEST_F(WordListTest, TicksNineteenTimesOnTheWholeList) {
  load(repeated("xy\n", 385082));
  EXPECT_EQ(ticks, 19);
}

TEST_F(WordListTest, TicksAheadOfTheFirstLineOfTheText) {
  load("one\n");
  EXPECT_EQ(ticks, 11);
  ticks = 0;
  load(repeated("xy\n", 48135));
  EXPECT_EQ(ticks, 11);
  ticks = 0;
  load(repeated("xy\n", 48136));
  EXPECT_EQ(ticks, 12);
}

TEST_F(WordListTest, NamesAFileThatIsMissing) {
  folder.write("datatu.txt", "one");
  EXPECT_THAT(failure(), testing::HasSubstr("data.mtd"));
  EXPECT_EQ(ticks, 0);
  folder.write("data.mtd", "");
  folder.remove("datatu.txt");
  EXPECT_THAT(failure(), testing::HasSubstr("datatu.txt"));
  EXPECT_EQ(ticks, 10);
}

int walkTo(const WordList& words, int caret) {
  int i = 1;
  while (i < WordList::WordCount && words.ViTriDanhSach(i) <= caret)
    ++i;
  return i;
}

TEST_F(WordListTest, FindsTheLineAtACaretAsAWalkDoes) {
  std::mt19937 random(3);
  for (int round = 0; round < 40; ++round) {
    std::vector<std::int32_t> records;
    std::int32_t caret = 0;
    for (int i = 0; i < 60; ++i) {
      caret += static_cast<std::int32_t>(random() % 5);
      // In every second list some carets fall, or are below 0.
      const bool falls = round % 2 == 1 && random() % 6 == 0;
      records.push_back(0);
      records.push_back(falls ? static_cast<std::int32_t>(random() % 200) - 40 : caret);
    }
    load("one", records);
    if (round % 3 != 0) words.examineCarets();
    for (int at = 0; at < 140; at += 3)
      EXPECT_EQ(words.lineAt(at), walkTo(words, at)) << at;
  }
}

TEST_F(WordListTest, TakesTheLastWordWhereNoLineLiesBehindTheCaret) {
  load("one");
  words.examineCarets();
  EXPECT_EQ(words.lineAt(0), WordList::WordCount);
  load("one\n", std::vector<std::int32_t>(2 * WordList::WordCount, 4));
  words.examineCarets();
  EXPECT_EQ(words.lineAt(3), 1);
  EXPECT_EQ(words.lineAt(4), WordList::WordCount);
}

} // namespace
} // namespace talvora
