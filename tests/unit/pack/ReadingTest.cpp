// Reading texts: their sources, their place in the store, and back.
#include "pack/ReadingStore.h"

#include "formats/Integers.h"
#include "pack/StreamText.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

constexpr std::string_view source = "title: Two Days\n\nIt rained.\n= Trời mưa.\nWe stayed.\n"
                                    "= Chúng tôi ở lại.\n\nThen we left.\n= Rồi chúng tôi đi.\n";

std::vector<std::string> problemsOf(std::string_view text) {
  Problems problems;
  static_cast<void>(parseReadingText(text, "t.txt", problems));
  std::vector<std::string> lines;
  for (const Problem& problem : problems.all())
    lines.push_back(describe(problem));
  return lines;
}

TEST(Reading, LaysATextOutWithItsMarks) {
  Problems problems;
  ReadingSource all;
  all.texts[4] = parseReadingText(source, "t.txt", problems);
  ASSERT_TRUE(problems.none());
  const TextStore store = compileReadings(all);
  EXPECT_EQ(storedUntil(store.stream, integerAt(store.positions, 4), '@'),
            "Two Days\r_\tIt rained. _We stayed.\r_\tThen we left.\r");
  EXPECT_EQ(storedUntil(store.stream, integerAt(store.positions, 408 + 4), '@'),
            "_" + ownText("Trời mưa.") + "_" + ownText("Chúng tôi ở lại.") + "_" +
                ownText("Rồi chúng tôi đi."));
}

TEST(Reading, FillsEverySlot) {
  ReadingSource all;
  all.headings[1] = "GROUP";
  const TextStore store = compileReadings(all);
  EXPECT_EQ(store.positions.size(), 817U * 4);
  EXPECT_EQ(storedUntil(store.stream, integerAt(store.positions, 1), '@'), "*GROUP\r");
  for (std::size_t slot = 2; slot <= 408; ++slot) {
    EXPECT_EQ(storedUntil(store.stream, integerAt(store.positions, slot), '@'),
              openSlotTitle() + "\r_\tThis text is coming soon.\r");
    EXPECT_EQ(storedUntil(store.stream, integerAt(store.positions, 408 + slot), '@'),
              ownText("_Bài này đang được soạn, mời bạn chọn một bài khác nhé."));
  }
  EXPECT_EQ(integerAt(store.positions, 817), static_cast<int>(store.stream.size()));
}

TEST(Reading, ComesBackByteForByte) {
  Problems problems;
  ReadingSource all;
  all.texts[400] = parseReadingText(source, "t.txt", problems);
  all.headings[399] = "LISTENING";
  const TextStore store = compileReadings(all);
  const ReadingSource back = decodeReadings(store.positions, store.stream, problems);
  EXPECT_TRUE(problems.none());
  ASSERT_EQ(back.texts.size(), 1U);
  EXPECT_EQ(writeReadingText(back.texts.at(400)), source);
  EXPECT_EQ(back.headings.at(399), "LISTENING");
}

TEST(Reading, CommentsAndFurtherBlankLinesChangeNothing) {
  Problems problems;
  const auto text = parseReadingText(
      "// note\ntitle: T\n\n\n\nOne.\n= Một.\n// x\nTwo.\n= Hai.\n\n", "t.txt", problems);
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(writeReadingText(text), "title: T\n\nOne.\n= Một.\nTwo.\n= Hai.\n");
}

TEST(Reading, ReportsWhatIsWrongAndWhere) {
  EXPECT_EQ(problemsOf("title: T\n\nOne.\nTwo.\n= Hai.\n"),
            std::vector<std::string>{"t.txt:4:1: a translation (\"= ...\") is missing here"});
  EXPECT_EQ(problemsOf("title: T\n\n= Một.\n").front(),
            "t.txt:3:1: a translation without its sentence");
  EXPECT_EQ(problemsOf("title: T\n\nOne @ two.\n= Một.\n"),
            std::vector<std::string>{"t.txt:3:5: \"@\" is a mark and cannot stand in this text"});
  EXPECT_EQ(problemsOf("title: T*\n\nOne.\n= Một.\n").front().substr(0, 11), "t.txt:1:9: ");
  EXPECT_EQ(problemsOf("Title\n\nOne.\n= Một.\n").front(),
            "t.txt:1:1: the first line must be \"title: ...\"");
  EXPECT_EQ(problemsOf("").front(), "t.txt:1:1: the text has no title");
}

TEST(Reading, AtMost198SentencesFit) {
  std::string text = "title: T\n\n";
  for (int sentence = 0; sentence < 198; ++sentence)
    text += "One.\n= Một.\n";
  EXPECT_TRUE(problemsOf(text).empty());
  EXPECT_EQ(problemsOf(text + "One.\n= Một.\n"),
            std::vector<std::string>{"t.txt: the text has 199 sentences; at most 198 fit"});
}

TEST(Reading, HeadingsHaveTheirOwnSlots) {
  Problems problems;
  const auto headings = parseHeadings("1\tA\n1\tB\n409\tC\nx\n", "h.txt", problems);
  EXPECT_EQ(headings.at(1), "A");
  ASSERT_EQ(problems.all().size(), 3U);
  EXPECT_EQ(describe(problems.all()[0]), "h.txt:2:1: slot 1 is taken already");
}

TEST(Reading, MoreThan38HeadingsAreReported) {
  std::string text;
  for (int slot = 1; slot <= 39; ++slot)
    text += std::to_string(slot) + "\tA\n";
  Problems problems;
  static_cast<void>(parseHeadings(text, "h.txt", problems));
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_EQ(problems.all()[0].message, "there are more than 38 headings");
}

TEST(Reading, ADamagedStoreIsReported) {
  ReadingSource all;
  const TextStore store = compileReadings(all);
  Problems problems;
  static_cast<void>(decodeReadings(store.positions, store.stream.substr(0, 40), problems));
  EXPECT_FALSE(problems.none());
}

} // namespace
} // namespace talvora::pack
