// The words of the list from outside the program.
#include "pack/LearnersList.h"

#include "learner/LearnerLock.h"
#include "learner/LearnerWords.h"
#include "pack/KeptWords.h"
#include "platform/Files.h"
#include "support/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace talvora::pack {
namespace {

using test::ProgramRun;
using testing::HasSubstr;

std::string record(const std::string& word, std::int32_t place) {
  std::string bytes = paddedWord(word);
  for (int shift = 0; shift < 32; shift += 8)
    bytes += static_cast<char>(static_cast<std::uint32_t>(place) >> shift & 0xFFU);
  return bytes;
}

class LearnersListTest : public testing::Test {
 protected:
  LearnersListTest() {
    run.writeTexts({{1, "Town\r_\tThe old bank. _A river here.\r", "_Mot._Hai."}});
    run.writeTexts({}, true);
  }
  /// Begins and ends the program once, so that the words are tied to their sentences.
  void runOnce() {
    ProgramRun once({run.folder.path(), run.folder.path()});
    once.start();
    once.program.closeAtOnce();
  }
  /// Takes a word and leaves the program as a kill does.
  void takeRiverIntoTheJournal() {
    run.start();
    run.clickButton(1);
    run.key(key::Home);
    run.key(key::Enter);
    Surface& R2 = run.controls().R2;
    run.click(R2, static_cast<int>(R2.Text().find("river")) + 1);
    run.key(key::Enter);
  }
  std::string told() { return std::exchange(out, std::ostringstream()).str(); }

  static constexpr std::int32_t Bank = 7;
  static constexpr std::int32_t River = 23;

