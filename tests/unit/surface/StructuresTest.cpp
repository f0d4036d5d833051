// The parts that a surface is made of, each by itself and against a naive twin.
#include "surface/LineCounts.h"
#include "surface/LineEnds.h"
#include "surface/ParagraphTable.h"
#include "surface/Partitioning.h"
#include "surface/RunTable.h"
#include "surface/StyleTable.h"
#include "surface/TextBuffer.h"

#include "platform/Files.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <stdexcept>

namespace talvora {
namespace {

/// Reproducible numbers from 0 to a limit, both included.
class Dice {
 public:
  int operator()(int limit) {
    return static_cast<int>(random_() % static_cast<unsigned>(limit + 1));
  }

 private:
  std::mt19937 random_{7};
};

std::vector<int> startsOf(const Partitioning& parts) {
  std::vector<int> starts;
  for (int part = 0; part < parts.count(); ++part)
    starts.push_back(parts.start(part));
  return starts;
}

std::vector<int> lineStarts(const std::string& text) {
  std::vector<int> starts = {0};
  for (std::size_t at = 1; at <= text.size(); ++at) {
    const bool pair = at < text.size() && text[at - 1] == '\r' && text[at] == '\n';
    if (!pair && (text[at - 1] == '\r' || text[at - 1] == '\n')) {
      starts.push_back(static_cast<int>(at));
    }
  }
  return starts;
}

TEST(Partitioning, FindsThePartOfAPosition) {
  Partitioning parts;
  parts.assign({0, 4, 9}, 12);
  EXPECT_EQ(parts.partOf(-1), -1);
  EXPECT_EQ(parts.partOf(0), 0);
  EXPECT_EQ(parts.partOf(3), 0);
  EXPECT_EQ(parts.partOf(4), 1);
  EXPECT_EQ(parts.partOf(12), 2);
  EXPECT_EQ(parts.start(3), 12) << "the part behind the last starts at the end";
}

TEST(Partitioning, MovesWhatLiesBehindAnEditAndNothingAhead) {
  Partitioning parts;
  parts.assign({0, 4, 9}, 12);
  parts.moveBehind(0, 5);
  EXPECT_EQ(startsOf(parts), (std::vector<int>{0, 9, 14}));
  EXPECT_EQ(parts.length(), 17);
  parts.insert(1, 3);
  parts.moveBehind(2, -1);
  EXPECT_EQ(startsOf(parts), (std::vector<int>{0, 3, 9, 13}));
  parts.erase(1, 3);
  EXPECT_EQ(startsOf(parts), (std::vector<int>{0, 13}));
  parts.Check();
}

TEST(Partitioning, CheckNamesWhatIsBroken) {
  Partitioning parts;
  parts.assign({0, 4, 4}, 12);
  EXPECT_THROW(parts.Check(), std::logic_error);
  parts.assign({1}, 12);
  EXPECT_THROW(parts.Check(), std::logic_error);
  parts.assign({0, 14}, 12);
  EXPECT_THROW(parts.Check(), std::logic_error);
}

TEST(Partitioning, EqualsAListOfNumbersThroughRandomEdits) {
  Partitioning parts;
  parts.assign({0}, 10);
  std::vector<int> twin = {0};
  int length = 10;
  Dice dice;
  for (int step = 0; step < 3000; ++step) {
    const int part = dice(static_cast<int>(twin.size()) - 1);
    const int end = part + 1 < static_cast<int>(twin.size())
                        ? twin[static_cast<std::size_t>(part) + 1]
                        : length;
    if (dice(2) == 0 && end - twin[static_cast<std::size_t>(part)] > 1) {
      const int place = twin[static_cast<std::size_t>(part)] + 1;
      parts.insert(part + 1, place);
      twin.insert(twin.begin() + part + 1, place);
    } else if (dice(4) == 0 && part > 0) {
      parts.erase(part, part + 1);
      twin.erase(twin.begin() + part);
    } else {
      const int distance = 1 + dice(5);
      parts.moveBehind(part, distance);
      for (std::size_t each = static_cast<std::size_t>(part) + 1; each < twin.size(); ++each) {
        twin[each] += distance;
      }
      length += distance;
    }
    parts.Check();
    ASSERT_EQ(startsOf(parts), twin) << "step " << step;
    ASSERT_EQ(parts.length(), length) << "step " << step;
  }
}

TEST(RunTable, OfNothingHasNoRun) {
  RunTable runs;
  runs.assign(0, 1);
  EXPECT_EQ(runs.count(), 0);
  EXPECT_EQ(runs.runOf(0), -1);
  runs.replace(0, 0, 3, 2);
  EXPECT_EQ(runs.count(), 1);
  runs.replace(0, 3, 0, 0);
  EXPECT_EQ(runs.count(), 0);
  runs.Check();
}

TEST(RunTable, JoinsEqualNeighbours) {
  RunTable runs;
  runs.assign(9, 1);
  runs.replace(3, 6, 3, 2);
  EXPECT_EQ(runs.count(), 3);
  runs.replace(3, 6, 3, 1);
  EXPECT_EQ(runs.count(), 1);
  runs.replace(3, 3, 2, 2);
  runs.replace(3, 5, 0, 7);
  EXPECT_EQ(runs.count(), 1) << "what stood between them is gone";
  runs.Check();
}

TEST(RunTable, EqualsAStyleForEachCharacterThroughRandomEdits) {
  RunTable runs;
  runs.assign(20, 0);
  std::vector<StyleId> twin(20, 0);
  Dice dice;
  for (int step = 0; step < 4000; ++step) {
    const int size = static_cast<int>(twin.size());
    const int from = dice(size);
    const int to = from + dice(std::min(size - from, 9));
    const int length = size > 300 ? 0 : dice(6);
    const auto style = static_cast<StyleId>(dice(2));
    runs.replace(from, to, length, style);
    twin.erase(twin.begin() + from, twin.begin() + to);
    twin.insert(twin.begin() + from, static_cast<std::size_t>(length), style);
    runs.Check();
    ASSERT_EQ(runs.length(), static_cast<int>(twin.size())) << "step " << step;
    for (int at = 0; at < runs.length(); ++at) {
      ASSERT_EQ(runs.styleAt(at), twin[static_cast<std::size_t>(at)]) << "step " << step;
    }
  }
}

TEST(StyleTable, GivesEqualStylesOneNumber) {
  StyleTable<CharStyle> styles;
  CharStyle red;
  red.color = 255;
  const StyleId plain = styles.idOf({});
  const StyleId first = styles.idOf(red);
  EXPECT_NE(plain, first);
  EXPECT_EQ(styles.idOf(red), first);
  EXPECT_EQ(styles[first], red);
  red.font.size = 9.5;
  EXPECT_NE(styles.idOf(red), first);
  EXPECT_EQ(styles.size(), 3U);
}

TEST(TextBuffer, EqualsAStringThroughRandomEdits) {
  TextBuffer text;
  text.assign("");
  std::string twin;
  Dice dice;
  for (int step = 0; step < 4000; ++step) {
    const int size = static_cast<int>(twin.size());
    const int from = dice(size);
    const int to = from + dice(std::min(size - from, 20));
    const std::string added(static_cast<std::size_t>(size > 2000 ? 0 : dice(15)),
                            static_cast<char>('a' + dice(25)));
    text.replace(from, to, added);
    twin.replace(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from), added);
    text.Check();
    ASSERT_TRUE(text.equals(twin)) << "step " << step;
    const int start = dice(text.length());
    const int end = start + dice(text.length() - start);
    ASSERT_EQ(text.between(start, end),
              twin.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start)));
    ASSERT_TRUE(start == text.length() || text.at(start) == twin[static_cast<std::size_t>(start)]);
  }
}

