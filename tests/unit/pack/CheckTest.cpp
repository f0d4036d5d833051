#include "pack/Check.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace talvora::pack {
namespace {

using talvora::test::TestFolder;

void noProgress(std::string_view) {}

Options optionsOf(const std::filesystem::path& source) {
  Options options;
  options.source = source;
  options.smallWordList = 2000;
  return options;
}

std::string countedOf(const std::set<ContentKind>& only, Problems& problems) {
  const Options options = optionsOf(TALVORA_SMALL_CONTENT);
  return checkContent(options, only, Warnings::Counted, problems, noProgress).counted;
}

TEST(Check, TellsWhatItCounted) {
  Problems problems;
  EXPECT_EQ(countedOf({ContentKind::Guide}, problems), "1 guide");
  EXPECT_EQ(countedOf({ContentKind::ReadingTexts, ContentKind::Analyses}, problems).find("5 read"),
            0U);
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(countedOf({ContentKind::Lessons, ContentKind::Exercises}, problems),
            "2 lessons, 29 items");
  EXPECT_EQ(countedOf({}, problems), "") << "what has problems is not counted";
}

TEST(Check, LooksAtTheRulesOfTheCourse) {
  Problems problems;
  static_cast<void>(countedOf({}, problems));
  EXPECT_TRUE(std::any_of(problems.all().begin(), problems.all().end(), [](const Problem& each) {
    return each.message == "the general explanation (\"explain:\") is missing";
  })) << "the samples are not explained";
}

TEST(Check, ARuleThatIsBrokenHidesNoOtherOne) {
  const TestFolder folder;
  std::filesystem::copy(TALVORA_SMALL_CONTENT, folder.path(),
                        std::filesystem::copy_options::recursive);
  folder.write("reading/009-cats.txt", "title: Cats\n\nI have thirty five cats.\n"
                                       "= Tôi có ba mươi lăm con mèo.\n");
  Problems problems;
  static_cast<void>(
      checkContent(optionsOf(folder.path()), {}, Warnings::Counted, problems, noProgress));
  const auto isTold = [&](const std::string& message) {
    return std::any_of(problems.all().begin(), problems.all().end(),
                       [&](const Problem& each) { return each.message == message; });
  };
  EXPECT_TRUE(isTold("the general explanation (\"explain:\") is missing")) << "of an item";
  EXPECT_TRUE(isTold("a number has a hyphen: \"thirty-five\"")) << "of a text";
}

TEST(Check, LooksAtTheWantedKindsAlone) {
  const TestFolder folder;
  folder.write("lessons/002-one.txt", "no title\n");
  folder.write("speaking/0001-one.txt", "no title\n");
  const Options options = optionsOf(folder.path());
  const auto found = [&](ContentKind kind) {
    Problems problems;
    static_cast<void>(checkContent(options, {kind}, Warnings::Counted, problems, noProgress));
    return problems.all().size();
  };
  EXPECT_GT(found(ContentKind::Lessons), 0U);
  EXPECT_GT(found(ContentKind::SpeakingTexts), 0U);
  EXPECT_EQ(found(ContentKind::ReadingTexts), 0U);
}

} // namespace
} // namespace talvora::pack