  ProgramRun run;
  LearnersList list{run.folder.path()};
  std::ostringstream out;
};

TEST_F(LearnersListTest, EveryWordIsToldWithItsTextAndItsSentence) {
  run.folder.write("data.c", record("bank", Bank) + record("river", River));
  runOnce();
  EXPECT_EQ(listWords(list, out), ListResult::Fine);
  EXPECT_EQ(told(), "bank\tTown\tThe old bank.\nriver\tTown\tA river here.\n2 words\n");
}

TEST_F(LearnersListTest, AWordWhoseSentenceIsGoneIsMarked) {
  run.folder.write("data.c", record("bank", Bank) + record("river", River));
  runOnce();
  run.writeTexts({{1, "Town\r_\tThe old bank.\r", "_Mot."}});
  runOnce();
  EXPECT_EQ(listWords(list, out), ListResult::Fine);
  EXPECT_THAT(told(),
              HasSubstr("river\tTown\tA river here.\t(this sentence is no longer in the course)\n"
                        "2 words, 1 of them with a sentence that is no longer in the course\n"));
}

TEST_F(LearnersListTest, WordsThatAreInTheJournalOnlyAreToldToo) {
  takeRiverIntoTheJournal();
  ASSERT_EQ(run.folder.read("data.c"), "");
  EXPECT_EQ(listWords(list, out), ListResult::Fine);
  EXPECT_THAT(told(), HasSubstr("river\tTown\tA river here."));
}

TEST_F(LearnersListTest, AFolderWithoutAListIsSaid) {
  std::filesystem::remove(run.folder.pathOf("data.c"));
  EXPECT_EQ(listWords(list, out), ListResult::Impossible);
  EXPECT_THAT(told(), HasSubstr(run.folder.path()));
}

TEST_F(LearnersListTest, WhatACopyHasAndTheListHasNotComesBackWhenAskedTwice) {
  run.folder.write("data.c", record("bank", Bank) + record("river", River));
  runOnce();
  run.folder.write("data.c", record("bank", Bank) + record("new", Bank));
  EXPECT_EQ(restoreWords(list, "", Doing::Show, out), ListResult::Found);
  EXPECT_THAT(told(), HasSubstr("river\tTown\tA river here.\n1 word will be brought back"));
  EXPECT_EQ(run.folder.read("data.c"), record("bank", Bank) + record("new", Bank)) << "only shown";
  EXPECT_EQ(restoreWords(list, "", Doing::Do, out), ListResult::Fine);
  EXPECT_EQ(run.folder.read("data.c"),
            record("bank", Bank) + record("new", Bank) + record("river", River));
  told();
  EXPECT_EQ(restoreWords(list, "", Doing::Do, out), ListResult::Fine);
  EXPECT_EQ(told(), "There is no word to bring back.\n");
}

TEST_F(LearnersListTest, AWordThatComesBackFindsItsSentenceInThePackOfToday) {
  run.folder.write("data.c", record("bank", Bank) + record("river", River));
  runOnce();
  run.folder.write("data.c", record("bank", Bank));
  run.writeTexts({{1, "Another\r_\tText.\r", "_Mot."},
                  {2, "Town\r_\tThe old bank. _A river here.\r", "_Mot._Hai."}});
  runOnce();
  EXPECT_EQ(restoreWords(list, "", Doing::Do, out), ListResult::Fine);
  runOnce();
  told();
  EXPECT_EQ(checkWords(list, run.folder.path(), Doing::Show, out), ListResult::Fine) << told();
}

TEST_F(LearnersListTest, BackupsAreToldAndAWrongNameIsNone) {
  EXPECT_EQ(listBackups(list, out), ListResult::Fine);
  EXPECT_EQ(told(), "There are no copies yet.\n");
  run.folder.write("data.c", record("bank", Bank));
  runOnce();
  EXPECT_EQ(listBackups(list, out), ListResult::Fine);
  EXPECT_THAT(told(), HasSubstr("\t1 word\n"));
  EXPECT_EQ(restoreWords(list, "2001-01-01_00-00-00", Doing::Do, out), ListResult::Impossible);
}

TEST_F(LearnersListTest, WhatIsOddIsToldAndMended) {
  run.folder.write("data.c", record("bank", Bank) + record("", 3) + record("Bank", 9) +
                                 record("river", Bank + 1) + "odd");
  EXPECT_EQ(checkWords(list, run.folder.path(), Doing::Show, out), ListResult::Found);
  const std::string faults = told();
  EXPECT_THAT(faults, HasSubstr("3 bytes too many at the end of the file."));
  EXPECT_THAT(faults, HasSubstr("Line 2 has no word."));
  EXPECT_THAT(faults, HasSubstr("Line 3: the word Bank stands above already."));
  EXPECT_THAT(faults, HasSubstr("Line 4: the sentence of the word river is not at its place."));
  EXPECT_EQ(checkWords(list, run.folder.path(), Doing::Do, out), ListResult::Fine);
  EXPECT_EQ(run.folder.read("data.c"), record("bank", Bank) + record("river", 0));
  EXPECT_EQ(checkWords(list, run.folder.path(), Doing::Show, out), ListResult::Fine);
  EXPECT_TRUE(run.folder.has("backups")) << "the list as it was is kept";
}

TEST_F(LearnersListTest, MendingKeepsTheWordsThatAreInTheJournalOnly) {
  takeRiverIntoTheJournal();
  run.folder.write("data.c", record("bank", Bank) + "odd");
  EXPECT_EQ(checkWords(list, std::nullopt, Doing::Do, out), ListResult::Fine);
  EXPECT_EQ(run.folder.read("data.c"), record("bank", Bank) + record("river", River));
}

TEST_F(LearnersListTest, NothingIsWrittenWhileTheProgramRuns) {
  run.folder.write("data.c", record("bank", Bank) + "odd");
  const LearnerLock running(systemFiles(), run.folder.path());
  EXPECT_EQ(checkWords(list, std::nullopt, Doing::Show, out), ListResult::Found);
  EXPECT_EQ(checkWords(list, std::nullopt, Doing::Do, out), ListResult::Impossible);
  EXPECT_THAT(told(), HasSubstr("Talvora is running."));
  EXPECT_EQ(run.folder.read("data.c"), record("bank", Bank) + "odd");
}

TEST_F(LearnersListTest, ABuildOverALearnersFolderCarriesTheWords) {
  run.folder.write("data.c", record("bank", Bank) + record("river", River));
  KeptWords words(run.folder.path());
  run.writeTexts({{1, "Another\r_\tText.\r", "_Mot."},
                  {2, "Town\r_\tThe old bank, and so on. _A river here.\r", "_Mot._Hai."}});
  const auto carried = words.carry();
  ASSERT_TRUE(carried);
  EXPECT_EQ(carried->inTheirText, 1);
  EXPECT_EQ(carried->nearest, 1);
  EXPECT_EQ(checkWords(list, run.folder.path(), Doing::Show, out), ListResult::Fine);
}

TEST_F(LearnersListTest, ABuildLeavesAFolderWithoutWordsAlone) {
  KeptWords words(run.folder.path());
  EXPECT_EQ(words.carry(), std::nullopt);
  EXPECT_FALSE(run.folder.has("talvora.lock"));
}

} // namespace
} // namespace talvora::pack