TEST(TextBuffer, ComparesWholeTexts) {
  TextBuffer text;
  text.assign("abcdef");
  text.replace(3, 3, "-");
  EXPECT_TRUE(text.equals("abc-def"));
  EXPECT_FALSE(text.equals("abc-deg"));
  EXPECT_FALSE(text.equals("xbc-def"));
  EXPECT_FALSE(text.equals("abc-de"));
}

TEST(TextBuffer, SharesAFilesMemoryUntilTheFirstChange) {
  test::TestFolder folder;
  folder.write("list.txt", "some text");
  auto file = MappedFile::open(folder.pathOf("list.txt"));
  const std::weak_ptr<const MappedFile> watched = file;
  TextBuffer text;
  text.adopt(std::move(file));
  EXPECT_TRUE(text.sharesFile());
  EXPECT_FALSE(watched.expired()) << "the file is kept";
  EXPECT_TRUE(text.equals("some text"));
  text.replace(4, 4, "thing in");
  EXPECT_FALSE(text.sharesFile());
  EXPECT_TRUE(watched.expired()) << "the file is no longer needed";
  EXPECT_TRUE(text.equals("something in text"));
  text.Check();
}

TEST(TextBuffer, AdoptsAnEmptyFile) {
  test::TestFolder folder;
  folder.write("list.txt", "");
  TextBuffer text;
  text.adopt(MappedFile::open(folder.pathOf("list.txt")));
  EXPECT_EQ(text.length(), 0);
  text.replace(0, 0, "x");
  EXPECT_TRUE(text.equals("x"));
  text.Check();
}

