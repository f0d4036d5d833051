// The learner's words survive a kill at any moment: data.c is always the old list or the new one.
#include "learner/LearnerWords.h"
#include "support/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace talvora {
namespace {

using test::ProgramRun;
using Clock = std::chrono::steady_clock;

constexpr int Kills = 60;
/// On a machine that is busy with other things a life takes longer to get anywhere.
constexpr int MostKills = 10 * Kills;
constexpr int LongestLifeMs = 30;
/// So many words that the file fills several pages.
constexpr int WordsKept = 500;

/// A process of its own that does something for ever. It ends by being killed only.
class Process {
 public:
  explicit Process(const std::function<void()>& forEver) : id_(::fork()) {
    if (id_ != 0) return;
    forEver();
    ::_exit(1);
  }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process() { kill(); }

  void kill() {
    if (id_ <= 0) return;
    ::kill(id_, SIGKILL);
    ::waitpid(std::exchange(id_, 0), nullptr, 0);
  }

 private:
  pid_t id_;
};

std::string record(std::string word, std::int32_t place) {
  word.resize(20, ' ');
  return word + std::string(reinterpret_cast<const char*>(&place), sizeof place);
}

class VocabularyKillTest : public testing::Test {
 protected:
  VocabularyKillTest() {
    for (int word = 0; word < WordsKept; ++word)
      kept += record("word" + std::to_string(word), 8);
    longer = kept + record("bank", 8);
    run.writeTexts({{1, "Title\r_\tThe old bank.\r", "_Mot."}});
    run.folder.write("data.c", kept);
    run.start();
  }

  /// Adds a word from a text.
  void add() {
    run.clickButton(1);
    run.controls().RDOS.Visible(false);
    run.controls().R1.SelStart(0);
    run.key(key::Enter);
    Surface& R2 = run.controls().R2;
    run.click(R2, static_cast<int>(R2.Text().find("bank")) + 1);
    run.key(key::Enter);
    while (run.controls().R1.Visible() || R2.Visible())
      run.key(key::Esc);
  }
  /// Deletes the last word from the list.
  void removeLast() {
    run.clickButton(2);
    Surface& Rchon = run.controls().Rchon;
    run.machine.boxes.answer(BoxAnswer::Yes);
    const int row = Rchon.TextLength() - static_cast<int>(std::string("501\t\tbank\r").size());
    Rchon.SelStart(row);
    Rchon.SelLength(Rchon.TextLength() - 1 - row);
    Rchon.releaseMouse(MouseButton::Left, shift::None, {});
    run.key(key::Esc);
    static_cast<void>(run.machine.log.take());
  }
  void expectAWholeList() {
    const std::string now = run.folder.read("data.c");
    ASSERT_TRUE(now == kept || now == longer) << "a list of " << now.size() << " bytes";
    ++(now == kept ? keptSeen : longerSeen);
  }

  ProgramRun run;
  std::string kept;   ///< the list without the word that comes and goes
  std::string longer; ///< the list with it
  int keptSeen = 0;
  int longerSeen = 0;
};

TEST_F(VocabularyKillTest, TheLearnerOfThisTestAddsAndDeletesAWord) {
  add();
  EXPECT_EQ(run.folder.read("data.c"), longer);
  removeLast();
  EXPECT_EQ(run.folder.read("data.c"), kept);
}

TEST_F(VocabularyKillTest, AtAnyMomentTheFileIsTheOldListOrTheNewOne) {
  std::mt19937 random(std::random_device{}());
  const auto sawBoth = [&] { return keptSeen > 0 && longerSeen > 0; };
  for (int kills = 0; kills < Kills || (!sawBoth() && kills < MostKills); ++kills) {
    run.folder.write("data.c", kept);
    Process learner([this] {
      for (;;) {
        add();
        removeLast();
      }
    });
    const int longest = LongestLifeMs * 1000 * (1 + kills / Kills);
    const auto end =
        Clock::now() + std::chrono::microseconds(random() % static_cast<unsigned>(longest));
    while (Clock::now() < end)
      ASSERT_NO_FATAL_FAILURE(expectAWholeList());
    learner.kill();
    ASSERT_NO_FATAL_FAILURE(expectAWholeList()) << "after kill " << kills;
  }
  EXPECT_GT(keptSeen, 0);
  EXPECT_GT(longerSeen, 0);
}

TEST_F(VocabularyKillTest, WhatKilledWritesHaveLeftIsClearedAtTheNextStart) {
  run.folder.write("data.c.new", "a new list that was never finis");
  run.folder.write("data.c.abcdefghijkl.new", "another one");
  run.folder.write("words.txt.abcdefghijkl.new", "and one of sentences");
  run.folder.write("data.c.old.new", "somebody's own");
  LearnerWords words(run.folder.path(), systemFiles(), systemCalendar());
  words.open();
  EXPECT_EQ(run.folder.read("data.c"), kept);
  EXPECT_THAT(run.folder.names(),
              testing::Not(testing::Contains(testing::HasSubstr("abcdefghijkl"))));
  EXPECT_FALSE(run.folder.has("data.c.new"));
  EXPECT_TRUE(run.folder.has("data.c.old.new"));
}

} // namespace
} // namespace talvora
