#include "pack/Check.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

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

TEST(Check, TellsWhatItCounted) {
  Problems problems;
  const Options options = optionsOf(TALVORA_SMALL_CONTENT);
  EXPECT_EQ(
      checkContent(options, {ContentKind::Lessons, ContentKind::Exercises}, problems, noProgress),
      "2 lessons, 29 items");
  EXPECT_EQ(checkContent(options, {ContentKind::Guide}, problems, noProgress), "1 guide");
  EXPECT_EQ(checkContent(options, {}, problems, noProgress).find("5 reading texts, "), 0U);
  EXPECT_TRUE(problems.none());
}

TEST(Check, LooksAtTheWantedKindsAlone) {
  const TestFolder folder;
  folder.write("lessons/002-one.txt", "no title\n");
  folder.write("speaking/0001-one.txt", "no title\n");
  const Options options = optionsOf(folder.path());
  const auto found = [&](ContentKind kind) {
    Problems problems;
    static_cast<void>(checkContent(options, {kind}, problems, noProgress));
    return problems.all().size();
  };
  EXPECT_GT(found(ContentKind::Lessons), 0U);
  EXPECT_GT(found(ContentKind::SpeakingTexts), 0U);
  EXPECT_EQ(found(ContentKind::ReadingTexts), 0U);
}

} // namespace
} // namespace talvora::pack
