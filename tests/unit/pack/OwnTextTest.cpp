// Texts that a learner brings: sentences, files, and what the program opens of them.
#include "pack/texts/OwnText.h"

#include "pack/ReadingStore.h"
#include "pack/Telling.h"
#include "pack/ZipFile.h"
#include "pack/texts/OwnTexts.h"
#include "pack/texts/SentenceCutter.h"
#include "stores/OwnTexts.h"
#include "stores/Stores.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/types.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>
#include <string>

namespace talvora::pack {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Le;
using testing::SizeIs;

TEST(SentenceCutter, ASentenceEndsAtItsMark) {
  EXPECT_THAT(sentencesIn("One two. Three? \"Four!\" Five... Six"),
              ElementsAre("One two.", "Three?", "\"Four!\"", "Five...", "Six"));
}

TEST(SentenceCutter, APointOfAWordClosesNothing) {
  EXPECT_THAT(
      sentencesIn("Mr. Green paid 3.50 to J. Smith. It was i.e. nothing. So am I. Good."),
      ElementsAre("Mr. Green paid 3.50 to J. Smith.", "It was i.e. nothing.", "So am I.", "Good."));
  EXPECT_THAT(sentencesIn("\"Who?\" he asked."), ElementsAre("\"Who?\" he asked."));
}

TEST(SentenceCutter, ALongSentenceIsCutWhereAClauseEnds) {
  std::string text;
  for (int clause = 0; clause < 60; ++clause)
    text += "this is a clause of it, ";
  for (const std::string& sentence : sentencesIn(text))
    EXPECT_THAT(sentence.size(), Le(LongestOwnSentence));
  EXPECT_TRUE(sentencesIn(text).front().ends_with(","));
  EXPECT_THAT(sentencesIn(std::string(1200, 'x')), SizeIs(3));
}

TEST(BroughtText, LinesAreParagraphsWhereNoneIsEmpty) {
  EXPECT_THAT(chaptersOfPlainText("a\nb\n").front().paragraphs, ElementsAre("a", "b"));
  EXPECT_THAT(chaptersOfPlainText("a\nb\n\nc\n").front().paragraphs, ElementsAre("a b", "c"));
}

TEST(BroughtText, APauseOfSubtitlesBeginsAParagraph) {
  Problems problems;
  const auto chapters = chaptersOfSubtitles("1\n00:00:01,000 --> 00:00:02,000\na\n\n2\n"
                                            "00:00:03.000 --> 00:00:04.000\n<i>b</i>\n\n"
                                            "00:00:07,000 --> 00:00:08,000\nc\n",
                                            "a.srt", problems);
  EXPECT_THAT(chapters.front().paragraphs, ElementsAre("a b", "c"));
  EXPECT_TRUE(problems.none());
}

TEST(ZipFile, WhatWasPackedComesBackWithinItsLimits) {
  const std::string bytes = zipOf({{"a/b", std::string(1000, 'x')}, {"../c", "y"}});
  EXPECT_EQ(bytes.substr(bytes.size() - 22, 4), "PK\5\6") << "nothing follows the end's mark";
  const ZipContent content = zipContentOf(bytes);
  ASSERT_TRUE(content.entries);
  EXPECT_EQ(content.entries->at("a/b").size(), 1000U);
  EXPECT_EQ(content.entries->at("../c"), "y");
  EXPECT_FALSE(zipContentOf(bytes, {1, 100000}).entries);
  EXPECT_FALSE(zipContentOf(bytes, {10, 999}).entries);
  EXPECT_FALSE(zipContentOf(bytes.substr(0, bytes.size() / 2)).entries);
}

TEST(OwnText, ALongTextBecomesSeveral) {
  const test::TestFolder folder;
  std::string text;
  for (std::size_t sentence = 0; sentence <= MostOwnSentences; ++sentence)
    text += "It rained. ";
  folder.write("a_long-story.txt", text);
  Problems problems;
  const auto made = ownTextsFromFile(folder.pathOf("a_long-story.txt"), problems);
  ASSERT_THAT(made.texts, SizeIs(2));
  EXPECT_EQ(made.texts[0].title, "a long story (1)");
  EXPECT_EQ(made.texts[1].title, "a long story (2)");
  EXPECT_THAT(made.texts[1].paragraphs.front(), SizeIs(1));
}

TEST(OwnText, AFileWithoutASentenceIsToldOf) {
  const test::TestFolder folder;
  folder.write("a.txt", "...\n\n42\n");
  Problems problems;
  EXPECT_THAT(ownTextsFromFile(folder.pathOf("a.txt"), problems).texts, SizeIs(0));
  EXPECT_THAT(problems.all(), SizeIs(1));
}

/// A course of one text, and the learner's file behind it.
class OwnTextsFileTest : public testing::Test {
 protected:
  static std::shared_ptr<const MappedFile> held(const std::string& bytes) {
    return std::make_shared<const MappedFile>(
        std::vector<unsigned char>(bytes.begin(), bytes.end()));
  }
  TextFiles joined(const std::string& file) {
    folder.write(OwnTextsFile, file);
    return withOwnTexts({held(course.positions), held(course.stream), 1}, folder.path(),
                        systemFiles());
  }
  static std::string fileOf(std::uint32_t count, const TextStore& store) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
      bytes += static_cast<char>(count >> shift & 0xFFU);
    return bytes + store.positions + store.stream;
  }

