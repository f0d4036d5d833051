#include "formats/Integers.h"
#include "pack/LessonStore.h"
#include "pack/StreamText.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using talvora::test::TestFolder;

std::vector<std::string> described(const Problems& problems) {
  std::vector<std::string> all;
  for (const Problem& problem : problems.all())
    all.push_back(describe(problem));
  return all;
}

std::string stored(std::string_view utf8, LineKind kind) {
  Problems problems;
  const MarkedLine line = parseMarkedLine(utf8, {"f", 1, 1}, kind, problems);
  EXPECT_THAT(described(problems), testing::IsEmpty()) << utf8;
  EXPECT_EQ(writeMarkedLine(line), utf8);
  const std::string result = encodeMarkedLine(line, kind);
  EXPECT_EQ(writeMarkedLine(decodeMarkedLine(result, kind)), utf8) << result;
  return result;
}

std::string problemOf(std::string_view utf8, LineKind kind) {
  Problems problems;
  static_cast<void>(parseMarkedLine(utf8, {"f", 7, 1}, kind, problems));
  return problems.none() ? "" : describe(problems.all().front());
}

TEST(ColouredLine, OfALessonIsStoredWithItsMarks) {
  EXPECT_EQ(stored("plain & simple", LineKind::Lesson), "plain & simple");
  EXPECT_EQ(stored("add *-s* or *es*.", LineKind::Lesson), "add `-s or `es.");
  EXPECT_EQ(stored("*have gone*, now", LineKind::Lesson), "`have `gone, now");
  EXPECT_EQ(stored("> She *goes* home", LineKind::Lesson), "&She `goes home");
  EXPECT_EQ(stored("Form: >> S + V", LineKind::Lesson), "Form: ~S + V");
  EXPECT_EQ(stored("(a *b);* c *d!*", LineKind::Lesson), "(a `b); c `d!");
}

TEST(ColouredLine, OfAnExplanationIsStoredWithItsMarks) {
  EXPECT_EQ(stored("use *went* now", LineKind::Explanation), "use #went now");
  EXPECT_EQ(stored("use *went*? yes", LineKind::Explanation), "use #went?# yes");
  EXPECT_EQ(stored("> a: *b* c", LineKind::Explanation), "&a:& #b& c");
  EXPECT_EQ(stored("> *Red* first", LineKind::Explanation), "&#Red& first");
  EXPECT_EQ(stored("x >> rest", LineKind::Explanation), "x &rest");
}

TEST(ColouredLine, MarksThatDoNotEndRedInALessonTurnRedWithTheWord) {
  Problems problems;
  const auto parsed = [&](std::string_view utf8) {
    return writeMarkedLine(parseMarkedLine(utf8, {"f", 1, 1}, LineKind::Lesson, problems));
  };
  EXPECT_EQ(parsed("(a *b*); c *d*!"), "(a *b);* c *d!*");
  EXPECT_EQ(parsed("*a*, *b*."), "*a*, *b*.") << "a comma and a point stay black";
  EXPECT_TRUE(problems.none());
}

TEST(ColouredLine, ProblemsNameTheirPlace) {
  EXPECT_EQ(problemOf("ê *open", LineKind::Lesson), "f:7:3: this \"*\" is not closed");
  EXPECT_THAT(problemOf("*go*x", LineKind::Lesson),
              testing::StartsWith("f:7:4: behind the closing"));
  EXPECT_EQ(problemOf("*go home *now* x", LineKind::Lesson), "f:7:1: this \"*\" is not closed");
  EXPECT_THAT(problemOf("a>>b", LineKind::Lesson), testing::HasSubstr(":7:2:"));
  EXPECT_THAT(problemOf(">> b", LineKind::Lesson), testing::HasSubstr("stands between two blanks"));
  EXPECT_THAT(problemOf("a >> b >> c", LineKind::Lesson), testing::HasSubstr("blue already"));
  EXPECT_THAT(problemOf("> a >> c", LineKind::Lesson), testing::HasSubstr("blue already"));
  EXPECT_THAT(problemOf("&a", LineKind::Lesson), testing::HasSubstr("cannot begin with"));
  EXPECT_THAT(problemOf("a  b", LineKind::Lesson), testing::HasSubstr("a blank stands behind"));
  EXPECT_THAT(problemOf("a ( b", LineKind::Lesson), testing::HasSubstr("a blank stands behind"));
  EXPECT_THAT(problemOf("ab ", LineKind::Lesson), testing::HasSubstr("a blank at an end"));
  EXPECT_THAT(problemOf("a@b", LineKind::Lesson), testing::HasSubstr(":7:2:"));
  EXPECT_THAT(problemOf("**", LineKind::Lesson), testing::HasSubstr("nothing between"));
  EXPECT_THAT(problemOf("* a*", LineKind::Lesson), testing::HasSubstr("not with a blank"));
  EXPECT_THAT(problemOf("?12", LineKind::Explanation), testing::HasSubstr("see: "));
  EXPECT_THAT(problemOf("*a**b*", LineKind::Explanation), testing::HasSubstr("between two red"));
  EXPECT_THAT(problemOf("a^b", LineKind::Explanation), testing::HasSubstr("is a mark"));
}

