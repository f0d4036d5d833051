#include "learner/VocabularyFile.h"

#include "support/TestFolder.h"
#include "tests/support/FaultyFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace talvora {
namespace {

using test::TestFolder;

/// The words of a list that is there.
std::vector<VocabularyWord> wordsOf(VocabularyFile& file) {
  std::error_code error;
  const auto words = file.read(error);
  EXPECT_TRUE(words) << error.message();
  return words.value_or(std::vector<VocabularyWord>());
}

TEST(VocabularyFileTest, RecordsComeBackAsTheyWereWritten) {
  TestFolder folder;
  folder.write("data.c", "");
  VocabularyFile file(folder.pathOf("data.c"));
  EXPECT_TRUE(wordsOf(file).empty());
  const std::vector<VocabularyWord> words = {{paddedWord("word"), 7},
                                             {paddedWord("twentycharacters1234"), -9}};
  EXPECT_EQ(file.write(words), std::nullopt);
  EXPECT_EQ(folder.read("data.c").size(), 48U);
  EXPECT_EQ(wordsOf(file), words);
  EXPECT_EQ(folder.names(), std::vector<std::string>{"data.c"});
}

TEST(VocabularyFileTest, OddBytesAreKeptBehindTheRecords) {
  TestFolder folder;
  folder.write("data.c", paddedWord("one") + std::string("\x01\0\0\0", 4) + "odd");
  VocabularyFile file(folder.pathOf("data.c"));
  auto words = wordsOf(file);
  ASSERT_EQ(words.size(), 1U);
  words.push_back({paddedWord("two"), 2});
  EXPECT_EQ(file.write(words), std::nullopt);
  EXPECT_EQ(folder.read("data.c").size(), 51U);
  EXPECT_EQ(folder.read("data.c").substr(48), "odd");
  EXPECT_EQ(wordsOf(file), words);
}

TEST(VocabularyFileTest, OddBytesThatWereDroppedStayAway) {
  TestFolder folder;
  folder.write("data.c", paddedWord("one") + std::string("\x01\0\0\0", 4) + "odd");
  VocabularyFile file(folder.pathOf("data.c"));
  file.dropOddBytes();
  EXPECT_EQ(file.write(wordsOf(file)), std::nullopt);
  EXPECT_EQ(folder.read("data.c").size(), 24U);
}

TEST(VocabularyFileTest, AListThatCannotBeWrittenIsReportedAndTheOldOneStands) {
  TestFolder folder;
  folder.write("data.c", paddedWord("one") + std::string("\x01\0\0\0", 4));
  test::FaultyFiles files;
  VocabularyFile file(folder.pathOf("data.c"), files);
  (void)wordsOf(file);
  files.failAlways(std::errc::io_error);
  const auto problem = file.write({});
  ASSERT_TRUE(problem);
  EXPECT_THAT(*problem, testing::HasSubstr("data.c"));
  EXPECT_EQ(wordsOf(file).size(), 1U);
}

/// Files grow to so many bytes and no further, as on a disk that is full.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int) = SIG_DFL;
};

TEST(VocabularyFileTest, ADiskThatFillsUpLeavesTheOldList) {
  TestFolder folder;
  folder.write("data.c", paddedWord("one") + std::string("\x01\0\0\0", 4));
  VocabularyFile file(folder.pathOf("data.c"));
  const auto old = wordsOf(file);
  for (const rlim_t room : {rlim_t{0}, rlim_t{1}, rlim_t{24}, rlim_t{47}}) {
    std::optional<std::string> problem;
    {
      const FullDisk full(room);
      problem = file.write({{paddedWord("one"), 1}, {paddedWord("two"), 2}});
    }
    ASSERT_TRUE(problem) << room;
    EXPECT_THAT(*problem, testing::HasSubstr("data.c"));
    EXPECT_EQ(wordsOf(file), old) << room;
    EXPECT_EQ(folder.names(), std::vector<std::string>{"data.c"}) << room;
  }
}

TEST(VocabularyFileTest, AMissingListIsNoEmptyOne) {
  TestFolder folder;
  VocabularyFile file(folder.pathOf("data.c"));
  std::error_code error;
  EXPECT_FALSE(file.read(error));
  EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST(VocabularyFileTest, AWordHasNoBlanksAroundIt) {
  EXPECT_EQ((VocabularyWord{paddedWord("bank"), 1}).word(), "bank");
  EXPECT_EQ((VocabularyWord{paddedWord(""), 1}).word(), "");
}

} // namespace
} // namespace talvora
