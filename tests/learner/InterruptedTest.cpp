// What the learner owns is saved though every call to the system is broken off by a signal. The
// calls of this program that may be broken off meet the ones below first: each fails once with
// EINTR before it does what it is asked, and a write takes a few bytes only.
#include "learner/LearnerLock.h"
#include "learner/LearnerWords.h"
#include "stores/SettingsFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <map>
#include <set>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t MostWritten = 7; // bytes of a call

/// While it lives, calls are broken off.
class SignalStorm {
 public:
  SignalStorm() { now = this; }
  SignalStorm(const SignalStorm&) = delete;
  SignalStorm& operator=(const SignalStorm&) = delete;
  ~SignalStorm() { now = nullptr; }

  /// Whether a call is broken off this time; every other one of its name is.
  static bool breaksOff(const std::string& call) {
    if (now == nullptr) return false;
    now->met_.insert(call);
    bool& broken = now->broken_[call];
    broken = !broken;
    if (broken) errno = EINTR;
    return broken;
  }
  static bool rages() { return now != nullptr; }

  [[nodiscard]] const std::set<std::string>& met() const { return met_; }

 private:
  static inline SignalStorm* now = nullptr;

  std::map<std::string, bool> broken_;
  std::set<std::string> met_;
};

template <class Call>
Call systems(const char* name) {
  return reinterpret_cast<Call>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  if (SignalStorm::breaksOff("open")) return -1;
  return systems<int (*)(const char*, int, ...)>("open")(path, flags, mode);
}

ssize_t pread(int file, void* into, size_t size, off_t offset) {
  if (SignalStorm::breaksOff("pread")) return -1;
  return systems<decltype(&pread)>("pread")(file, into, size, offset);
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  if (SignalStorm::breaksOff("pwrite")) return -1;
  const size_t taken = SignalStorm::rages() ? std::min(size, MostWritten) : size;
  return systems<decltype(&pwrite)>("pwrite")(file, bytes, taken, offset);
}

int fsync(int file) {
  if (SignalStorm::breaksOff("fsync")) return -1;
  return systems<decltype(&fsync)>("fsync")(file);
}

int ftruncate(int file, off_t size) noexcept {
  if (SignalStorm::breaksOff("ftruncate")) return -1;
  return systems<int (*)(int, off_t)>("ftruncate")(file, size);
}

int fchmod(int file, mode_t mode) noexcept {
  if (SignalStorm::breaksOff("fchmod")) return -1;
  return systems<int (*)(int, mode_t)>("fchmod")(file, mode);
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
  if (SignalStorm::breaksOff("fchown")) return -1;
  return systems<int (*)(int, uid_t, gid_t)>("fchown")(file, owner, group);
}

int flock(int file, int operation) noexcept {
  if (SignalStorm::breaksOff("flock")) return -1;
  return systems<int (*)(int, int)>("flock")(file, operation);
}
}

namespace talvora {
namespace {

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
