#include "support/ShellRun.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ShellRun;

class FormTest : public testing::Test {
 protected:
  FormTest() {
    for (int number = 1; number <= 18; ++number) {
      run.controls.but(number).Visible(true);
      run.controls.but(number).TabIndex(number);
    }
  }

  [[nodiscard]] std::string focus() const {
    const Control* control = run.form.ActiveControl();
    return control == nullptr ? "" : control->Name();
  }

  ShellRun run;
};

TEST_F(FormTest, FocusOnAHiddenSurfaceFailsQuietly) {
  run.controls.but(1).SetFocus();
  run.controls.R1.SetFocus();
  EXPECT_EQ(focus(), "but1");
}

TEST_F(FormTest, FocusEventsRunInOrderAndOnce) {
  std::vector<std::string> events;
  run.controls.but(1).LostFocus = [&] { events.emplace_back("lost"); };
  run.controls.but(2).GotFocus = [&] { events.emplace_back("got"); };
  run.controls.but(1).SetFocus();
  run.controls.but(2).SetFocus();
  run.controls.but(2).SetFocus();
  EXPECT_EQ(events, (std::vector<std::string>{"lost", "got"}));
}

TEST_F(FormTest, HidingTheFocusedControlDropsTheFocusWhereNoPageIsLeft) {
  run.show(run.controls.R1);
  run.controls.R1.Visible(false);
  EXPECT_EQ(focus(), "");
}

TEST_F(FormTest, TheForemostPageThatTakesKeysInheritsTheKeyboard) {
  run.show(run.controls.R1);
  run.show(run.controls.RVP2);
  run.show(run.controls.R2);
  run.controls.Rnen2.Visible(true);
  run.show(run.controls.RTD);
  ASSERT_EQ(focus(), "RTD");
  run.controls.RTD.Visible(false);
  EXPECT_EQ(focus(), "RVP2");
  run.controls.RVP2.Enabled(false);
  EXPECT_EQ(focus(), "R2") << "a plate takes no keys, and a disabled page none either";
}

TEST_F(FormTest, TheHintBarDoesNotTakeTheKeyboard) {
  run.show(run.controls.R1);
  run.show(run.controls.RTD);
  run.controls.RDOS.Visible(true);
  run.controls.RTD.Visible(false);
  EXPECT_EQ(focus(), "R1");
}

TEST_F(FormTest, WhoeverALostFocusHasChosenKeepsTheKeyboard) {
  run.show(run.controls.R1);
  run.show(run.controls.RVP2);
  run.show(run.controls.RTD);
  run.controls.RTD.LostFocus = [&] { run.controls.R1.SetFocus(); };
  run.controls.RTD.Visible(false);
  EXPECT_EQ(focus(), "R1");
}

TEST_F(FormTest, ArrowsAndTabMoveAlongTheRingOfTheTabOrder) {
  run.controls.but(18).SetFocus();
  run.form.pressKey(key::Down, 0, 0);
  EXPECT_EQ(focus(), "but1");
  run.form.pressKey(key::Left, 0, 0);
  EXPECT_EQ(focus(), "but18");
  run.form.pressKey(key::Tab, shift::Shift, '\t');
  EXPECT_EQ(focus(), "but17");
  run.controls.but(18).Visible(false);
  run.form.pressKey(key::Tab, 0, '\t');
  EXPECT_EQ(focus(), "but1") << "hidden buttons are passed over";
}

TEST_F(FormTest, EnterAndSpaceClickAFocusedButtonUnlessSwallowed) {
  int clicks = 0;
  Button& button = run.controls.but(3);
  button.Click = [&] { ++clicks; };
  button.SetFocus();
  run.form.pressKey(key::Enter, 0, '\r');
  run.form.pressKey(key::Space, 0, ' ');
  EXPECT_EQ(clicks, 2);
  button.KeyPress = [](int& KeyAscii) { KeyAscii = 0; };
  run.form.pressKey(key::Enter, 0, '\r');
  EXPECT_EQ(clicks, 2);
}

TEST_F(FormTest, TheForemostControlTakesTheMouse) {
  run.show(run.controls.R1);
  EXPECT_EQ(run.form.controlAt({2000, 2000}), &run.controls.R1);
  run.show(run.controls.RHD);
  EXPECT_EQ(run.form.controlAt({2000, 2000}), &run.controls.RHD);
  EXPECT_EQ(run.form.controlAt({15000, 11000}), nullptr);
}

TEST_F(FormTest, ControlsAreFoundByName) {
  EXPECT_EQ(run.form.find("RVP2"), &run.controls.RVP2);
  EXPECT_EQ(run.form.find("nothing"), nullptr);
}

TEST_F(FormTest, MeasuresTextInItsOwnFont) {
  run.form.FontSize(20);
  EXPECT_EQ(run.form.TextWidth("AAAA"), 800);
  EXPECT_EQ(run.form.TextHeight("A"), 600);
}

} // namespace
} // namespace talvora
