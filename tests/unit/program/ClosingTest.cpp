// Closing in every wait: whatever the program waits in, it hears that it is wanted closed.
#include "support/ProgramRun.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ProgramRun;

class Closing : public testing::Test {
 protected:
  Closing() {
    run.writeTexts({{1, "Title\r_\tOne here. _Two there.\r", "_Mot._Hai."}});
    run.folder.writeIntegers("data.Kcu", {0, 1, 0, 5});
    run.start();
  }
  void openText() {
    run.clickButton(1);
    run.controls().RDOS.Visible(false);
    run.key(key::Home);
    run.key(key::Enter);
  }
  /// Wants the program closed after so many milliseconds, and does something that waits longer.
  /// Gives how long it waited after that.
  std::int64_t waitedOn(int after, const std::function<void()>& deed) {
    // A loop that hears nothing ends all the same, far too late.
    run.machine.input.giveUpAt(run.machine.time.nowMs() + 1'000'000);
    const std::int64_t from = run.machine.time.nowMs();
    run.machine.clock.wantClosing(after);
    deed();
    EXPECT_TRUE(run.machine.clock.takeWish()) << "the wait was over before";
    return run.machine.time.nowMs() - from - after;
  }

  ProgramRun run;
};

TEST_F(Closing, EndsTheReadingOfAWholeText) {
  openText();
  for (const int after : {5, 15, 25, 40, 333, 1000, 5000, 60'000})
    EXPECT_EQ(waitedOn(after, [&] { run.key(key::F9); }), 0) << after;
}

TEST_F(Closing, EndsTheReadingOfARecordedText) {
  run.folder.writeIntegers("DataS", {1, 1000, 2000, 3000});
  run.folder.write("sound/1.wav", "");
  ProgramRun recorded;
  recorded.writeTexts({{400, "Title\r_\tOne here. _Two there.\r", "_Mot._Hai."}});
  recorded.folder.writeIntegers("DataS", {1, 1000, 2000, 3000});
  recorded.folder.write("sound/1.wav", "");
  recorded.start();
  recorded.clickButton(1);
  recorded.controls().RDOS.Visible(false);
  Surface& R1 = recorded.controls().R1;
  R1.SelStart(static_cast<int>(R1.Text().find("\tTitle")));
  R1.releaseMouse(MouseButton::Left, shift::None, {});
  ASSERT_TRUE(recorded.controls().R2.Visible());
  recorded.machine.input.giveUpAt(recorded.machine.time.nowMs() + 1'000'000);
  const std::int64_t from = recorded.machine.time.nowMs();
  recorded.machine.clock.wantClosing(700);
  recorded.key(key::F9);
  EXPECT_EQ(recorded.machine.time.nowMs() - from, 700);
}

TEST_F(Closing, EndsTheReadingWhileASentenceIsRepeated) {
  openText();
  run.machine.input.hold(key::Up, 100, 100'000);
  EXPECT_LE(waitedOn(2000, [&] { run.key(key::F9); }), 0);
}

TEST_F(Closing, TakesAMessageDown) {
  EXPECT_EQ(waitedOn(300, [&] { run.clickButton(6); }), 0);
  EXPECT_FALSE(run.controls().RHD.Visible());
}

TEST_F(Closing, OpensNoCurtain) {
  EXPECT_EQ(waitedOn(300, [&] { run.clickButton(9); }), 0);
  EXPECT_FALSE(run.controls().FC1.Visible());
  EXPECT_FALSE(run.controls().FC2.Visible());
}

TEST_F(Closing, EveryFurtherWaitIsOverAtOnce) {
  run.machine.clock.wantClosing(0);
  const std::int64_t from = run.machine.time.nowMs();
  run.clickButton(6);
  run.clickButton(9);
  openText();
  run.key(key::F9);
  EXPECT_EQ(run.machine.time.nowMs(), from);
}

TEST_F(Closing, StoresTheSettingsOfAPanelThatIsOpen) {
  const auto soundOn = [this] { return run.folder.read("data.Kcu").substr(4, 4); };
  ASSERT_EQ(soundOn(), std::string("\x01\0\0\0", 4));
  run.clickButton(8);
  Surface& panel = run.controls().RAmthanh;
  ASSERT_TRUE(panel.Visible());
  run.click(panel, static_cast<int>(panel.Text().find("- T")) + 3);
  ASSERT_LT(run.number("AmThanhBat"), 1);
  EXPECT_EQ(soundOn(), std::string("\x01\0\0\0", 4)) << "not before the panel is left";
  run.program.closeWindow();
  EXPECT_NE(soundOn(), std::string("\x01\0\0\0", 4));
}

TEST_F(Closing, DuringTheLoadNothingIsOpenedAnyMore) {
  ProgramRun loading;
  loading.writeTexts({});
  Program* program = nullptr;
  struct Interrupting final : EventLoop {
    Flow letEventsRun() override {
      if (deed) std::exchange(deed, {})();
      return Flow::Continue;
    }
    Flow letEventsRunUntilNextFrame() override { return Flow::Interrupt; }
    std::function<void()> deed;
  } loop;
  ScriptedMachine machine;
  Platform platform{machine.clock,        loop,
                    machine.input,        machine.speech,
                    machine.wave,         machine.metrics,
                    machine.layout,       machine.boxes,
                    machine.screen,       machine.clipboard,
                    machine.installation, machine.narrator,
                    machine.random};
  Program closed(platform, loading.folder.path());
  program = &closed;
  loop.deed = [&] { program->closeAtOnce(); };
  closed.Main();
  EXPECT_EQ(closed.ending(), Ending::Quit);
}

} // namespace
} // namespace talvora
