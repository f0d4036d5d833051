// The machine's own file system when the machine fails: every call of it, in every way that is told
// apart. What fails is told; what only cannot be had, as permissions on a stick, is done without.
#include "SystemCalls.h"

#include "platform/FatalFailure.h"
#include "platform/Files.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <string>

#include <sys/stat.h>

namespace talvora {
namespace {

using test::FailingCall;
using test::TestFolder;
using Names = std::vector<std::string>;

class SystemFilesTest : public testing::Test {
 protected:
  std::unique_ptr<OpenFile> open(const std::string& name, OpenFor purpose = OpenFor::Writing) {
    return files.open(folder.pathOf(name), purpose, error);
  }
  /// What an operation on an open file says when a call of the system fails.
  template <class Work>
  std::error_code failureOf(const char* call, int number, const Work& work) {
    const auto file = open("file");
    const FailingCall fault(call, number);
    const std::error_code problem = work(*file);
    EXPECT_GE(fault.times(), 1) << call;
    return problem;
  }

  TestFolder folder;
  FileSystem& files = systemFiles();
  std::error_code error;
};

TEST_F(SystemFilesTest, AFileThatCannotBeOpenedIsNone) {
  folder.write("file", "content");
  const FailingCall fault("open", EACCES);
  EXPECT_EQ(open("file"), nullptr);
  EXPECT_EQ(error, std::errc::permission_denied);
}

TEST_F(SystemFilesTest, NothingIsOpenedAnewWhereSomethingLies) {
  folder.write("file", "content");
  EXPECT_EQ(open("file", OpenFor::CreatingNew), nullptr);
  EXPECT_EQ(error, std::errc::file_exists);
}

TEST_F(SystemFilesTest, WhatAnOpenFileCannotDoIsTold) {
  const std::string content = "content";
  EXPECT_EQ(failureOf("pwrite", ENOSPC,
                      [&](OpenFile& file) { return file.write(0, bytesOfText(content)); }),
            std::errc::no_space_on_device);
  EXPECT_EQ(failureOf("ftruncate", EIO, [](OpenFile& file) { return file.truncate(1); }),
            std::errc::io_error);
  EXPECT_EQ(failureOf("fsync", EIO, [](OpenFile& file) { return file.sync(); }),
            std::errc::io_error);
  EXPECT_EQ(failureOf("flock", ENOLCK, [](OpenFile& file) { return file.lock(); }),
            std::errc::no_lock_available);
  EXPECT_EQ(failureOf("fstat", EIO,
                      [](OpenFile& file) {
                        std::error_code problem;
                        EXPECT_EQ(file.status(problem).kind, FileStatus::Kind::Missing);
                        return problem;
                      }),
            std::errc::io_error);
  EXPECT_EQ(failureOf("pread", EIO,
                      [](OpenFile& file) {
                        std::array<unsigned char, 4> into{};
                        std::error_code problem;
                        EXPECT_EQ(file.read(0, into, problem), 0U);
                        return problem;
                      }),
            std::errc::io_error);
  EXPECT_EQ(failureOf("mmap", ENOMEM,
                      [](OpenFile& file) {
                        std::error_code problem;
                        EXPECT_EQ(file.map(1, problem), nullptr);
                        return problem;
                      }),
            std::errc::not_enough_memory);
}

TEST_F(SystemFilesTest, ADeviceThatTakesNothingIsNotWaitedFor) {
  EXPECT_EQ(
      failureOf("pwrite", 0, [](OpenFile& file) { return file.write(0, bytesOfText("content")); }),
      std::errc::io_error);
}

TEST_F(SystemFilesTest, AFileEndsWhereItIsShorterThanAsked) {
  folder.write("file", "content");
  std::array<unsigned char, 20> into{};
  EXPECT_EQ(open("file", OpenFor::Reading)->read(0, into, error), 7U);
  EXPECT_FALSE(error);
}

TEST_F(SystemFilesTest, PermissionsThatAFileSystemDoesNotKnowAreDoneWithout) {
  const FileStatus other{FileStatus::Kind::File, 0, 0640, 0, 0};
  const auto dress = [&](OpenFile& file) { return file.dressAs(other); };
  for (const char* call : {"fchown", "fchmod"}) {
    for (const int unknown : {EPERM, ENOSYS, EOPNOTSUPP})
      EXPECT_FALSE(failureOf(call, unknown, dress)) << call << " " << unknown;
    EXPECT_EQ(failureOf(call, EIO, dress), std::errc::io_error) << call;
  }
  EXPECT_FALSE(failureOf("fchown", EINVAL, dress)) << "an owner whom a container does not know";
}

TEST_F(SystemFilesTest, APathIsAFileAFolderSomethingElseOrMissing) {
  folder.write("file", "content");
  ASSERT_EQ(::mkfifo(folder.pathOf("pipe").c_str(), 0600), 0);
  EXPECT_EQ(files.status(folder.pathOf("file"), error).kind, FileStatus::Kind::File);
  EXPECT_EQ(files.status(folder.path(), error).kind, FileStatus::Kind::Folder);
  EXPECT_EQ(files.status(folder.pathOf("pipe"), error).kind, FileStatus::Kind::Other);
  EXPECT_EQ(files.status(folder.pathOf("nowhere"), error).kind, FileStatus::Kind::Missing);
  EXPECT_FALSE(error);
  EXPECT_EQ(files.status(folder.pathOf("file/below"), error).kind, FileStatus::Kind::Missing);
  EXPECT_EQ(error, std::errc::not_a_directory);
}

TEST_F(SystemFilesTest, LinksAreFollowedToWhereTheyLead) {
  std::filesystem::create_symlink("there", folder.pathOf("link"));
  EXPECT_EQ(files.followLinks(folder.pathOf("link"), error), folder.pathOf("there"));
  EXPECT_FALSE(error);
  folder.write("file", "content");
  static_cast<void>(files.followLinks(folder.pathOf("file/below"), error));
  EXPECT_EQ(error, std::errc::not_a_directory);
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.path());
  EXPECT_EQ(files.followLinks("link", error), "there");
  std::filesystem::current_path(before);
  EXPECT_FALSE(error);
}

TEST_F(SystemFilesTest, ALinkThatCannotBeReadIsTold) {
  const FailingCall fault("readlink", EIO);
  static_cast<void>(files.followLinks(folder.pathOf("file"), error));
  EXPECT_EQ(error, std::errc::io_error);
}

TEST_F(SystemFilesTest, ARenameThatFailsIsTold) {
  folder.write("one", "content");
  const FailingCall fault("rename", EROFS);
  EXPECT_EQ(files.rename(folder.pathOf("one"), folder.pathOf("two")),
            std::errc::read_only_file_system);
  EXPECT_EQ(folder.names(), Names{"one"});
}

TEST_F(SystemFilesTest, FilesAndEmptyFoldersAreRemoved) {
  folder.write("file", "content");
  folder.write("full/file", "content");
  std::filesystem::create_directory(folder.pathOf("empty"));
  for (const char* name : {"file", "empty", "nowhere"}) {
    EXPECT_FALSE(files.remove(folder.pathOf(name))) << name;
  }
  EXPECT_EQ(files.remove(folder.pathOf("full")), std::errc::directory_not_empty);
  EXPECT_EQ(folder.names(), Names{"full"});
  {
    const FailingCall fault("unlink", EACCES);
    EXPECT_EQ(files.remove(folder.pathOf("full/file")), std::errc::permission_denied);
  }
  // Some systems say of a folder that unlinking it is not permitted.
  std::filesystem::create_directory(folder.pathOf("empty"));
  const FailingCall fault("unlink", EPERM);
  EXPECT_FALSE(files.remove(folder.pathOf("empty")));
}

TEST_F(SystemFilesTest, AFolderThatKnowsNoSyncIsSynced) {
  EXPECT_FALSE(files.syncFolder(folder.path()));
  for (const int unknown : {EINVAL, ENOTSUP}) {
    const FailingCall fault("fsync", unknown);
    EXPECT_FALSE(files.syncFolder(folder.path())) << unknown;
  }
  const FailingCall fault("fsync", EIO);
  EXPECT_EQ(files.syncFolder(folder.path()), std::errc::io_error);
}

TEST_F(SystemFilesTest, AFolderThatIsNotThereIsNotSynced) {
  EXPECT_EQ(files.syncFolder(folder.pathOf("nowhere")), std::errc::no_such_file_or_directory);
}

TEST_F(SystemFilesTest, FoldersAreMadeWithThoseAboveThem) {
  EXPECT_FALSE(files.makeFolder(folder.pathOf("one/two")));
  EXPECT_FALSE(files.makeFolder(folder.pathOf("one/two")));
  EXPECT_TRUE(std::filesystem::is_directory(folder.pathOf("one/two")));
  folder.write("file", "content");
  EXPECT_EQ(files.makeFolder(folder.pathOf("file")), std::errc::not_a_directory);
  EXPECT_EQ(files.makeFolder(folder.pathOf("file/below")), std::errc::not_a_directory);
}

TEST_F(SystemFilesTest, ANewFolderIsSyncedIntoTheOneAboveItWhereThatCanBeDone) {
  const FailingCall fault("fsync", EIO);
  EXPECT_FALSE(files.makeFolder(folder.pathOf("one/two")));
  EXPECT_EQ(fault.times(), 2);
  EXPECT_FALSE(files.makeFolder(folder.pathOf("one/two")));
  EXPECT_EQ(fault.times(), 2) << "they are there";
}

TEST_F(SystemFilesTest, AFolderThatIsThereNeedsNoPermission) {
  {
    const FailingCall fault("mkdir", EROFS);
    EXPECT_FALSE(files.makeFolder(folder.path()));
    EXPECT_EQ(files.makeFolder(folder.pathOf("new")), std::errc::read_only_file_system);
  }
  const FailingCall fault("stat", EIO);
  EXPECT_EQ(files.makeFolder(folder.pathOf("new")), std::errc::io_error);
}

TEST_F(SystemFilesTest, AFolderIsListedWholeOrNot) {
  folder.write("one", "");
  folder.write("two", "");
  EXPECT_EQ(files.list(folder.path(), error), (Names{"one", "two"}));
  EXPECT_FALSE(error);
  {
    const FailingCall fault("readdir", EIO, 2);
    static_cast<void>(files.list(folder.path(), error));
    EXPECT_EQ(error, std::errc::io_error);
  }
  const FailingCall fault("opendir", EACCES);
  EXPECT_TRUE(files.list(folder.path(), error).empty());
  EXPECT_EQ(error, std::errc::permission_denied);
}

TEST_F(SystemFilesTest, FilesAreCreatedOnlyInAFolder) {
  EXPECT_TRUE(files.mayCreateIn(folder.path()));
  EXPECT_FALSE(files.mayCreateIn(folder.pathOf("nowhere")));
}

TEST_F(SystemFilesTest, AHeldFileThatCannotBeHadIsNamed) {
  folder.write("small", "content");
  folder.write("large", std::string(MappedFile::LargeFile, 'x'));
  struct Fault {
    const char* call;
    const char* file;
    const char* told;
  };
  for (const Fault& each :
       {Fault{"open", "small", "cannot be opened"}, Fault{"fstat", "small", "cannot be examined"},
        Fault{"pread", "small", "cannot be read"}, Fault{"mmap", "large", "cannot be mapped"}}) {
    const FailingCall fault(each.call, EIO);
    try {
      static_cast<void>(MappedFile::open(folder.pathOf(each.file)));
      FAIL() << each.call;
    } catch (const FatalFailure& failure) {
      EXPECT_THAT(failure.what(), testing::HasSubstr(each.file));
      EXPECT_THAT(failure.what(), testing::HasSubstr(each.told));
    }
  }
}

} // namespace
} // namespace talvora
