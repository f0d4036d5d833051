// Where the pack and the learner's folder are looked for.
#include "learner/FindFolders.h"

#include "support/TestFolder.h"
#include "tests/support/FaultyFiles.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::FaultyFiles;
using test::TestFolder;

class FindFolders : public testing::Test {
 protected:
  FindFolders() {
    search.current = place.pathOf("current");
    search.program = place.pathOf("program");
    search.sharedFolders = {place.pathOf("share1"), place.pathOf("share2")};
    search.ownData = place.pathOf("own");
  }
  void writePack(const std::string& folder) const {
    for (const char* name : {"data.vt", "data.av", "datatu.txt"})
      place.write(folder + "/" + name, "");
  }
  [[nodiscard]] std::string pack() {
    const auto found = findFolders(files, search);
    return found.folders ? found.folders->pack : std::string();
  }
  [[nodiscard]] std::string learner() {
    const auto found = findFolders(files, search);
    return found.folders ? found.folders->learner : std::string();
  }

  TestFolder place;
  FaultyFiles files;
  FolderSearch search;
};

TEST_F(FindFolders, ThePackInTheCurrentDirectoryGoesFirst) {
  writePack("share2/talvora");
  EXPECT_EQ(pack(), place.pathOf("share2/talvora"));
  writePack("share1/talvora");
  EXPECT_EQ(pack(), place.pathOf("share1/talvora"));
  writePack("program/pack");
  EXPECT_EQ(pack(), place.pathOf("program/pack"));
  writePack("program");
  EXPECT_EQ(pack(), place.pathOf("program"));
  writePack("current");
  EXPECT_EQ(pack(), place.pathOf("current"));
}

TEST_F(FindFolders, NoPackIsNoneAndTellsWhereItWasLookedFor) {
  const auto before = place.names();
  const auto found = findFolders(files, search);
  EXPECT_FALSE(found.folders);
  EXPECT_EQ(found.lookedIn.front(), place.pathOf("current"));
  EXPECT_EQ(found.lookedIn.back(), place.pathOf("share2/talvora"));
  EXPECT_EQ(place.names(), before);
}

TEST_F(FindFolders, APackThatWasAskedForIsLookedForNowhereElse) {
  writePack("current");
  search.pack = place.pathOf("asked");
  const auto found = findFolders(files, search);
  EXPECT_FALSE(found.folders);
  EXPECT_EQ(found.lookedIn, std::vector<std::string>{search.pack});
  writePack("asked");
  EXPECT_EQ(pack(), search.pack);
}

TEST_F(FindFolders, TheLearnersFolderIsTheUsersOwnUnlessThePackIsTheirs) {
  writePack("current");
  EXPECT_EQ(learner(), place.pathOf("own/talvora"));
  place.write("current/data.Kcu", "");
  EXPECT_EQ(learner(), place.pathOf("current")) << "a folder carried on a stick";
  files.readOnly = true;
  EXPECT_EQ(learner(), place.pathOf("own/talvora")) << "an installed pack";
  search.learner = place.pathOf("asked");
  EXPECT_EQ(learner(), search.learner);
}

} // namespace
} // namespace talvora
