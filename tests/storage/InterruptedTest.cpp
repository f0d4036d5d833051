// What the learner owns is saved though every call to the system is broken off by a signal: each
// fails once with EINTR before it does what it is asked, and a write takes a few bytes only.
#include "SystemCalls.h"

#include "learner/LearnerLock.h"
#include "learner/LearnerWords.h"
#include "stores/SettingsFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace talvora {
namespace {

using test::SignalStorm;

TEST(Interrupted, EveryCallOfTheSavePathIsMadeAgain) {
  const test::TemporaryFolder folder;
  const std::string learner = folder.path().string();
  const VocabularyWord bank{paddedWord("bank"), 8};
  const VocabularyWord river{paddedWord("river"), -16};
  const VocabularyWord street{paddedWord("street"), 24};
  std::set<std::string> met;
  {
    const SignalStorm storm;
    const LearnerLock lock(systemFiles(), learner);
    EXPECT_EQ(lock.state(), LearnerLock::State::Held);
    LearnerWords words(learner, systemFiles(), systemCalendar());
    words.open();
    EXPECT_TRUE(words.storing());
    words.noteAdded(bank);
    words.noteAdded(river);
    EXPECT_TRUE(words.safe());
    EXPECT_EQ(words.write({bank, river}), std::nullopt);
    words.noteRemoved({bank});
    EXPECT_EQ(words.write({river}), std::nullopt);
    words.noteAdded(street);
    EXPECT_TRUE(words.safe());
    met = storm.met();
  }
  EXPECT_EQ(met, (std::set<std::string>{"fchmod", "fchown", "flock", "fsync", "ftruncate", "open",
                                        "pread", "pwrite"}));
  // The last word was in the journal only.
  LearnerWords next(learner, systemFiles(), systemCalendar());
  next.open();
  EXPECT_EQ(next.read(), (std::vector<VocabularyWord>{river, street}));
  EXPECT_FALSE(next.copies().all().empty()) << "a deletion keeps a copy";
}

TEST(Interrupted, ASettingIsStored) {
  const test::TemporaryFolder folder;
  const std::string path = (folder.path() / "data.Kcu").string();
  {
    const SignalStorm storm;
    SettingsFile settings(systemFiles());
    settings.open(path, SettingsFile::IfMissing::BeginFresh);
    settings.write(4, 7);
  }
  SettingsFile settings(systemFiles());
  settings.open(path, SettingsFile::IfMissing::BeginFresh);
  EXPECT_EQ(settings.read(4), 7);
}

} // namespace
} // namespace talvora