TEST(LineEnds, AreFoundWhereverTheyLieInAMachineWord) {
  Dice dice;
  for (int round = 0; round < 3000; ++round) {
    std::string text(static_cast<std::size_t>(dice(60)), 'a');
    for (char& each : text)
      each = "aab\r\n\x0B\x8D\x8A"[dice(7)];
    std::vector<int> expected = lineStarts(text);
    std::vector<int> inner;
    for (const int start : expected) {
      if (start > 0 && start < static_cast<int>(text.size())) inner.push_back(start + 100);
    }
    std::vector<int> found;
    appendLineStarts(text, 100, found);
    ASSERT_EQ(found, inner) << "round " << round;
  }
}

TEST(LineEnds, AreFoundInLongTexts) {
  std::string text;
  for (int line = 0; line < 5000; ++line)
    text += line % 3 == 0 ? "\n" : line % 3 == 1 ? "\r\r" : "ab\r\n";
  text += "end";
  std::vector<int> found;
  appendLineStarts(text, 0, found);
  found.insert(found.begin(), 0);
  EXPECT_EQ(found, lineStarts(text));
}

TEST(LineEnds, AreCutOffOnceAndWhole) {
  EXPECT_EQ(withoutLineEnd("a\r\n"), "a");
  EXPECT_EQ(withoutLineEnd("a\r\r"), "a\r");
  EXPECT_EQ(withoutLineEnd("a\n"), "a");
  EXPECT_EQ(withoutLineEnd("a"), "a");
  EXPECT_EQ(withoutLineEnd(""), "");
}

TEST(ParagraphTable, FollowsRandomEditsWithEveryKindOfLineEnd) {
  TextBuffer text;
  text.assign("");
  ParagraphTable paragraphs;
  Dice dice;
  const std::vector<std::string> pieces = {"a",    "\r",   "\n",         "\r\n",
                                           "x\ry", "\n\r", "long piece", ""};
  for (int step = 0; step < 6000; ++step) {
    const int from = dice(text.length());
    const int to = from + dice(std::min(text.length() - from, 5));
    const std::string piece = text.length() > 200 ? "" : pieces[static_cast<std::size_t>(dice(7))];
    text.replace(from, to, piece);
    paragraphs.replaced(from, to, piece, text);
    paragraphs.Check(text);
    const std::vector<int> expected = lineStarts(text.between(0, text.length()));
    ASSERT_EQ(paragraphs.count(), static_cast<int>(expected.size())) << "step " << step;
  }
}

TEST(TextBuffer, ShowsAStretchWithOrWithoutTheGapInIt) {
  TextBuffer text;
  text.assign("abcdef");
  text.replace(3, 3, "XY");
  std::string joined;
  EXPECT_EQ(text.view(0, 3, joined), "abc");
  EXPECT_EQ(text.view(5, 8, joined), "def");
  EXPECT_EQ(joined, "") << "nothing was copied";
  EXPECT_EQ(text.view(2, 7, joined), "cXYde");
  EXPECT_EQ(text.view(4, 4, joined), "");
}

TEST(LineCounts, AsksForEachParagraphOnce) {
  LineCounts counts;
  int asked = 0;
  const auto count = [&](int paragraph) {
    ++asked;
    return paragraph + 1;
  };
  EXPECT_EQ(counts.ahead(0, count), 0);
  EXPECT_EQ(counts.ahead(4, count), 1 + 2 + 3 + 4);
  EXPECT_EQ(counts.ahead(2, count), 1 + 2);
  EXPECT_EQ(counts.ahead(5, count), 1 + 2 + 3 + 4 + 5);
  EXPECT_EQ(asked, 5);
  counts.changed(1, 1, 0);
  EXPECT_EQ(counts.ahead(5, count), 1 + 2 + 3 + 4 + 5);
  EXPECT_EQ(asked, 6) << "the paragraphs behind the change are known";
}

TEST(LineCounts, FollowsEveryEdit) {
  Dice dice;
  LineCounts counts;
  std::vector<int> lines(40, 1);
  for (int step = 0; step < 5000; ++step) {
    const int last = static_cast<int>(lines.size()) - 1;
    const int from = dice(last);
    const int to = std::min(last, from + dice(3));
    const int now = 1 + dice(lines.size() > 60 ? 1 : 4);
    lines.erase(lines.begin() + from, lines.begin() + to + 1);
    for (int each = 0; each < now; ++each)
      lines.insert(lines.begin() + from, 1 + dice(5));
    counts.changed(from, to, now - (to - from + 1));
    const int paragraph = dice(static_cast<int>(lines.size()));
    const int ahead = std::accumulate(lines.begin(), lines.begin() + paragraph, 0);
    ASSERT_EQ(
        counts.ahead(paragraph, [&](int each) { return lines.at(static_cast<std::size_t>(each)); }),
        ahead)
        << "step " << step;
  }
}

} // namespace
} // namespace talvora
