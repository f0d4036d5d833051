// Saving as a guest: a file is replaced in whole, and what its owner made of it stays.
#include "platform/Files.h"

#include "platform/FatalFailure.h"
#include "support/TestFolder.h"
#include "tests/support/FaultyFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace talvora {
namespace {

using test::FaultyFiles;
using test::TestFolder;
using Names = std::vector<std::string>;

class ReplacedFile : public testing::Test {
 protected:
  std::optional<std::string> replace(const std::string& name, const std::string& content) {
    return replaceFile(files, folder.pathOf(name), bytesOfText(content));
  }
  [[nodiscard]] mode_t modeOf(const std::string& name) const {
    struct stat found {};
    ::stat(folder.pathOf(name).c_str(), &found);
    return found.st_mode & 07777;
  }

  TestFolder folder;
  FaultyFiles files;
};

TEST_F(ReplacedFile, HasTheNewContentAndNothingIsLeftBesideIt) {
  EXPECT_EQ(replace("data.c", "new"), std::nullopt);
  EXPECT_EQ(replace("data.c", "newer"), std::nullopt);
  EXPECT_EQ(folder.read("data.c"), "newer");
  EXPECT_EQ(folder.names(), Names{"data.c"});
}

TEST_F(ReplacedFile, IsWhatALinkLeadsTo) {
  folder.write("elsewhere/words", "old");
  std::filesystem::create_symlink("elsewhere/words", folder.pathOf("link"));
  std::filesystem::create_symlink(folder.pathOf("link"), folder.pathOf("data.c"));
  EXPECT_EQ(replace("data.c", "new"), std::nullopt);
  EXPECT_TRUE(std::filesystem::is_symlink(folder.pathOf("data.c")));
  EXPECT_EQ(folder.read("elsewhere/words"), "new");
}

TEST_F(ReplacedFile, IsMadeWhereALinkLeadsToNothingYet) {
  std::filesystem::create_symlink("later", folder.pathOf("data.c"));
  EXPECT_EQ(replace("data.c", "new"), std::nullopt);
  EXPECT_EQ(folder.read("later"), "new");
}

TEST_F(ReplacedFile, IsNotWrittenWhenLinksGoInACircle) {
  std::filesystem::create_symlink("two", folder.pathOf("one"));
  std::filesystem::create_symlink("one", folder.pathOf("two"));
  EXPECT_TRUE(replace("one", "new"));
}

TEST_F(ReplacedFile, KeepsItsPermissions) {
  folder.write("data.c", "old");
  for (const mode_t mode : {0600U, 0640U, 0664U}) {
    ::chmod(folder.pathOf("data.c").c_str(), mode);
    EXPECT_EQ(replace("data.c", "new"), std::nullopt);
    EXPECT_EQ(modeOf("data.c"), mode);
  }
}

TEST_F(ReplacedFile, KeepsItsOwner) {
  // Only the machine's owner gives files away; anybody else's file stays his.
  const uid_t owner = ::geteuid() == 0 ? 65534U : ::geteuid();
  folder.write("data.c", "old");
  ASSERT_EQ(::chown(folder.pathOf("data.c").c_str(), owner, ::getegid()), 0);
  EXPECT_EQ(replace("data.c", "new"), std::nullopt);
  struct stat found {};
  ::stat(folder.pathOf("data.c").c_str(), &found);
  EXPECT_EQ(found.st_uid, owner);
}

TEST_F(ReplacedFile, TouchesNothingThatSomebodyLaidBesideIt) {
  folder.write("victim", "mine");
  std::filesystem::create_symlink("victim", folder.pathOf("data.c.new"));
  EXPECT_EQ(replace("data.c", "new"), std::nullopt);
  EXPECT_EQ(folder.read("victim"), "mine");
  std::filesystem::remove(folder.pathOf("data.c.new"));
  ASSERT_EQ(::mkfifo(folder.pathOf("data.c.new").c_str(), 0600), 0);
  EXPECT_EQ(replace("data.c", "newer"), std::nullopt);
  EXPECT_EQ(folder.read("data.c"), "newer");
}

TEST_F(ReplacedFile, IsRefusedWhereItIsNoFile) {
  std::filesystem::create_directory(folder.pathOf("folder"));
  ASSERT_EQ(::mkfifo(folder.pathOf("pipe").c_str(), 0600), 0);
  EXPECT_TRUE(replace("folder", "new"));
  EXPECT_TRUE(replace("pipe", "new"));
  EXPECT_TRUE(replace("nowhere/data.c", "new"));
}

TEST_F(ReplacedFile, ADeviceThatFailsAtAnyCallLeavesTheOldContentOrTheNewOneWhole) {
  folder.write("data.c", "old");
  EXPECT_EQ(replace("data.c", "counted"), std::nullopt);
  const int callsOfASave = files.calls;
  EXPECT_GE(callsOfASave, 6) << "made, dressed, written, synced, renamed, folder synced";
  for (const auto error :
       {std::errc::no_space_on_device, std::errc::io_error, std::errc::read_only_file_system}) {
    for (int call = 1; call <= callsOfASave; ++call) {
      folder.write("data.c", "old");
      files.calls = 0;
      files.error = error;
      files.failFrom = files.failTo = call;
      const auto problem = replace("data.c", "new");
      files.failNever();
      ASSERT_TRUE(problem) << "call " << call;
      EXPECT_THAT(*problem, testing::HasSubstr("data.c"));
      // Behind the rename only the folder's sync can fail.
      EXPECT_EQ(folder.read("data.c"), call == callsOfASave ? "new" : "old") << "call " << call;
      EXPECT_EQ(folder.names(), Names{"data.c"}) << "call " << call;
    }
  }
}

TEST(LeftOver, IsKnownByItsName) {
  EXPECT_TRUE(isLeftOver("data.c.abcdef012345.new", "data.c"));
  EXPECT_FALSE(isLeftOver("data.c", "data.c"));
  EXPECT_FALSE(isLeftOver("data.c.new", "data.c"));
  EXPECT_FALSE(isLeftOver("data.c.abcdef012345.old", "data.c"));
  EXPECT_FALSE(isLeftOver("data.cx.abcdef01234.new", "data.c"));
  EXPECT_FALSE(isLeftOver("datb.c.abcdef012345.new", "data.c"));
  EXPECT_FALSE(isLeftOver("data.c-abcdef012345.new", "data.c"));
}

TEST(HeldFile, ASmallOneIsTheProgramsOwnWhateverBecomesOfItOnDisk) {
  TestFolder folder;
  folder.write("small", "the whole text");
  const auto held = MappedFile::open(folder.pathOf("small"));
  std::filesystem::resize_file(folder.pathOf("small"), 0);
  EXPECT_EQ(held->text(), "the whole text");
  EXPECT_EQ(takeShrunkFile(), "");
}

TEST(HeldFile, ALargeOneThatShrinksReadsAs0FromThereAndIsNamed) {
  TestFolder folder;
  const std::string content(3 * MappedFile::LargeFile, 'x');
  folder.write("large", content);
  const auto held = MappedFile::open(folder.pathOf("large"));
  ASSERT_EQ(held->bytes().size(), content.size());
  std::filesystem::resize_file(folder.pathOf("large"), 100);
  EXPECT_EQ(held->bytes()[50], 'x');
  EXPECT_EQ(held->bytes()[content.size() - 1], 0);
  EXPECT_EQ(takeShrunkFile(), folder.pathOf("large"));
  EXPECT_EQ(takeShrunkFile(), "") << "told once";
  EXPECT_EQ(held->bytes()[MappedFile::LargeFile], 0);
}

TEST(HeldFile, AMissingOneAndAFolderAreNamed) {
  TestFolder folder;
  for (const std::string& path : {folder.pathOf("missing"), folder.path()}) {
    try {
      static_cast<void>(MappedFile::open(path));
      FAIL() << path;
    } catch (const FatalFailure& failure) {
      EXPECT_THAT(failure.what(), testing::HasSubstr(path));
    }
  }
}

TEST(Lock, IsHeldByOneAndGoesWithIt) {
  TestFolder folder;
  std::error_code error;
  auto first = systemFiles().open(folder.pathOf("lock"), OpenFor::Writing, error);
  const auto second = systemFiles().open(folder.pathOf("lock"), OpenFor::Writing, error);
  EXPECT_FALSE(first->lock());
  EXPECT_EQ(second->lock(), std::errc::resource_unavailable_try_again);
  first.reset();
  EXPECT_FALSE(second->lock());
}

TEST_F(ReplacedFile, ALookThatFailsLeavesTheOldContent) {
  folder.write("data.c", "old");
  files.looksCount = true;
  EXPECT_EQ(replace("data.c", "old"), std::nullopt);
  const int calls = files.calls;
  for (int call = 1; call <= calls; ++call) {
    files.calls = 0;
    files.failFrom = files.failTo = call;
    EXPECT_TRUE(replace("data.c", "new")) << call;
    files.failNever();
    EXPECT_EQ(folder.read("data.c"), call == calls ? "new" : "old") << call;
    EXPECT_EQ(folder.names(), Names{"data.c"}) << call;
  }
}

TEST_F(ReplacedFile, IsNotWrittenWhereNoNewNameCanBeHad) {
  folder.write("data.c", "old");
  files.counts = [](const std::string& call, const std::string&) { return call == "open"; };
  files.failAlways(std::errc::file_exists);
  EXPECT_TRUE(replace("data.c", "new"));
  EXPECT_EQ(folder.read("data.c"), "old");
  files.failFrom = 1;
  files.failTo = files.calls + 3;
  EXPECT_EQ(replace("data.c", "new"), std::nullopt) << "the fourth name is free";
  EXPECT_EQ(folder.read("data.c"), "new");
}

TEST_F(ReplacedFile, IsReadWholeOrNot) {
  folder.write("data.c", "content");
  files.looksCount = true;
  std::error_code error;
  EXPECT_EQ(textOfBytes(readWhole(files, folder.pathOf("data.c"), error).value()), "content");
  const int calls = files.calls;
  EXPECT_EQ(calls, 3) << "opened, examined, read";
  for (int call = 1; call <= calls; ++call) {
    files.calls = 0;
    files.failFrom = files.failTo = call;
    EXPECT_FALSE(readWhole(files, folder.pathOf("data.c"), error)) << call;
    EXPECT_TRUE(error) << call;
  }
  files.failNever();
  EXPECT_FALSE(readWhole(files, folder.path(), error)) << "a folder";
  EXPECT_EQ(error, std::errc::invalid_argument);
}

TEST_F(ReplacedFile, IsThereWhenItIsNoFolder) {
  folder.write("data.c", "content");
  EXPECT_TRUE(TonTaiFile(folder.pathOf("data.c"), files));
  EXPECT_FALSE(TonTaiFile(folder.pathOf("nowhere"), files));
  EXPECT_FALSE(TonTaiFile(folder.path(), files));
  EXPECT_FALSE(TonTaiFile(folder.pathOf("data.c/below"), files)) << "it cannot be examined";
}

TEST(FolderOf, IsWhatAPathLiesIn) {
  EXPECT_EQ(folderOf("/home/words/data.c"), "/home/words");
  EXPECT_EQ(folderOf("/data.c"), "/");
  EXPECT_EQ(folderOf("data.c"), ".");
}

TEST(HeldFile, ALargeOneReadsTheSameWhenItsMemoryWasLetGo) {
  TestFolder folder;
  folder.write("large", std::string(MappedFile::LargeFile, 'x') + "end");
  const auto held = MappedFile::open(folder.pathOf("large"));
  held->letMemoryGo();
  EXPECT_TRUE(held->text().ends_with("xend"));
}

TEST(HeldFile, OneThatHasShrunkIsNamedInWords) {
  EXPECT_EQ(shrunkFileProblem("/course/data.av"),
            "/course/data.av: has become shorter while the program was reading it");
}

} // namespace
} // namespace talvora
