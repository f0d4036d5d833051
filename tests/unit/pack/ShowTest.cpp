#include "pack/Show.h"

#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using talvora::test::TestFolder;
using testing::HasSubstr;

std::string shownOf(const std::string& name, std::string_view source, int line = 0) {
  const TestFolder folder;
  folder.write(name, source);
  Problems problems;
  const std::string file = folder.path() + "/" + name;
  const std::string shown = show({file, line}, problems);
  for (const Problem& problem : problems.all())
    ADD_FAILURE() << describe(problem);
  const std::size_t begin = shown.find(file);
  return begin == std::string::npos ? shown : std::string(shown).replace(begin, file.size(), "F");
}

TEST(Show, PlacesAreAFileOrALineInIt) {
  EXPECT_EQ(shownPlaceOf("a/b.txt").line, 0);
  EXPECT_EQ(shownPlaceOf("a/b.txt:12").line, 12);
  EXPECT_EQ(shownPlaceOf("a/b.txt:12").file, "a/b.txt");
  EXPECT_EQ(shownPlaceOf("a:b.txt").file, "a:b.txt");
}

TEST(Show, AFillItemHasItsCellsAnswersAndExplanations) {
  EXPECT_EQ(shownOf("lessons/002-items.txt",
                    "item: fill, past-simple\nid: bed\n\nHe {went|has gone} to {} bed.\n\n"
                    "explain:\nKhi nào?\n\nexplain 1:\nYesterday: *went*.\nsee: Thì quá khứ đơn\n"),
            "-- F:1 bed\nTHE SIMPLE PAST:\nHe _________________ to _________________ bed.\n"
            "  before judging\n    Khi nào?\n"
            "  blank 1 (went / has gone)\n    Yesterday: *went*.\n    → Thì quá khứ đơn\n"
            "  blank 2 (stays empty)\n");
}

TEST(Show, TheItemOfALineIsShownAlone) {
  const std::string two =
      "item: choice, choose\n\nShe {go} home.\n\n- go\n+ goes\n- gone\n- going\n"
      "\nitem: mistake, mistake\n\n{She} {!go} home.\n";
  const std::string first = shownOf("exercises/toefl/1.txt", two, 6);
  EXPECT_THAT(first, HasSubstr("She [go] home.\nA. go\nB. goes\n"));
  EXPECT_THAT(first, HasSubstr("  B. goes, right\n"));
  EXPECT_THAT(first, testing::Not(HasSubstr("mistake")));
  const std::string second = shownOf("exercises/toefl/1.txt", two, 12);
  EXPECT_THAT(second, testing::StartsWith("-- F:10\n"));
  EXPECT_THAT(second, HasSubstr("[She] [go] home.\n  1. She\n  2. go, the mistake\n"));
}

TEST(Show, OrderingSentencesLessonsAndTexts) {
  EXPECT_THAT(shownOf("lessons/002-items.txt", "item: order\n\nHe is very good.\n= Anh tốt.\n"),
              HasSubstr("He is very good.\n    = Anh tốt.\n"));
  EXPECT_EQ(shownOf("lessons/002-a.txt", "title: Thì đơn\n\n> She *goes*\n"),
            "Thì đơn\n\n> She *goes*\n");
  EXPECT_EQ(shownOf("reading/004-a.txt", "title: A Day\n\nIt rains.\n= Trời mưa.\n"),
            "A Day\n\nIt rains.\n    Trời mưa.\n");
}

} // namespace
} // namespace talvora::pack
