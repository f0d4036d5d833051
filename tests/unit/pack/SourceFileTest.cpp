// Texts as editors save them.
#include "pack/SourceFile.h"

#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using talvora::test::TestFolder;

struct Reading {
  std::string text;
  std::vector<std::string> problems;
};

Reading readingOf(std::string_view bytes) {
  const TestFolder folder;
  folder.write("a.txt", bytes);
  Problems problems;
  Reading reading{readText(folder.path() + "/a.txt", problems), {}};
  for (const Problem& problem : problems.all())
    reading.problems.push_back(problem.message);
  return reading;
}

TEST(SourceFile, AByteOrderMarkIsSkipped) {
  EXPECT_EQ(readingOf("\xEF\xBB\xBFtitle: A\n").text, "title: A\n");
  EXPECT_EQ(readingOf("title: \xEF\xBB\xBF").text, "title: \xEF\xBB\xBF") << "at the start only";
}

TEST(SourceFile, LettersTypedInPiecesAreComposed) {
  EXPECT_EQ(readingOf("tie\xCC\x82\xCC\x81ng Vie\xCC\xA3\xCC\x82t").text, "tiếng Việt");
  EXPECT_EQ(readingOf("o\xCC\x9B\xCC\x80").text, "ờ");
  EXPECT_EQ(readingOf("Å \xC3\xA9").text, "Å é") << "what is composed stays as it is";
}

TEST(SourceFile, BytesThatAreNoUtf8StayToBeReportedWhereTheyStand) {
  EXPECT_EQ(readingOf("a\xFF e\xCC\x81").text, "a\xFF e\xCC\x81");
}

TEST(SourceFile, AnotherEncodingIsNamed) {
  EXPECT_THAT(readingOf(std::string_view("\xFF\xFEt\0i\0", 6)).problems,
              testing::ElementsAre("is saved as UTF-16; save it as UTF-8"));
}

} // namespace
} // namespace talvora::pack
