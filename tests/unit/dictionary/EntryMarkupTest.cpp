#include "dictionary/EntryMarkup.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using Spans = std::vector<EntrySpan>;

std::string covered(const ShownEntry& entry, EntrySpan span) {
  return entry.text.substr(static_cast<std::size_t>(span.start),
                           static_cast<std::size_t>(span.length));
}

TEST(EntryMarkup, StartsEachSenseOnALineWithADash) {
  EXPECT_EQ(readMarkup("cat~_one_two_three\r").text, "cat \r - one\r - two\r - three\r");
}

TEST(EntryMarkup, ColoursWhatStandsBetweenTwoHashes) {
  const ShownEntry entry = readMarkup("a#noun #b");
  EXPECT_EQ(entry.text, "a noun b");
  ASSERT_EQ(entry.blue, (Spans{{1, 5}}));
  EXPECT_EQ(covered(entry, entry.blue[0]), " noun");
}

TEST(EntryMarkup, EndsOneShortAheadOfAMarkWithoutABlank) {
  const ShownEntry entry = readMarkup("a#noun#b");
  EXPECT_EQ(entry.text, "a noun b");
  EXPECT_EQ(covered(entry, entry.blue.at(0)), " nou");
}

TEST(EntryMarkup, EndsAnItalicSpanAtTheNextBlank) {
  const ShownEntry entry = readMarkup("a^very big");
  EXPECT_EQ(entry.text, "a very big");
  ASSERT_EQ(entry.redItalic, (Spans{{1, 5}}));
  EXPECT_EQ(covered(entry, entry.redItalic[0]), " very");
}

TEST(EntryMarkup, EndsAnItalicSpanAtItsOwnMarkOneShort) {
  const ShownEntry entry = readMarkup("a^very^big");
  EXPECT_EQ(covered(entry, entry.redItalic.at(0)), " ver");
}

TEST(EntryMarkup, EndsAnItalicSpanAtAHashWithItsWholeCount) {
  const ShownEntry entry = readMarkup("a^very#big #");
  EXPECT_EQ(covered(entry, entry.redItalic.at(0)), " very");
  EXPECT_EQ(covered(entry, entry.blue.at(0)), " big");
}

TEST(EntryMarkup, GivesTheLengthOfACrossedBlueSpanToTheItalicOfTheSamePlace) {
  // The italic span that opens there is never closed, so it keeps the length that crossed over.
  const ShownEntry entry = readMarkup("#abc^def");
  EXPECT_EQ(entry.text, " abc def");
  EXPECT_EQ(entry.blue, (Spans{{0, 0}}));
  EXPECT_EQ(entry.redItalic, (Spans{{4, 4}}));
}

TEST(EntryMarkup, LetsACrossedLengthOverwriteAnEarlierItalicSpan) {
  const ShownEntry entry = readMarkup("^ab #xyz12^q ");
  EXPECT_EQ(entry.text, " ab xyz12 q ");
  // The first mark closed with length 3 at the blank; then the blue span's count of 5 came over.
  // The blank of its "#" had followed a blank and was dropped, so it does not count.
  EXPECT_EQ(entry.redItalic, (Spans{{0, 5}, {9, 2}}));
  EXPECT_EQ(entry.blue, (Spans{{4, 0}}));
}

TEST(EntryMarkup, LeavesAnUnclosedSpanWithoutLength) {
  EXPECT_EQ(readMarkup("a#noun").blue, (Spans{{1, 0}}));
  EXPECT_EQ(readMarkup("a^noun").redItalic, (Spans{{1, 0}}));
}

TEST(EntryMarkup, DropsBlanksThatAreTooMany) {
  EXPECT_EQ(readMarkup("a  b").text, "a b");
  EXPECT_EQ(readMarkup("a ~#^ b").text, "a b");
  EXPECT_EQ(readMarkup("( a )b").text, "(a)b");
  EXPECT_EQ(readMarkup("_ one").text, "\r - one");
}

TEST(EntryMarkup, KeepsABlankAtTheVeryEnd) {
  EXPECT_EQ(readMarkup("a ").text, "a ");
}

TEST(EntryMarkup, CountsNoDroppedBlankInASpan) {
  const ShownEntry entry = readMarkup("a#( b ) c #");
  EXPECT_EQ(entry.text, "a (b) c ");
  EXPECT_EQ(covered(entry, entry.blue.at(0)), " (b) c");
}

TEST(EntryMarkup, CountsADashLineWithItsFourCharacters) {
  const ShownEntry entry = readMarkup("#a_b #");
  EXPECT_EQ(entry.text, " a\r - b ");
  EXPECT_EQ(covered(entry, entry.blue.at(0)), " a\r - b");
}

TEST(EntryMarkup, OpensNoMoreThanThreeHundredSpansOfAKind) {
  std::string entry;
  for (int each = 0; each < 310; ++each)
    entry += "#b #^i ";
  const ShownEntry shown = readMarkup(entry);
  EXPECT_EQ(shown.blue.size(), ShownEntry::MostSpans);
  EXPECT_EQ(shown.redItalic.size(), ShownEntry::MostSpans);
  EXPECT_EQ(covered(shown, shown.blue.back()), "b");
  EXPECT_EQ(covered(shown, shown.redItalic.back()), "i");
}

TEST(EntryMarkup, ShowsNothingOfNothing) {
  EXPECT_EQ(readMarkup("").text, "");
}

} // namespace
} // namespace talvora
