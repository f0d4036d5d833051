// The mouse on the form's view: what Qt tells of it, and what comes of it.
#include "desktop/FormMouse.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/ProgramControls.h"

#include <QMouseEvent>
#include <gtest/gtest.h>

namespace talvora {
namespace {

class FormMouseTest : public testing::Test {
 protected:
  FormMouseTest() {
    place(controls.but(1), 0);
    place(controls.but(2), 1000);
    place(controls.R1, 2000);
    place(controls.RVP2, 3000);
    controls.but(1).Click = [this] { ++clicks; };
    controls.but(2).MouseMove = [this] { ++moves; };
    controls.R1.MouseUp = [this](MouseButton, int, SurfacePoint) { ++releases; };
  }

  void press(int x) { send(QEvent::MouseButtonPress, x, Qt::LeftButton, Qt::LeftButton); }
  void release(int x) { send(QEvent::MouseButtonRelease, x, Qt::LeftButton, Qt::NoButton); }
  void move(int x, Qt::MouseButtons down) { send(QEvent::MouseMove, x, Qt::NoButton, down); }

  ScriptedMachine machine{ScriptedOptions{}};
  Form form{machine.screen, machine.metrics};
  ProgramControls controls{form, machine.layout};
  EventBridge bridge;
  FormInput input{form};
  FormMouse mouse{input, bridge};
  int clicks = 0;
  int moves = 0;
  int releases = 0;

 private:
  static void place(Control& control, int left) {
    control.Left(left);
    control.Width(900);
    control.Height(900);
    control.Visible(true);
  }
  void send(QEvent::Type type, int x, Qt::MouseButton button, Qt::MouseButtons down) {
    const QPointF at(x, 10);
    const QMouseEvent event(type, at, at, button, down, Qt::NoModifier);
    if (type == QEvent::MouseButtonPress) {
      mouse.press(event);
    } else if (type == QEvent::MouseButtonRelease) {
      mouse.release(event);
    } else {
      mouse.move(event);
    }
  }
};

TEST_F(FormMouseTest, AClickIsAPressAndAReleaseOnOneButton) {
  press(10);
  release(20);
  EXPECT_EQ(clicks, 1);
  press(10);
  release(1010);
  EXPECT_EQ(clicks, 1);
}

TEST_F(FormMouseTest, AHeldButtonKeepsThePointer) {
  press(10);
  move(1010, Qt::LeftButton);
  EXPECT_EQ(moves, 0);
  release(1010);
  move(1020, Qt::NoButton);
  EXPECT_EQ(moves, 1);
}

TEST_F(FormMouseTest, AMoveWithoutAButtonTellsThatTheReleaseIsLost) {
  press(10);
  move(1010, Qt::NoButton);
  EXPECT_EQ(moves, 1);
  release(10);
  EXPECT_EQ(clicks, 0);
}

TEST_F(FormMouseTest, ABoxEndsAPress) {
  press(10);
  input.endPress();
  release(10);
  EXPECT_EQ(clicks, 0);
  move(1010, Qt::NoButton);
  EXPECT_EQ(moves, 1);
}

TEST_F(FormMouseTest, TheKeyboardThatPassesOnEndsAPress) {
  press(2010);
  controls.RVP2.SetFocus();
  release(2010);
  EXPECT_EQ(releases, 0);
  press(10);
  controls.but(2).SetFocus();
  release(10);
  EXPECT_EQ(clicks, 0);
}

TEST_F(FormMouseTest, ASurfaceThatHandsTheKeyboardOnGetsItsRelease) {
  controls.R1.MouseDown = [this](MouseButton, int, SurfacePoint) { controls.RVP2.SetFocus(); };
  press(2010);
  release(2010);
  EXPECT_EQ(releases, 1);
}

} // namespace
} // namespace talvora
