// The scripted keyboard and pointer.
#include "platform/scripted/ScriptedMachine.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

TEST(ScriptedInput, APollFindsAKeyThatIsDown) {
  ScriptedMachine machine;
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Left));
  machine.input.keyDown(key::Left);
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Left));
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Left));
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Right));
}

TEST(ScriptedInput, APollFindsAPressSinceTheLastOneOnce) {
  ScriptedMachine machine;
  machine.input.keyDown(key::Esc);
  machine.input.keyUp(key::Esc);
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Esc));
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Esc));
}

TEST(ScriptedInput, APollClearsThePressWhileTheKeyIsDown) {
  ScriptedMachine machine;
  machine.input.keyDown(key::Down);
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Down));
  machine.input.keyUp(key::Down);
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Down));
}

TEST(ScriptedInput, AHoldCountsFromTheMomentItWasQueued) {
  ScriptedMachine machine;
  static_cast<void>(machine.clock.Sleep(1000));
  machine.input.hold(key::Right, 50, 20);
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Right));
  static_cast<void>(machine.clock.Sleep(49));
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Right));
  static_cast<void>(machine.clock.Sleep(1));
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Right));
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Left));
  static_cast<void>(machine.clock.Sleep(19));
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Right));
  static_cast<void>(machine.clock.Sleep(1));
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Right));
}

TEST(ScriptedInput, SeveralHoldsAreKept) {
  ScriptedMachine machine;
  machine.input.hold(key::Esc, 200, 10);
  machine.input.hold(key::Left, 100, 10);
  static_cast<void>(machine.clock.Sleep(100));
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Left));
  static_cast<void>(machine.clock.Sleep(100));
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Left));
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Esc));
}

TEST(ScriptedInput, GivesUpWithEscButNotAheadOfAHold) {
  ScriptedMachine machine;
  machine.input.giveUpAt(100);
  machine.input.hold(key::Left, 200, 10);
  static_cast<void>(machine.clock.Sleep(150));
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Esc));
  static_cast<void>(machine.clock.Sleep(60));
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Esc));
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Left));
}

TEST(ScriptedInput, GivingUpLetsGoOfEveryOtherKey) {
  ScriptedMachine machine;
  machine.input.keyDown(key::Down);
  machine.input.giveUpAt(100);
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Down));
  static_cast<void>(machine.clock.Sleep(100));
  EXPECT_FALSE(machine.input.GetAsyncKeyState(key::Down));
  EXPECT_TRUE(machine.input.GetAsyncKeyState(key::Esc));
}

TEST(ScriptedInput, OnlyTheProgramsOwnMovesAreLogged) {
  ScriptedMachine machine;
  machine.input.placePointer({7, 8});
  EXPECT_FALSE(machine.input.takePointerMoved());
  machine.input.SetCursorPos({512, 55});
  EXPECT_EQ(machine.input.cursorPos(), (PixelPoint{512, 55}));
  ASSERT_EQ(machine.log.entries().size(), 1U);
  EXPECT_EQ(machine.log.entries()[0].what, "pointer");
  EXPECT_EQ(*machine.log.entries()[0].find("x"), logNumber(512));
  EXPECT_TRUE(machine.input.takePointerMoved());
  EXPECT_FALSE(machine.input.takePointerMoved());
}

TEST(ScriptedInput, AClickIsQueuedWhereThePointerWasWhenItWasSent) {
  ScriptedMachine machine;
  machine.input.SetCursorPos({80, 100});
  machine.input.sendClick(MouseButton::Right);
  machine.input.SetCursorPos({400, 50});
  EXPECT_EQ(machine.input.takeSynthetic(),
            SyntheticEvent(SyntheticClick{MouseButton::Right, {80, 100}}));
  EXPECT_FALSE(machine.input.takeSynthetic());
}

TEST(ScriptedInput, AStrokeIsTwoEventsAndOneEntry) {
  ScriptedMachine machine;
  machine.input.sendKey(key::Home, KeyMotion::Down);
  machine.input.sendKey(key::Home, KeyMotion::Up);
  EXPECT_EQ(machine.log.count("synthetic"), 1);
  EXPECT_EQ(*machine.log.entries()[0].find("key"), logText("Home"));
  EXPECT_EQ(machine.input.takeSynthetic(),
            SyntheticEvent(SyntheticKey{key::Home, KeyMotion::Down}));
  EXPECT_EQ(machine.input.takeSynthetic(), SyntheticEvent(SyntheticKey{key::Home, KeyMotion::Up}));
}

TEST(ScriptedInput, ModifiersThatAreDownMakeTheShiftArgument) {
  ScriptedMachine machine;
  EXPECT_EQ(machine.input.shiftState(), shift::None);
  machine.input.keyDown(key::Ctrl);
  machine.input.keyDown(key::Shift);
  EXPECT_EQ(machine.input.shiftState(), shift::Ctrl | shift::Shift);
  machine.input.keyUp(key::Shift);
  EXPECT_EQ(machine.input.shiftState(), shift::Ctrl);
}

} // namespace
} // namespace talvora
