#include "support/ShellRun.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ShellRun;

TEST(Transitions, InMode5ASurfaceStandsAtOnceWithItsFrameOnePercentUpAndLeft) {
  ShellRun run;
  Surface& R1 = run.controls.R1;
  Frame& frame = run.controls.Frame1;
  run.shell.transitions.MoRan(R1, frame);
  EXPECT_EQ(R1.Width(), 11674);
  EXPECT_EQ(R1.Height(), 8939);
  EXPECT_EQ(R1.Left(), 1843);
  EXPECT_EQ(R1.Top(), 1118);
  EXPECT_EQ(frame.Left(), 1689);
  EXPECT_EQ(frame.Top(), 1006);
  EXPECT_EQ(frame.Width(), 11981);
  EXPECT_EQ(frame.Height(), 9162);
  EXPECT_TRUE(R1.Visible());
  EXPECT_TRUE(frame.Visible());
  EXPECT_TRUE(run.form.hasFocus(R1));
  EXPECT_EQ(run.machine.log.count("sleep"), 0);
  run.shell.transitions.DongRan(R1, frame);
  EXPECT_FALSE(R1.Visible());
  EXPECT_FALSE(frame.Visible());
}

class SlidingMode : public testing::TestWithParam<int> {};

TEST_P(SlidingMode, EndsAtTheSamePlaceAndSleepsAfterEachStep) {
  ShellRun run;
  run.state.measures.KieuTruot = GetParam();
  run.shell.setup.adjustSlideStep();
  Surface& R1 = run.controls.R1;
  run.shell.transitions.MoRan(R1, run.controls.Frame1);
  EXPECT_EQ(R1.Left(), 1843);
  EXPECT_EQ(R1.Top(), 1118);
  EXPECT_TRUE(run.controls.Frame1.Visible());
  const int opening = run.machine.log.count("sleep");
  run.shell.transitions.DongRan(R1, run.controls.Frame1);
  EXPECT_FALSE(R1.Visible());
  EXPECT_FALSE(run.controls.Frame1.Visible());
  if (GetParam() == 4) {
    EXPECT_EQ(run.machine.log.count("sleep"), 0);
  } else {
    EXPECT_GT(opening, 10);
    EXPECT_GT(run.machine.log.count("sleep"), opening);
    const int expected = GetParam() == 1 ? 50 : GetParam() == 2 ? 30 : 1;
    EXPECT_EQ(std::get<std::int64_t>(*run.machine.log.entries().back().find("ms")), expected);
  }
}

TEST_P(SlidingMode, IsOverAtOnceWhenTheProgramIsWantedClosed) {
  ShellRun run;
  run.state.measures.KieuTruot = GetParam();
  run.shell.setup.adjustSlideStep();
  Surface& R1 = run.controls.R1;
  run.machine.clock.wantClosing(0);
  run.shell.transitions.MoRan(R1, run.controls.Frame1);
  EXPECT_EQ(R1.Left(), 1843);
  EXPECT_EQ(R1.Top(), 1118);
  EXPECT_LE(run.machine.log.count("sleep"), 1);
  run.shell.transitions.DongRan(R1, run.controls.Frame1);
  EXPECT_FALSE(R1.Visible());
  EXPECT_LE(run.machine.log.count("sleep"), 2);
}

INSTANTIATE_TEST_SUITE_P(Modes, SlidingMode, testing::Values(1, 2, 3, 4));

TEST(Transitions, SlidingEndsOnEveryScreen) {
  for (const int width : {320, 640, 800, 1024, 2560}) {
    for (int mode = 1; mode <= 4; ++mode) {
      ScriptedOptions options;
      options.screenWidth = width;
      options.screenHeight = 768;
      ShellRun run(options);
      run.state.measures.KieuTruot = mode;
      run.shell.transitions.MoRan(run.controls.R1, run.controls.Frame1);
      EXPECT_TRUE(run.controls.R1.Visible());
      run.shell.transitions.DongRan(run.controls.R1, run.controls.Frame1);
      EXPECT_FALSE(run.controls.R1.Visible());
    }
  }
}

TEST(Transitions, ASurfaceWiderThanTheScreenEndsAtANegativeLeft) {
  ShellRun run;
  run.state.measures.PhanTramRong = 120;
  run.shell.transitions.MoRan(run.controls.R1, run.controls.Frame1);
  EXPECT_EQ(run.controls.R1.Width(), 18432);
  EXPECT_EQ(run.controls.R1.Left(), -1536);
}

TEST(Transitions, ClosingHidesTheHintBarAndThePopup) {
  ShellRun run;
  int closed = 0;
  run.shell.upward.DongNghia = [&closed] { ++closed; };
  run.shell.transitions.MoRan(run.controls.R1, run.controls.Frame1);
  run.shell.hints.GoiYF2();
  EXPECT_TRUE(run.controls.RDOS.Visible());
  run.shell.transitions.DongRan(run.controls.R1, run.controls.Frame1);
  EXPECT_FALSE(run.controls.RDOS.Visible());
  EXPECT_EQ(closed, 1);
}

TEST(CurtainTest, PartsOverTheSurfaceAndParksThePointer) {
  ShellRun run;
  run.shell.transitions.MoRan(run.controls.R2, run.controls.Frame2);
  run.machine.log.take();
  run.shell.curtain.KeoMan(run.controls.R2);
  EXPECT_FALSE(run.controls.FC1.Visible());
  EXPECT_FALSE(run.controls.FC2.Visible());
  EXPECT_EQ(run.controls.FC1.Top(), 1118 + 160);
  EXPECT_EQ(run.controls.FC1.Left(), 1843 - 102);
  EXPECT_EQ(run.controls.FC1.Height(), 8939 + 307);
  EXPECT_TRUE(run.form.hasFocus(run.controls.R2));
  std::vector<PixelPoint> points;
  for (const LogEntry& entry : run.machine.log.entries()) {
    if (entry.what == "pointer") {
      points.push_back({static_cast<int>(std::get<std::int64_t>(*entry.find("x"))),
                        static_cast<int>(std::get<std::int64_t>(*entry.find("y")))});
    }
  }
  EXPECT_EQ(points, (std::vector<PixelPoint>{{0, 0}, {512, 55}, {102, 110}, {512, 55}}));
  EXPECT_EQ(run.machine.log.count("sleep"), 1);
  EXPECT_EQ(run.machine.log.count("synthetic"), 1);
}

TEST(CurtainTest, WorksOnAVeryNarrowSurface) {
  ScriptedOptions options;
  options.screenWidth = 8;
  ShellRun run(options);
  run.show(run.controls.R2);
  run.controls.R2.Left(40);
  run.shell.curtain.KeoMan(run.controls.R2);
  EXPECT_FALSE(run.controls.FC1.Visible());
  EXPECT_TRUE(run.form.hasFocus(run.controls.R2));
}

} // namespace
} // namespace talvora