TEST(LessonSource, ReadsTitleAndLinesWithEmptyOnesBetween) {
  Problems problems;
  const Lesson lesson = parseLesson("// note\ntitle: Thì đơn\n\none\n\n> two\n\n\n", "f", problems);
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(utf8Of(lesson.title), "Thì đơn");
  ASSERT_EQ(lesson.lines.size(), 3U);
  EXPECT_EQ(lesson.lines[1].text, "");
  EXPECT_EQ(writeLesson(lesson), "title: Thì đơn\n\none\n\n> two\n");
}

TEST(LessonSource, ReportsMissingAndForbiddenParts) {
  for (const auto& [text, message] : {std::pair{"", "no title"},
                                      {"Title\n\nx\n", "title: "},
                                      {"title: a\n", "no text"},
                                      {"title: .a\n\nx\n", "cannot begin with a point"},
                                      {"title: a*b\n\nx\n", "f:1:9:"},
                                      {"title: a#b\n\nx\n", "f:1:9:"},
                                      {"title: a ( b\n\nx\n", "a blank stands behind"}}) {
    Problems problems;
    static_cast<void>(parseLesson(text, "f", problems));
    EXPECT_THAT(described(problems), testing::Contains(testing::HasSubstr(message))) << text;
  }
}

TEST(LessonSource, FoldersAreCheckedAsAWhole) {
  const TestFolder folder;
  folder.write("002-one.txt", "title: Same\n\nx\n");
  folder.write("003-again.txt", "title: Other\n\nx\n");
  folder.write("003-two.txt", "title: Third\n\nx\n");
  folder.write("004-two.txt", "title: Same\n\nx\n");
  folder.write("old/005-old.txt", "title: Old\n\nx\n");
  folder.write("400-far.txt", "title: Far\n\nx\n");
  folder.write("002-items.txt", "not read here");
  folder.write("headings.txt", "2\tGroup\n");
  Problems problems;
  const LessonSource source = readLessons(folder.path(), problems);
  EXPECT_THAT(described(problems),
              testing::UnorderedElementsAre(
                  testing::HasSubstr("003-two.txt: slot 3 has a lesson already: " + folder.path() +
                                     "/003-again.txt"),
                  testing::HasSubstr("002-one.txt"),
                  testing::HasSubstr("old: no lesson is read from it"),
                  testing::HasSubstr("NNN-slug.txt"), testing::HasSubstr("cannot be a heading")));
  EXPECT_EQ(source.slotOf("Same"), 2);
  EXPECT_EQ(source.slotOf("None"), std::nullopt);
}

TEST(LessonStore, FillsEverySlotAndMarksLessonsWithItems) {
  Problems problems;
  LessonSource source;
  source.lessons[2] = parseLesson("title: A\n\n> b\n\nc\n", "f", problems);
  source.headings[3] = "Group";
  const TextStore store = compileLessons(source, {2});
  EXPECT_EQ(store.positions.size(), 357U * 4);
  EXPECT_EQ(storedUntil(store.stream, integerAt(store.positions, 1), '@'),
            ownText("(đang soạn)") + "\r" +
                ownText("Bài này đang được soạn, mời bạn học một bài khác nhé."));
  EXPECT_EQ(storedUntil(store.stream, integerAt(store.positions, 2), '@'), ".A\r&b\r\rc");
  EXPECT_EQ(storedUntil(store.stream, integerAt(store.positions, 3), '@'),
            "*Group\r" + ownText("Các bài của phần này đang được soạn."));
  const LessonSource back = decodeLessons(store.positions, store.stream, problems);
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(back.lessons.size(), 1U);
  EXPECT_EQ(writeLesson(back.lessons.at(2)), writeLesson(source.lessons.at(2)));
  EXPECT_EQ(back.headings, source.headings);
}

TEST(LessonStore, AHeadingsPageNamesTheLessonsBelowIt) {
  Problems problems;
  LessonSource source;
  for (const int slot : {1, 3, 5, 7})
    source.lessons[slot] =
        parseLesson("title: T" + std::to_string(slot) + "\n\na\n", "f", problems);
  source.headings = {{2, "Group"}, {6, "Next"}};
  const TextStore store = compileLessons(source, {});
  EXPECT_EQ(storedUntil(store.stream, integerAt(store.positions, 2), '@'),
            "*Group\r" + ownText("Phần này có những bài sau, mời bạn bấm Esc rồi chọn một bài:") +
                "\r\rT3\rT5");
  EXPECT_EQ(decodeLessons(store.positions, store.stream, problems).headings, source.headings);
}

TEST(LessonStore, ADamagedStoreIsReportedByLesson) {
  Problems problems;
  static_cast<void>(decodeLessons("", "", problems));
  EXPECT_EQ(problems.all().size(), 357U);
  EXPECT_EQ(describe(problems.all().front()), "datavp.n: lesson 1 cannot be read");
}

} // namespace
} // namespace talvora::pack
