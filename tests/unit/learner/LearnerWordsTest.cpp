// No word that was taken is lost and none comes twice, whatever ends the program and whichever pack
// it is given next. Each test goes through the program as a learner does.
#include "learner/LearnerWords.h"

#include "Learning.h"
#include "platform/Files.h"
#include "text/Bytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

namespace talvora {
namespace {

using namespace literals;
using test::bankText;
using test::FaultyFiles;
using test::Learning;
using test::record;
using test::Started;
using test::TestFolder;
using test::Texts;

class LearnerWordsTest : public test::WithLearnersFolder {};

// -- Two folders.

TEST_F(LearnerWordsTest, ThePackIsOnlyReadAndTheLearnersFolderIsWritten) {
  const auto before = pack.names();
  const std::string settings = pack.read("data.Kcu");
  Started learning(pack, own);
  learning.take("bank");
  learning.run.program.closeWindow();
  EXPECT_EQ(pack.names(), before);
  EXPECT_EQ(pack.read("data.Kcu"), settings);
  EXPECT_EQ(own.read("data.c").size(), 24U);
  EXPECT_EQ(own.read("data.Kcu").substr(4, 4), std::string("\x01\0\0\0", 4)) << "sound is on";
  EXPECT_THAT(own.read("words.txt"), testing::HasSubstr("Our town\tThe old bank stands. \n"));
}

TEST_F(LearnerWordsTest, TheFirstRunMarksTheLearnersFolderOnly) {
  own.remove("Yes1");
  std::filesystem::remove(pack.pathOf("Yes1"));
  Started learning(pack, own);
  EXPECT_EQ(learning.run.program.ending(), Ending::FirstRun);
  EXPECT_TRUE(own.has("Yes1"));
  EXPECT_FALSE(pack.has("Yes1"));
}

// -- The journal.

TEST_F(LearnerWordsTest, AWordOutlivesAProgramThatWasKilledWithItsTextOpen) {
  dieTaking({"bank", "river"});
  EXPECT_EQ(own.read("data.c"), "") << "the list is written when reading is left";
  EXPECT_EQ(wordsNextTime(), (Texts{"bank", "river"}));
  EXPECT_EQ(own.read("data.c").size(), 48U) << "merged at the start";
  EXPECT_EQ(own.read("words.journal"), "");
  EXPECT_EQ(wordsNextTime(), (Texts{"bank", "river"})) << "and once only";
}

TEST_F(LearnerWordsTest, AWordThatIsInTheListAlreadyIsNotMergedAgain) {
  Started learning(pack, own);
  learning.openText();
  learning.add("bank");
  const std::string journal = own.read("words.journal");
  EXPECT_NE(journal, "");
  learning.leaveText();
  EXPECT_EQ(own.read("words.journal"), "");
  own.write("words.journal", journal);
  EXPECT_EQ(wordsNextTime(), Texts{"bank"});
}

TEST_F(LearnerWordsTest, AWordThatWasTakenAndDeletedStaysDeleted) {
  Started learning(pack, own);
  learning.openText();
  learning.add("bank");
  learning.add("river");
  learning.run.files.counts = [](const std::string&, const std::string& path) {
    return path.find("data.c") != std::string::npos;
  };
  learning.run.files.failAlways();
  learning.leaveText();
  learning.removeFirst();
  EXPECT_EQ(wordsNextTime(), Texts{"river"});
}

TEST_F(LearnerWordsTest, EveryWayToEndStoresWhatLeavingStores) {
  int caret = 0;
  const std::function<void(Program&)> ways[] = {
      [](Program& each) { each.closeWindow(); }, [](Program& each) { each.closeAtOnce(); },
      [](Program& each) { each.keep(); }, [](Program& each) { each.fail(); }};
  for (const auto& way : ways) {
    own.remove("data.c");
    own.remove("data.Kcu");
    Started learning(pack, own);
    learning.openText();
    learning.add("bank");
    caret = learning.run.controls().R1.SelStart();
    way(learning.run.program);
    EXPECT_EQ(own.read("data.c").size(), 24U);
    EXPECT_EQ(own.read("words.journal"), "");
    EXPECT_EQ(static_cast<unsigned char>(own.read("data.Kcu")[0]), caret & 0xFF);
  }
  EXPECT_GT(caret, 0);
}

// -- A device that fails.

TEST_F(LearnerWordsTest, AFolderThatMayNotBeWrittenIsToldOfInOneSentenceAndTheProgramWorks) {
  Learning learning(pack, own);
  test::forbidWriting(learning.run.files);
  learning.run.start();
  ASSERT_TRUE(learning.run.program.running());
  EXPECT_EQ(learning.run.machine.log.count("message"), 1);
  learning.take("bank");
  EXPECT_EQ(learning.words(), Texts{"bank"}) << "for this run";
  learning.run.program.closeWindow();
  EXPECT_FALSE(learning.run.program.running());
  EXPECT_EQ(learning.boxes(), Texts{"Do you want to quit?"}) << "nobody is troubled again";
  EXPECT_EQ(own.names(), Texts{"Yes1"});
}

TEST_F(LearnerWordsTest, WithoutAFirstRunMarkThatCanBeWrittenTheMenuStillComes) {
  own.remove("Yes1");
  Learning learning(pack, own);
  test::forbidWriting(learning.run.files);
  learning.run.start();
  EXPECT_TRUE(learning.run.program.running());
}

TEST_F(LearnerWordsTest, ADiskThatIsFullIsToldOfAtTheStart) {
  Learning learning(pack, own);
  test::fillDisk(learning.run.files);
  learning.run.start();
  EXPECT_TRUE(learning.run.program.running());
  EXPECT_EQ(learning.run.machine.log.count("message"), 1);
}

TEST_F(LearnerWordsTest, WordsThatAreOnNoDiskStandInTheWayOfQuittingWithOneQuestion) {
  Started learning(pack, own);
  learning.openText();
  learning.run.files.failAlways(std::errc::io_error);
  learning.add("bank");
  static_cast<void>(learning.run.machine.log.take());
  learning.run.program.closeWindow();
  EXPECT_TRUE(learning.run.program.running()) << "No is the default";
  EXPECT_EQ(learning.boxes(),
            Texts{std::string("TÙ vÜng chŸa ghi ðŸ¢c vào ðña. VÑn thoát?"_bytes)});
  learning.run.files.failNever();
  static_cast<void>(learning.run.machine.log.take());
  learning.run.program.closeWindow();
  EXPECT_FALSE(learning.run.program.running());
  EXPECT_EQ(learning.boxes(), Texts{}) << "there is room again";
  EXPECT_EQ(wordsNextTime(), Texts{"bank"});
}

TEST_F(LearnerWordsTest, WordsThatAreInTheJournalAreSafeAndAskNothing) {
  Started learning(pack, own);
  learning.openText();
  learning.add("bank");
  learning.run.files.failAlways(std::errc::io_error);
  static_cast<void>(learning.run.machine.log.take());
  learning.run.program.closeWindow();
  EXPECT_FALSE(learning.run.program.running());
  EXPECT_EQ(learning.boxes(), Texts{});
  EXPECT_EQ(wordsNextTime(), Texts{"bank"});
}

TEST_F(LearnerWordsTest, ASettingThatCannotBeWrittenEndsNothingAndHoldsForTheRun) {
  Started learning(pack, own);
  learning.openText();
  learning.run.files.failAlways(std::errc::io_error);
  learning.leaveText();
  EXPECT_TRUE(learning.run.program.running());
  EXPECT_EQ(learning.boxes(), Texts{});
  learning.run.clickButton(1);
  EXPECT_GT(learning.run.controls().R1.SelStart(), 0);
}

TEST_F(LearnerWordsTest, AListThatIsTakenAwayInMidRunIsMadeAgain) {
  own.write("data.c", record("bank", 1));
  Started learning(pack, own);
  EXPECT_EQ(learning.words(), Texts{"bank"});
  own.remove("data.c");
  EXPECT_EQ(learning.words(), Texts{"bank"});
  EXPECT_EQ(own.read("data.c").size(), 24U);
}

TEST_F(LearnerWordsTest, AListThatCannotBeReadIsNotWrittenOver) {
  hideList();
  Started learning(pack, own);
  learning.take("bank");
  EXPECT_TRUE(std::filesystem::is_directory(own.pathOf("data.c")));
  bringListBack(record("river", 1));
  learning.take("old");
  EXPECT_EQ(wordsNextTime(), (Texts{"river", "bank", "old"}));
}

TEST_F(LearnerWordsTest, AWordThatWasThereKeepsItsSentenceWhenTheListComesBack) {
  hideList();
  Started learning(pack, own);
  learning.take("bank");
  bringListBack(record("river", 2) + record("bank", 1));
  learning.take("old");
  EXPECT_TRUE(own.read("data.c").starts_with(record("river", 2) + record("bank", 1)));
  EXPECT_EQ(wordsNextTime(), (Texts{"river", "bank", "old"}));
}

TEST_F(LearnerWordsTest, AWordThatIsDeletedStaysDeletedWhenTheListComesBack) {
  hideList();
  Started learning(pack, own);
  learning.take("bank");
  learning.removeFirst();
  bringListBack(record("river", 2) + record("bank", 1));
  learning.take("old");
  EXPECT_EQ(learning.words(), (Texts{"river", "old"}));
  EXPECT_EQ(wordsNextTime(), (Texts{"river", "old"}));
}

TEST_F(LearnerWordsTest, AWordThatIsDeletedWhileTheListIsAwayStaysDeleted) {
  const std::string list = record("bank", 1) + record("river", 2);
  own.write("data.c", list);
  Started learning(pack, own);
  EXPECT_EQ(learning.words(), (Texts{"bank", "river"}));
  hideList();
  EXPECT_EQ(learning.words(), (Texts{"bank", "river"}));
  learning.removeFirst();
  bringListBack(list);
  learning.openText();
  learning.leaveText();
  EXPECT_EQ(learning.words(), Texts{"river"});
  EXPECT_EQ(wordsNextTime(), Texts{"river"});
}

TEST_F(LearnerWordsTest, WhatAnEarlierRunTookIsThereWhenTheListComesBack) {
  hideList();
  liveTaking("bank");
  Started learning(pack, own);
  bringListBack(record("river", 2));
  EXPECT_EQ(learning.words(), (Texts{"river", "bank"}));
  learning.take("old");
  EXPECT_EQ(learning.words(), (Texts{"river", "bank", "old"}));
  EXPECT_EQ(wordsNextTime(), (Texts{"river", "bank", "old"}));
}

TEST_F(LearnerWordsTest, AListThatComesBackWhileItIsOpenIsThereAfterEveryDeletion) {
  hideList();
  Started learning(pack, own);
  learning.take("bank");
  learning.take("old");
  learning.openList();
  bringListBack(record("river", 2));
  learning.removeFirstShown();
  learning.removeFirstShown();
  EXPECT_EQ(wordsNextTime(), Texts{"river"});
}

TEST_F(LearnerWordsTest, AJournalThatMayNotBeWrittenBringsNoDeletedWordBack) {
  dieTaking({"bank", "river"});
  const auto forbidJournal = [](FaultyFiles& files) {
    files.counts = [](const std::string& call, const std::string& path) {
      return call == "open" && path.ends_with("/words.journal");
    };
    files.failAlways(std::errc::permission_denied);
  };
  {
    Learning learning(pack, own);
    forbidJournal(learning.run.files);
    learning.run.start();
    learning.removeFirst();
  }
  Learning next(pack, own);
  forbidJournal(next.run.files);
  next.run.start();
  EXPECT_EQ(next.words(), Texts{"river"});
}

// -- A kill at each call.

/// Goes through a learner's evening; tells after each deed what must be kept from then on.
void goThroughAnEvening(Learning& learning, const std::function<void(char)>& tell) {
  learning.run.start();
  learning.openText();
  learning.add("bank");
  tell('b');
  learning.add("river");
  tell('r');
  learning.leaveText();
  learning.removeFirst();
  tell('B');
  learning.openText();
  learning.add("stands");
  tell('s');
  learning.run.program.closeWindow();
}

/// How far an evening came that was killed at a call.
struct KilledEvening {
  std::string told;   ///< what had been told by then
  bool ended = false; ///< it came to its end: there are no more calls

