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
  std::string shown = show({file, line}, problems);
  for (const Problem& problem : problems.all())
    ADD_FAILURE() << describe(problem);
  for (std::size_t at = 0; (at = shown.find(file, at)) != std::string::npos;)
    shown.replace(at, file.size(), "F");
  return shown;
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

TEST(Show, AQuestionToListenToHasItsAnswers) {
  const std::string unit = "// Unit 1\n2: She sells bread.\n+ She sells bread.\n- She tells Fred.\n"
                           "- She sells red.\n- He sells bread.\n\n"
                           "3: It rains.\n+ It rains.\n- It runs.\n- It reigned.\n- He rains.\n";
  EXPECT_THAT(shownOf("listening/unit-1.txt", unit, 4),
              "-- F:2\n2. heard: She sells bread.\nA. She sells bread., right\nB. She tells Fred.\n"
              "C. She sells red.\nD. He sells bread.\n");
  EXPECT_THAT(shownOf("mine.txt", unit), HasSubstr("\n\n-- F:8\n3. heard: It rains.\n"))
      << "a unit is known by how it begins";
}

constexpr std::string_view entries = "// Words\n"
                                     "see A1\n  v. 1 thấy: see sth\n  v. 2 gặp\n"
                                     "    > See you! = Hẹn gặp lại!\n"
                                     "  phrases: see to = lo liệu\n  forms: saw, seen\n\n"
                                     "saw\n  n. [c] cái cưa\n  forms-first\n";

/// A course of its own with these entries, so that no voice says how they are said.
std::string entriesOf(const std::string& file, int line) {
  const TestFolder folder;
  folder.write("pronunciation.txt", "see = /si:/\nsaw = /so:/\n");
  folder.write("dictionary/s.txt", entries);
  folder.write("drafts/s.txt", "saw\n  n. [c] cái cưa\n");
  Problems problems;
  std::string shown = show({folder.path() + "/" + file, line}, problems);
  EXPECT_TRUE(problems.none());
  return shown.substr(shown.find(" ") + folder.path().size() + 2);
}

TEST(Show, AnEntryIsShownAsThePopupShowsIt) {
  const std::string see =
      "dictionary/s.txt:2\nsee /si:/ (saw, seen) A1\n - động từ 1 thấy: see sth\n"
      " - 2 gặp\n - cụm: see to lo liệu\n - vd: See you! = Hẹn gặp lại!\n";
  const std::string saw =
      "dictionary/s.txt:9\nsaw /so:/\n - quá khứ của see\n - động từ 1 thấy\n - 2 gặp\n - saw\n"
      " - danh từ, đếm được cái cưa\n";
  EXPECT_EQ(entriesOf("dictionary/s.txt", 5), see);
  EXPECT_EQ(entriesOf("dictionary/s.txt", 10), saw);
  EXPECT_THAT(entriesOf("dictionary/s.txt", 0), HasSubstr("Hẹn gặp lại!\n\n-- "));
  EXPECT_EQ(entriesOf("drafts/s.txt", 0),
            "drafts/s.txt:1\nsaw /so:/\n - danh từ, đếm được cái cưa\n")
      << "a file elsewhere is read by itself";
}

TEST(Show, AWordOfOneLetterStandsAtItsLetter) {
  EXPECT_THAT(shownOf("mine.txt", "I A1\n  pron. tôi\n    > I go. = Tôi đi.\n"),
              HasSubstr(" - đại từ tôi\n - vd: I go. = Tôi đi.\n"));
}

TEST(Show, TwoWordsOfOneSpellingShareAnEntry) {
  const std::string lies = "lie\n  v. nằm\n  forms: lay, lain\n\nlie\n  v. nói dối\n";
  const std::string shown = shownOf("dictionary/l.txt", lies);
  EXPECT_THAT(shown, HasSubstr("nằm"));
  EXPECT_EQ(shown.find("nói dối"), shown.rfind("nói dối"));
  EXPECT_THAT(shownOf("dictionary/l.txt", lies, 6), testing::StartsWith("-- F:1\nlie"));
}

TEST(Show, AStretchHasTheLabelsOfThePanelAndItsLessons) {
  const std::string analysis =
      "word: My sister\nclass: cụm danh từ\nposition: đầu câu\nfunction: chủ ngữ\nidea: chị tôi\n"
      "needed: My sister\nbecause: câu cần một chủ ngữ.\nlesson: 2\n\n"
      "word: makes\nclass: động từ\nposition: sau chủ ngữ\nfunction: động từ chính\n"
      "idea: pha\nneeded: makes\nbecause: chủ ngữ số ít.\n";
  EXPECT_EQ(shownOf("analysis/01.txt", analysis, 3),
            "-- F:1\nTừ: My sister\nTự loại: cụm danh từ\nVị trí: đầu câu\n"
            "Chức năng: chủ ngữ\nY’cần viết: chị tôi\nPhải có từ My sister ở vị trí này vì: "
            "câu cần một chủ ngữ.\n→ 2\n");
  EXPECT_THAT(shownOf("analysis/01.txt", analysis), HasSubstr("→ 2\n\n-- F:10\nTừ: makes\n"));
}

} // namespace
} // namespace talvora::pack
