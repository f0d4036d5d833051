// What is on the disk outlives a start at which it cannot be read or nothing can be written, and
// what somebody else wrote meanwhile is not lost either.
#include "learner/LearnerWords.h"

#include "Learning.h"
#include "platform/Files.h"
#include "tests/support/FaultyFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

namespace talvora {
namespace {

using test::FaultyFiles;
using test::Learning;
using test::record;
using test::Started;
using test::Texts;

class TroubledStart : public test::WithLearnersFolder {
 protected:
  /// A word in the list, a second in the journal alone, as a kill leaves it.
  void liveUntilAKill() {
    liveTaking("old");
    dieTaking({"bank"});
    ASSERT_NE(own.read("words.journal"), "");
  }
  /// Starts and ends while `trouble` is what becomes of the files; gives how many calls counted.
  int liveThrough(const std::function<void(FaultyFiles&)>& trouble) {
    Learning learning(pack, own);
    trouble(learning.run.files);
    learning.run.start();
    learning.run.machine.boxes.answer(BoxAnswer::Yes);
    learning.run.program.closeWindow();
    return learning.run.files.calls;
  }
};

void hideJournal(FaultyFiles& files) {
  hideContent(files, "words.journal");
}

void hideSentences(FaultyFiles& files) {
  hideContent(files, "words.txt");
}

TEST_F(TroubledStart, OnAFullDiskTheJournalStays) {
  liveUntilAKill();
  liveThrough(test::fillDisk);
  EXPECT_EQ(wordsNextTime(), (Texts{"old", "bank"}));
}

TEST_F(TroubledStart, OnAFullDiskTheWordsOfTheJournalAreShown) {
  liveUntilAKill();
  Learning learning(pack, own);
  test::fillDisk(learning.run.files);
  learning.run.start();
  EXPECT_EQ(learning.words(), (Texts{"old", "bank"}));
}

TEST_F(TroubledStart, InAFolderThatMayNotBeWrittenTheJournalStays) {
  liveUntilAKill();
  liveThrough([](FaultyFiles& files) { files.readOnly = true; });
  EXPECT_EQ(wordsNextTime(), (Texts{"old", "bank"}));
}

TEST_F(TroubledStart, AJournalThatCannotBeReadStays) {
  liveUntilAKill();
  const std::string journal = own.read("words.journal");
  liveThrough(hideJournal);
  EXPECT_EQ(own.read("words.journal"), journal);
  EXPECT_EQ(wordsNextTime(), (Texts{"old", "bank"}));
}

TEST_F(TroubledStart, AJournalThatCanBeReadLaterIsTakenIntoTheList) {
  liveUntilAKill();
  Learning learning(pack, own);
  hideJournal(learning.run.files);
  learning.run.start();
  learning.take("river");
  EXPECT_EQ(own.read("data.c").size(), 2 * VocabularyWord::RecordSize);
  EXPECT_NE(own.read("words.journal"), "");
  learning.run.files.failNever();
  EXPECT_EQ(learning.words(), (Texts{"old", "river", "bank"}));
  learning.take("stands");
  EXPECT_EQ(own.read("words.journal"), "");
  EXPECT_EQ(wordsNextTime(), (Texts{"old", "river", "bank", "stands"}));
}

TEST_F(TroubledStart, ALookThatFailsOnceLosesNoWord) {
  liveUntilAKill();
  const std::string list = own.read("data.c");
  const std::string journal = own.read("words.journal");
  const std::string rows = own.read("words.txt");
  int calls = 1;
  for (int call = 1; call <= calls; ++call) {
    own.write("data.c", list);
    own.write("words.journal", journal);
    own.write("words.txt", rows);
    std::filesystem::remove_all(own.pathOf("backups"));
    calls = liveThrough([&](FaultyFiles& files) {
      files.looksCount = true;
      files.counts = [&](const std::string&, const std::string& path) {
        return path == own.pathOf("data.c") || path == own.pathOf("words.journal") ||
               path == own.pathOf("words.txt");
      };
      files.failFrom = files.failTo = call;
      files.error = std::errc::io_error;
    });
    ASSERT_EQ(wordsNextTime(), (Texts{"old", "bank"})) << "call " << call << " of " << calls;
  }
  EXPECT_GT(calls, 20);
}

TEST_F(TroubledStart, SentencesThatCannotBeReadAreNotWrittenOver) {
  liveTaking("river");
  writeTexts({{1, "A new text\r_\tWith a sentence.\r", "_Mot."}});
  liveThrough([](FaultyFiles&) {});
  const std::string rows = own.read("words.txt");
  ASSERT_THAT(rows, testing::HasSubstr("A river runs here."));
  liveThrough(hideSentences);
  EXPECT_EQ(own.read("words.txt"), rows);

  Learning learning(pack, own);
  hideSentences(learning.run.files);
  learning.run.start();
  learning.run.files.failNever();
  static_cast<void>(learning.sentenceOfFirst());
  EXPECT_EQ(own.read("words.txt"), rows);
  EXPECT_EQ(Started(pack, own).sentenceOfFirst(), "A river runs here.");
}

TEST_F(TroubledStart, SentencesThatCanBeReadLaterStandBesideTheNewOnes) {
  liveTaking("river");
  const std::string before = own.read("words.txt");
  Learning learning(pack, own);
  hideSentences(learning.run.files);
  learning.run.start();
  learning.run.files.failNever();
  learning.take("bank");
  EXPECT_TRUE(own.read("words.txt").starts_with(before));
  EXPECT_THAT(own.read("words.txt"), testing::HasSubstr("The old bank stands."));
  EXPECT_EQ(own.read("words.journal"), "");
}

// -- Somebody else in the folder.

TEST_F(TroubledStart, AListThatSomebodyElseWroteMeanwhileKeepsItsWords) {
  own.write("data.c", record("bank", 1));
  Started learning(pack, own);
  EXPECT_EQ(learning.words(), Texts{"bank"});
  learning.openText();
  learning.add("river");
  const std::string theirs = record("bank", 1) + record("stone", 1);
  own.write("data.c", theirs);
  learning.leaveText();
  EXPECT_EQ(wordsNextTime(), (Texts{"bank", "river", "stone"}));
  DatedCopies copies(own.path(), systemFiles(), systemCalendar());
  bool kept = false;
  for (const DatedCopy& each : copies.all())
    kept = kept || copies.read(each.name, "data.c") == theirs;
  EXPECT_TRUE(kept);
}

TEST_F(TroubledStart, AWordThatIsDeletedStaysDeletedWhateverSomebodyElseWrote) {
  own.write("data.c", record("bank", 1) + record("old", 1));
  Started learning(pack, own);
  EXPECT_EQ(learning.words(), (Texts{"bank", "old"}));
  learning.openList();
  own.write("data.c", record("bank", 1) + record("old", 1) + record("stone", 1));
  learning.removeFirstShown();
  EXPECT_EQ(wordsNextTime(), (Texts{"old", "stone"}));
}

TEST_F(TroubledStart, AListThatSomebodyElseWroteMeanwhileKeepsItsWordsWhateverIsDeletedThen) {
  own.write("data.c", record("bank", 1) + record("old", 1) + record("river", 1));
  Started learning(pack, own);
  learning.openList();
  own.write("data.c", own.read("data.c") + record("stone", 1));
  learning.removeFirstShown();
  learning.removeFirstShown();
  EXPECT_EQ(wordsNextTime(), (Texts{"river", "stone"}));
}

} // namespace
} // namespace talvora