  test::TestFolder folder;
  TextStore course = compileTexts({{"Ours", {{{"It is ours.", "Mot."}}}}});
  TextStore own = compileTexts({{"*Mine", {}}, {"Own", {{{"It is mine.", "Hai."}}}}});
};

TEST_F(OwnTextsFileTest, TheTextsLieBehindTheCourses) {
  const TextFiles texts = joined(fileOf(2, own));
  ASSERT_EQ(texts.texts, 3);
  Problems problems;
  const auto whole =
      decodeReadings(texts.positions->text(), texts.stream->text(), problems, texts.texts);
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(whole.texts.at(1).title, "Ours");
  EXPECT_EQ(whole.headings.at(2), "Mine");
  EXPECT_EQ(whole.texts.at(3).paragraphs.front().front().vietnamese, "Hai.");
}

TEST_F(OwnTextsFileTest, AFileThatIsNoneLeavesTheCourseAsItIs) {
  const std::string whole = fileOf(2, own);
  for (const std::string& bad :
       {std::string(), std::string("abc"), fileOf(0, own), fileOf(3, own), fileOf(301, own),
        fileOf(0xFFFFFFFF, own), whole.substr(0, 20), whole.substr(0, whole.size() - 1)})
    EXPECT_EQ(joined(bad).texts, 1) << bad.size();
}

/// What the rights of a folder and of all in it forbid is forbidden while this stands, to root too.
class UnderRights {
 public:
  explicit UnderRights(const fs::path& folder) {
    if (::geteuid() != 0) return;
    give(folder);
    for (const auto& each : fs::recursive_directory_iterator(folder))
      give(each.path());
    EXPECT_EQ(::seteuid(nobody), 0);
  }
  ~UnderRights() {
    if (::getuid() == 0) {
      EXPECT_EQ(::seteuid(0), 0);
    }
  }
  UnderRights(const UnderRights&) = delete;
  UnderRights& operator=(const UnderRights&) = delete;

 private:
  static void give(const fs::path& path) { EXPECT_EQ(::chown(path.c_str(), nobody, nobody), 0); }

  static constexpr uid_t nobody = 65534;
};

TEST(OwnTexts, AFolderThatCannotBeListedKeepsItsTexts) {
  const test::TestFolder folder;
  const std::string first = "title: First\n\nIt is the first.\n= Mot.\n";
  folder.write("texts/001.txt", first);
  folder.write("new.txt", "It is a new one.\n");
  const fs::path texts = folder.pathOf("texts");
  std::ostringstream told;
  {
    const UnderRights limited(folder.path());
    fs::permissions(texts, fs::perms::owner_write | fs::perms::owner_exec);
    EXPECT_EQ(addTexts(folder.path(), {folder.pathOf("new.txt")}, told), ListResult::Impossible);
    fs::permissions(texts, fs::perms::owner_all);
  }
  EXPECT_THAT(told.str(), HasSubstr(texts.string()));
  EXPECT_EQ(folder.read("texts/001.txt"), first);
  EXPECT_FALSE(fs::exists(folder.pathOf(OwnTextsFile)));
}

} // namespace
} // namespace talvora::pack
