#include "support/ShellRun.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace talvora {
namespace {

using test::ShellRun;

class Gesture : public testing::Test {
 protected:
  Gesture() {
    run.shell.upward.DongNghia = [this] {
      ++popupsClosed;
      run.controls.RHD.Visible(false);
    };
    for (Surface* surface : {&run.controls.R1, &run.controls.R2, &run.controls.RDT})
      run.shell.pages.add({.surface = *surface, .pointerName = surface->Name()});
    run.shell.pages.add({.surface = run.controls.Rsai, .pointerName = "RDT"});
    run.show(run.controls.R2);
    run.controls.R2.Text("some words to stand on");
  }

  /// A word is at hand, with its popup, clicked at a point.
  void takeWord(SurfacePoint at) {
    run.state.atHand.take("word");
    run.state.atHand.pointAt(at);
    run.state.atHand.keepCaret(7);
    run.controls.RHD.Visible(true);
  }

  ShellRun run;
  int popupsClosed = 0;
};

TEST_F(Gesture, APopupStaysWithinATwelfthOfTheScreenAndGoesBeyond) {
  const int reach = 1280;
  for (const SurfacePoint inside : {SurfacePoint{5000 + reach, 4000},
                                    {5000 - reach, 4000},
                                    {5000, 4000 + reach},
                                    {5000, 4000 - reach}}) {
    takeWord({5000, 4000});
    run.shell.gestures.followPointer(run.controls.R2, inside);
    EXPECT_EQ(run.state.word.TuHienTai, "word");
    EXPECT_EQ(popupsClosed, 0);
  }
  for (const SurfacePoint outside : {SurfacePoint{5001 + reach, 4000},
                                     {4999 - reach, 4000},
                                     {5000, 4001 + reach},
                                     {5000, 3999 - reach}}) {
    popupsClosed = 0;
    takeWord({5000, 4000});
    run.shell.gestures.followPointer(run.controls.R2, outside);
    EXPECT_EQ(run.state.word.TuHienTai, "");
    EXPECT_EQ(popupsClosed, 1);
    EXPECT_EQ(run.controls.R2.SelStart(), 7);
  }
}

TEST_F(Gesture, WhileSpaceIsHeldThePointerMayWander) {
  takeWord({5000, 4000});
  run.state.atHand.holdSpace();
  run.shell.gestures.followPointer(run.controls.R2, {0, 0});
  EXPECT_EQ(run.state.word.TuHienTai, "word");
  EXPECT_EQ(popupsClosed, 0);
}

TEST_F(Gesture, AVietnameseSideEntryKeepsTheWord) {
  takeWord({5000, 4000});
  run.state.atHand.takeSideEntry("entry");
  run.shell.gestures.followPointer(run.controls.R2, {0, 0});
  EXPECT_EQ(run.state.word.TuHienTai, "word");
}

TEST_F(Gesture, TheHintBarStaysWhileThePointerRestsWhereItCameIn) {
  run.shell.hints.GoiYF2();
  run.shell.gestures.followPointer(run.controls.R2, {3000, 3000});
  run.shell.gestures.followPointer(run.controls.R2, {4280, 3000});
  EXPECT_TRUE(run.controls.RDOS.Visible());
  run.shell.gestures.followPointer(run.controls.R2, {4281, 3000});
  EXPECT_FALSE(run.controls.RDOS.Visible());
}

TEST_F(Gesture, EscClosesTheHintBarFirst) {
  run.shell.hints.GoiYF2();
  EXPECT_TRUE(run.shell.gestures.DongPhu(run.controls.R2));
  EXPECT_FALSE(run.controls.RDOS.Visible());
  EXPECT_FALSE(run.shell.gestures.DongPhu(run.controls.R2));
}

TEST_F(Gesture, TheLookUpListClosesBeforeThePopup) {
  int listsClosed = 0;
  run.shell.gestures.onClose(CloseRank::LookUpList, run.controls.RTD, [&](Surface&) {
    ++listsClosed;
    run.controls.RTD.Visible(false);
  });
  run.controls.RTD.Visible(true);
  run.controls.RHD.Visible(true);
  EXPECT_TRUE(run.shell.gestures.DongPhu(run.controls.R2));
  EXPECT_EQ(listsClosed, 1);
  EXPECT_EQ(popupsClosed, 0);
  EXPECT_TRUE(run.shell.gestures.DongPhu(run.controls.R2));
  EXPECT_EQ(popupsClosed, 1);
  EXPECT_FALSE(run.shell.gestures.DongPhu(run.controls.R2));
}

TEST_F(Gesture, WhatIsClosedOnAConditionCountsOnlyWhileItHolds) {
  int lessonsClosed = 0;
  run.shell.pages.add({.surface = run.controls.RVP2, .cardOverPage = &run.controls.Frame3});
  run.shell.gestures.onClose(
      CloseRank::LinkedLesson, run.controls.RVP2, [&](Surface&) { ++lessonsClosed; },
      [this] { return run.shell.pages.pageOverPage(); });
  run.controls.RVP2.Visible(true);
  EXPECT_FALSE(run.shell.gestures.DongPhu(run.controls.RVP2));
  run.controls.Frame3.Visible(true);
  EXPECT_TRUE(run.shell.gestures.DongPhu(run.controls.RVP2));
  EXPECT_EQ(lessonsClosed, 1);
}

TEST_F(Gesture, EverySurfaceHasAPointerStateFromTheStart) {
  Variables variables;
  run.shell.gestures.declare(variables);
  const auto states = [&] {
    std::map<std::string, double> found;
    const VariableValue value = (*variables.find("TrangThaiChuot"))();
    for (const auto& [name, state] : std::get<VariableValue::Record>(value.value)) {
      found[name] = std::get<double>(state.value);
    }
    return found;
  };
  for (const char* name : {"R1", "R2", "RHD", "RDT", "Rsai"}) {
    ASSERT_TRUE(states().contains(name)) << name;
    EXPECT_EQ(states()[name], 0) << name;
  }
  run.shell.gestures.pointerMoved(run.controls.R2, {3000, 3000});
  EXPECT_EQ(states()["R2"], 1);
  run.shell.gestures.pointerMoved(run.controls.R2, {9000, 3000});
  EXPECT_EQ(states()["R2"], 2);
  run.shell.gestures.pointerMoved(run.controls.Rsai, {3000, 3000});
  EXPECT_EQ(states()["RDT"], 1);
  EXPECT_EQ(states()["Rsai"], 1);
  EXPECT_EQ(states()["R1"], 0);
}

TEST_F(Gesture, AKeyReleaseClearsTheClipboardAndTheEntry) {
  run.state.atHand.takeEntry("entry");
  run.shell.gestures.keyReleased();
  EXPECT_EQ(run.machine.log.count("clipboard"), 1);
  EXPECT_EQ(run.state.word.NghiaHienTai, "");
}

TEST_F(Gesture, ASectionRemindsOnceAndOnlyWhileItsSurfaceIsUntouched) {
  run.shell.gestures.remindOnFirstOpening(1, run.controls.R1);
  EXPECT_TRUE(run.controls.RDOS.Visible());
  run.controls.RDOS.Visible(false);
  run.shell.gestures.remindOnFirstOpening(1, run.controls.R1);
  EXPECT_FALSE(run.controls.RDOS.Visible());
  run.shell.gestures.pointerMoved(run.controls.R1, {1, 1});
  run.shell.gestures.remindOnFirstOpening(7, run.controls.R1);
  EXPECT_FALSE(run.controls.RDOS.Visible());
}

TEST(Messages, AMessageIsCentredAndGoesAfterItsTime) {
  ShellRun run;
  run.shell.messages.ThongBao("abc", 1500);
  EXPECT_EQ(run.machine.clock.nowMs(), 1500);
  EXPECT_FALSE(run.controls.RHD.Visible());
  EXPECT_FALSE(run.controls.Rnen.Visible());
  EXPECT_EQ(run.controls.RHD.Width(), 8 * 190);
  EXPECT_EQ(run.controls.RHD.Left(), (15360 - 8 * 190) / 2);
  EXPECT_EQ(run.controls.RHD.Top(), 11174 / 3);
  EXPECT_EQ(run.controls.RHD.Height(), 3 * 2 * 190 + 2 * 190);
}

TEST(Messages, AMessageWithoutATimeStaysUntilItIsTakenDown) {
  ShellRun run;
  run.shell.messages.ThongBao("abc", 0);
  EXPECT_TRUE(run.controls.RHD.Visible());
  EXPECT_EQ(run.controls.RHD.Text(), "\rabc\r");
  EXPECT_TRUE(run.controls.Rnen.Visible());
  EXPECT_EQ(run.controls.Rnen.BackColor(), 255U);
  EXPECT_EQ(run.controls.Rnen.Left(), run.controls.RHD.Left() - 77);
  run.shell.messages.TatThongBao();
  EXPECT_FALSE(run.controls.RHD.Visible());
}

TEST(Messages, ATextLongerThanTheScreenCentresToANegativeLeft) {
  ShellRun run;
  run.shell.messages.ThongBao(std::string(200, 'a'), 0);
  EXPECT_EQ(run.controls.RHD.Left(), (15360 - 205 * 190) / 2);
  EXPECT_LT(run.controls.RHD.Left(), 0);
}

TEST(Messages, TheDefaultAnswerIsReadInAnyCase) {
  ShellRun run;
  run.form.Caption("   TALVORA 2.4");
  EXPECT_TRUE(run.shell.messages.XacNhan("?", "YES"));
  EXPECT_FALSE(run.shell.messages.XacNhan("?", "no"));
  EXPECT_FALSE(run.shell.messages.XacNhan("?", ""));
}

TEST(SteeringTest, AnEscBesideAnArrowLeavesTheLatches) {
  ShellRun run;
  run.machine.input.keyDown(key::Left);
  run.machine.input.keyUp(key::Left);
  EXPECT_TRUE(run.shell.steering.CoMuiTen());
  EXPECT_FALSE(run.shell.steering.CoMuiTen());
}

TEST(SteeringTest, TheRestPointFollowsTheScreen) {
  for (const auto& [pixels, x] : {std::pair{640, 400}, {1024, 512}, {1366, 612}}) {
    ScriptedOptions options;
    options.screenWidth = pixels;
    ShellRun run(options);
    EXPECT_EQ(run.shell.steering.restPoint().x, x);
  }
}

} // namespace
} // namespace talvora