  [[nodiscard]] bool did(char deed) const { return told.find(deed) != std::string::npos; }
};

KilledEvening eveningUntil(int call, const TestFolder& pack, const TestFolder& own) {
  const TestFolder scratch; // what is killed does not clear up behind itself
  int ends[2];
  EXPECT_EQ(::pipe(ends), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    ::setenv("TMPDIR", scratch.path().c_str(), 1);
    Learning learning(pack, own);
    learning.run.files.before = [call](int number) {
      if (number == call) ::kill(::getpid(), SIGKILL);
    };
    goThroughAnEvening(learning, [&](char deed) {
      if (::write(ends[1], &deed, 1) != 1) ::_exit(2);
    });
    ::_exit(0);
  }
  ::close(ends[1]);
  KilledEvening evening;
  char deed = 0;
  while (::read(ends[0], &deed, 1) == 1)
    evening.told += deed;
  ::close(ends[0]);
  int status = 0;
  ::waitpid(child, &status, 0);
  evening.ended = WIFEXITED(status);
  return evening;
}

TEST_F(LearnerWordsTest, AKillAtAnyCallOfTheEveningLosesNoWordAndDoublesNone) {
  int kills = 0;
  for (bool ended = false; !ended; ++kills) {
    SCOPED_TRACE("call " + std::to_string(kills + 1));
    for (const std::string& name : own.names())
      std::filesystem::remove_all(own.pathOf(name));
    own.write("Yes1", "");
    const KilledEvening evening = eveningUntil(kills + 1, pack, own);
    const Texts words = wordsNextTime();
    const auto times = [&](const char* word) {
      return std::count(words.begin(), words.end(), word);
    };
    EXPECT_LE(times("bank"), 1);
    EXPECT_TRUE(!evening.did('b') || evening.did('r') || times("bank") == 1);
    EXPECT_TRUE(!evening.did('r') || times("river") == 1);
    EXPECT_TRUE(!evening.did('B') || times("bank") == 0);
    EXPECT_TRUE(!evening.did('s') || times("stands") == 1);
    EXPECT_LE(words.size(), 3U);
    ended = evening.ended;
  }
  EXPECT_GT(kills, 40) << "the evening makes many calls";
}

// -- Another pack.

TEST_F(LearnerWordsTest, AWordFindsItsSentenceInAPackThatHasNewTextsAheadOfIt) {
  liveTaking("river");
  writeTexts({{1, "A new text\r_\tWith a sentence. _And one more.\r", "_Mot._Hai."}, bankText(7)});
  EXPECT_EQ(Started(pack, own).sentenceOfFirst(), "A river runs here.");
  EXPECT_TRUE(own.has("backups")) << "the old list is kept";
}

TEST_F(LearnerWordsTest, AWordWhoseSentenceIsGoneStillShowsIt) {
  liveTaking("river");
  const std::string before = own.read("data.c");
  writeTexts({{1, "A new text\r_\tWith a sentence.\r", "_Mot."}});
  EXPECT_EQ(Started(pack, own).sentenceOfFirst(), "A river runs here.");
  EXPECT_EQ(own.read("data.c"), record("river", 0));
  writeTexts({bankText(4)});
  EXPECT_EQ(wordsNextTime(), Texts{"river"});
  EXPECT_EQ(own.read("data.c"), before) << "it is back, and so is the place";
}

TEST_F(LearnerWordsTest, AWordWhoseSentenceIsGoneStillShowsItThoughOnlyTheListCouldBeWritten) {
  liveTaking("river");
  writeTexts({{1, "A new text\r_\tWith a sentence.\r", "_Mot."}});
  {
    Learning learning(pack, own);
    learning.run.files.counts = [](const std::string& call, const std::string& path) {
      return call == "rename" && path.ends_with("/words.txt");
    };
    learning.run.files.failAlways();
    learning.run.start();
  }
  ASSERT_EQ(own.read("data.c"), record("river", 0));
  EXPECT_EQ(Started(pack, own).sentenceOfFirst(), "A river runs here.");
}

TEST_F(LearnerWordsTest,
       APlaceThatWasFoundInOnePackIsFoundAnewInTheNextThoughOnlyTheListWasWritten) {
  liveTaking("river");
  const test::StoredText ahead{1, "A new text\r_\tWith a sentence. _And one more.\r", "_Mot._Hai."};
  writeTexts({ahead, bankText(7)});
  {
    Learning learning(pack, own);
    learning.run.files.counts = [](const std::string& call, const std::string& path) {
      return call == "rename" && path.ends_with("/words.txt");
    };
    learning.run.files.failAlways();
    learning.run.start();
  }
  writeTexts({bankText(9)});
  EXPECT_EQ(Started(pack, own).sentenceOfFirst(), "A river runs here.");
}

TEST_F(LearnerWordsTest, AWordInTheJournalFindsItsSentenceInANewPackToo) {
  dieTaking({"river"});
  writeTexts({{1, "A new text\r_\tWith a sentence.\r", "_Mot."}, bankText(7)});
  EXPECT_EQ(Started(pack, own).sentenceOfFirst(), "A river runs here.");
}

TEST_F(LearnerWordsTest, AJournalThatIsMergedWithoutAPackTakesNoWordItsSentence) {
  liveTaking("bank");
  dieTaking({"river"});
  own.remove("words.txt");
  LearnerWords(own.path(), systemFiles(), systemCalendar()).open();
  EXPECT_EQ(Started(pack, own).sentenceOfFirst(), "The old bank stands. ");
}

TEST_F(LearnerWordsTest, AWordThatIsTakenAnewKeepsTheSentenceThatItWasTakenFrom) {
  liveTaking("bank");
  const std::string place = own.read("data.c");
  // The place of the old sentence is that of another one, and the old one is elsewhere.
  writeTexts({{4, "New town\r_\tThe big bank opens here. _A road.\r", "_Mot._Hai."}, bankText(9)});
  {
    Started learning(pack, own);
    EXPECT_NE(own.read("data.c"), place);
    learning.removeFirst();
    learning.openText("New town");
    learning.add("bank");
    learning.leaveText();
    EXPECT_EQ(own.read("data.c"), place);
  }
  EXPECT_EQ(Started(pack, own).sentenceOfFirst(), "The big bank opens here. ");
}

TEST_F(LearnerWordsTest, ThePlaceInAListGoesWithItsTitle) {
  {
    Started learning(pack, own);
    learning.openText();
    learning.leaveText();
  }
  writeTexts({{1, "A much longer title than before\r_\tWith a sentence.\r", "_Mot."}, bankText(9)});
  Started learning(pack, own);
  learning.run.clickButton(1);
  EXPECT_EQ(learning.run.controls().R1.SelText(), "\tOur town\r");
  EXPECT_EQ(learning.run.number("SoBaiChon"), 9);
}

// -- Copies.

TEST_F(LearnerWordsTest, ADeletionLeavesACopyOfTheListAsItWas) {
  own.write("data.c", record("bank", 1) + record("river", 2));
  Started learning(pack, own);
  learning.removeFirst();
  EXPECT_EQ(own.read("data.c"), record("river", 2));
  DatedCopies copies(own.path(), systemFiles(), systemCalendar());
  ASSERT_EQ(copies.all().size(), 1U);
  EXPECT_EQ(copies.read(copies.all()[0].name, "data.c"), record("bank", 1) + record("river", 2));
}

} // namespace
} // namespace talvora
