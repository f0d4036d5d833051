// What a learner owns as one file: it comes back as it went, and nothing else comes with it.
#include "pack/FolderFile.h"

#include "learner/DatedCopies.h"
#include "learner/LearnerLock.h"
#include "learner/LearnerWords.h"
#include "learner/WordJournal.h"
#include "support/TestFolder.h"
#include "tests/support/FaultyFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace talvora::pack {
namespace {

using testing::HasSubstr;

std::string record(const std::string& word) {
  std::string bytes = word + std::string(20 - word.size(), ' ');
  return bytes + std::string(4, '\0');
}

class FolderFileTest : public testing::Test {
 protected:
  FolderFileTest() {
    for (const char* const folder : {"backups/2026-03-31_18-05-09", "texts"}) {
      std::filesystem::create_directories(mine.pathOf(folder));
      std::filesystem::create_directories(theirs.pathOf("learner/" + std::string(folder)));
    }
  }
  ListResult exported() { return exportFolder({mine.path()}, file, out); }
  ListResult imported() { return importFolder(list, file, out); }
  void putArchive(const std::vector<ZipEntry>& entries) {
    carried.write("talvora.zip", zipOf(entries));
  }

  test::TestFolder mine;
  test::TestFolder theirs;
  test::TestFolder carried;
  LearnersList list{theirs.pathOf("learner")};
  std::string file = carried.path() + "/talvora.zip";
  std::ostringstream out;
};

TEST_F(FolderFileTest, WordsSettingsCopiesAndTextsArriveAsTheyWere) {
  mine.write("data.c", record("bank") + record("river"));
  mine.write("data.Kcu", std::string(76, '\1'));
  mine.write("backups/2026-03-31_18-05-09/data.c", record("bank"));
  mine.write("texts/001.txt", "Mine");
  mine.write("owntexts.av", "mine");
  mine.write("talvora.lock", "");
  EXPECT_EQ(exported(), ListResult::Fine);
  EXPECT_EQ(imported(), ListResult::Fine) << out.str();
  for (const char* const name :
       {"data.c", "data.Kcu", "backups/2026-03-31_18-05-09/data.c", "texts/001.txt", "owntexts.av"})
    EXPECT_EQ(theirs.read("learner/" + std::string(name)), mine.read(name)) << name;
  EXPECT_THAT(out.str(), HasSubstr("2 words received"));
}

TEST_F(FolderFileTest, WhatWasThereIsKeptAsACopy) {
  theirs.write("learner/data.c", record("field"));
  theirs.write("learner/texts/002.txt", "Theirs");
  putArchive({{"data.c", record("bank")}});
  EXPECT_EQ(imported(), ListResult::Fine);
  EXPECT_EQ(theirs.read("learner/data.c"), record("bank"));
  EXPECT_FALSE(theirs.has("learner/texts/002.txt"));
  const DatedCopies copies(list.folder, systemFiles(), systemCalendar());
  ASSERT_FALSE(copies.all().empty());
  EXPECT_EQ(copies.read(copies.all().back().name, "texts/002.txt"), "Theirs");
  EXPECT_EQ(restoreWords(list, "", Doing::Do, out), ListResult::Fine);
  EXPECT_EQ(theirs.read("learner/data.c"), record("bank") + record("field"));
}

TEST_F(FolderFileTest, TextsOfAFolderWithoutWordsAreKeptToo) {
  theirs.write("learner/texts/002.txt", "Theirs");
  putArchive({{"data.c", record("bank")}, {"texts/002.txt", "Mine"}});
  EXPECT_EQ(imported(), ListResult::Fine);
  EXPECT_EQ(theirs.read("learner/texts/002.txt"), "Mine");
  EXPECT_EQ(theirs.read("learner/backups/texts/002.txt"), "Theirs");
}

TEST_F(FolderFileTest, WordsThatAreInTheJournalOnlyTravelFromAFullDiskToo) {
  mine.write("data.c", record("bank"));
  WordRow row;
  row.word = "river";
  WordJournal journal(mine.pathOf("words.journal"), systemFiles());
  ASSERT_FALSE(journal.append({{WordDeed::Kind::Added, row}}));
  test::FaultyFiles full;
  full.counts = [&](const std::string& call, const std::string& path) {
    return call == "write" && path.starts_with(mine.path());
  };
  full.failAlways();
  EXPECT_EQ(exportFolder({mine.path(), full}, file, out), ListResult::Fine);
  EXPECT_EQ(imported(), ListResult::Fine);
  LearnerWords(list.folder, systemFiles(), systemCalendar()).open();
  EXPECT_EQ(theirs.read("learner/data.c"), record("bank") + record("river"));
}

TEST_F(FolderFileTest, AFileThatCannotBeReadIsToldAndTheOthersTravel) {
  mine.write("data.c", record("bank"));
  mine.write("data.Kcu", std::string(76, '\1'));
  test::FaultyFiles broken;
  broken.looksCount = true;
  broken.counts = [](const std::string& call, const std::string& path) {
    return call == "read" && path.ends_with("data.Kcu");
  };
  broken.failAlways(std::errc::io_error);
  EXPECT_EQ(exportFolder({mine.path(), broken}, file, out), ListResult::Found);
  EXPECT_THAT(out.str(), HasSubstr("data.Kcu: cannot be read"));
  EXPECT_EQ(imported(), ListResult::Fine);
  EXPECT_EQ(theirs.read("learner/data.c"), record("bank"));
}

TEST_F(FolderFileTest, WhatCannotBeReadIsNotReplaced) {
  theirs.write("learner/data.c", record("field"));
  theirs.write("learner/words.txt", "rows");
  WordJournal journal(theirs.pathOf("learner/words.journal"), systemFiles());
  WordRow row;
  row.word = "river";
  ASSERT_FALSE(journal.append({{WordDeed::Kind::Added, row}}));
  const std::string deeds = theirs.read("learner/words.journal");
  putArchive({{"words.journal", ""}, {"words.txt", "other rows"}, {"data.c", record("bank")}});
  for (const std::string name : {"data.c", "words.txt", "words.journal"}) {
    test::FaultyFiles broken;
    broken.looksCount = true;
    broken.counts = [&](const std::string& call, const std::string& path) {
      return call == "read" && path.ends_with("/learner/" + name);
    };
    broken.failAlways(std::errc::io_error);
    EXPECT_EQ(importFolder({list.folder, broken}, file, out), ListResult::Impossible) << name;
    EXPECT_TRUE(theirs.read("learner/data.c").starts_with(record("field"))) << name;
    const bool merged = theirs.read("learner/data.c").size() == 48;
    EXPECT_TRUE(merged || theirs.read("learner/words.journal") == deeds) << name;
  }
}

TEST_F(FolderFileTest, NamesThatAreNoLearnersArePassedOver) {
  putArchive({{"data.c", record("bank")},
              {"../data.c", record("evil")},
              {"texts/../../data.c", record("evil")},
              {"/tmp/data.c", record("evil")},
              {"texts/001.txt/x", "evil"},
              {"notes.txt", "evil"}});
  EXPECT_EQ(imported(), ListResult::Fine);
  EXPECT_EQ(theirs.read("learner/data.c"), record("bank"));
  EXPECT_FALSE(theirs.has("learner/notes.txt"));
  EXPECT_FALSE(theirs.has("data.c"));
}

TEST_F(FolderFileTest, AFileThatIsNoneChangesNothing) {
  theirs.write("learner/data.c", record("field"));
  carried.write("talvora.zip", "no archive");
  EXPECT_EQ(imported(), ListResult::Impossible);
  putArchive({{"data.Kcu", "no words"}});
  EXPECT_EQ(imported(), ListResult::Impossible);
  putArchive({{"data.c", "half a record"}});
  EXPECT_EQ(imported(), ListResult::Impossible);
  file = carried.path() + "/nothing.zip";
  EXPECT_EQ(imported(), ListResult::Impossible);
  EXPECT_EQ(theirs.read("learner/data.c"), record("field"));
}

TEST_F(FolderFileTest, AProgramThatRunsThereIsLeftAlone) {
  putArchive({{"data.c", record("bank")}});
  const LearnerLock lock(systemFiles(), list.folder);
  EXPECT_EQ(imported(), ListResult::Impossible);
  EXPECT_THAT(out.str(), HasSubstr("Talvora is running"));
}

TEST(FolderFile, TakesTheNamesOfALearnersFilesAndNoOthers) {
  for (const char* name : {"data.c", "texts/001.txt", "backups/2026-11-22_10-00-00/data.c",
                           "backups/2026-11-22_10-00-00-02/words.txt"})
    EXPECT_TRUE(travels(name)) << name;
  for (const char* name :
       {"", "/data.c", "../data.c", "talvora.lock", "texts/01.txt", "texts/0001.txt",
        "texts/../1.txt", "backups/data.c", "backups/2026-11-22/data.c",
        "backups/2026-11-22_10-00-00/other", "backups/../../../../x/data.c",
        "backups/2026-11-22_10-00-00/data.c/more"})
    EXPECT_FALSE(travels(name)) << name;
}

} // namespace
} // namespace talvora::pack
