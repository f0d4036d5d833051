// The licence of WordNet goes with the packs that hold its words.
#include "pack/Compiler.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace talvora::pack {
namespace {

// WordNet itself is missing, which is a problem of its own.
Options fullOptions(const std::filesystem::path& licence) {
  Options options;
  options.source = TALVORA_SMALL_CONTENT;
  options.wordNet = "/nowhere/at/all";
  options.wordLists = {};
  options.wordNetLicence = licence;
  return options;
}

bool isReported(const Problems& problems, const std::string& file) {
  return std::any_of(problems.all().begin(), problems.all().end(),
                     [&file](const Problem& problem) { return problem.where.file == file; });
}

TEST(WordNetLicence, IsReadForAFullList) {
  const test::TestFolder folder;
  folder.write("copyright", "Free to use.");
  const Options options = fullOptions(folder.pathOf("copyright"));
  Problems problems;
  const Content content = readContent(options, problems, [](std::string_view) {});
  EXPECT_EQ(content.wordNetLicence, "Free to use.");
  EXPECT_FALSE(isReported(problems, options.wordNetLicence.string()));
}

TEST(WordNetLicence, IsReportedWhereItIsMissing) {
  Problems problems;
  static_cast<void>(
      readContent(fullOptions("/nowhere/licence"), problems, [](std::string_view) {}));
  EXPECT_TRUE(isReported(problems, "/nowhere/licence"));
}

TEST(WordNetLicence, ASmallListGoesWithoutIt) {
  Options options = fullOptions("/nowhere/licence");
  options.smallWordList = 200;
  Problems problems;
  const Content content = readContent(options, problems, [](std::string_view) {});
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(content.wordNetLicence, "");
}

} // namespace
} // namespace talvora::pack
