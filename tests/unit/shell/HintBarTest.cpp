#include "support/ShellRun.h"
#include "text/Bytes.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ShellRun;

class Hints : public testing::Test {
 protected:
  Hints() {
    run.shell.pages.add({.surface = run.controls.R1, .hints = {{{"Enter=open", "Esc=leave"}}}});
    run.shell.pages.add({.surface = run.controls.RAmthanh});
    run.shell.pages.add({.surface = run.controls.RHDBT, .explains = true});
  }

  ShellRun run;
  Surface& bar = run.controls.RDOS;
};

TEST_F(Hints, F2ShowsTheHintOfASurfaceAtDoubleHeightAndAtTheTop) {
  run.show(run.controls.R1);
  const int height = bar.Height();
  run.shell.hints.showOnF2(key::F2, run.controls.R1);
  EXPECT_TRUE(bar.Visible());
  EXPECT_EQ(bar.Top(), 0);
  EXPECT_EQ(bar.Height(), 2 * height);
  EXPECT_EQ(bar.Text(), "Enter=open\rEsc=leave");
  bar.SelStart(0);
  bar.SelLength(1);
  EXPECT_EQ(bar.SelColor(), 0xFF0000U);
  EXPECT_EQ(bar.SelAlignment(), Alignment::Centred);
  EXPECT_TRUE(run.form.hasFocus(run.controls.R1));
}

TEST_F(Hints, APointerOverTheBarGivesTheKeyboardToTheForemostPage) {
  ProgramControls& c = run.controls;
  run.show(c.R2);
  const auto pointAtBar = [&] {
    bar.Visible(true);
    bar.moveMouse(shift::None, {10, 10});
  };
  run.show(c.RHDBT);
  pointAtBar();
  EXPECT_TRUE(run.form.hasFocus(c.R2)) << "an explanation is no page";
  EXPECT_FALSE(bar.Visible());
  for (Surface* page : {&c.Rxep, &c.RTD}) {
    run.show(*page);
    c.RHDBT.SetFocus();
    pointAtBar();
    EXPECT_TRUE(run.form.hasFocus(*page)) << page->Name();
  }
}

TEST_F(Hints, ASurfaceWithoutAHintLeavesTheBarHidden) {
  run.show(run.controls.RAmthanh);
  run.shell.hints.showOnF2(key::F2, run.controls.RAmthanh);
  EXPECT_FALSE(bar.Visible());
  EXPECT_EQ(bar.TextLength(), 0);
}

TEST_F(Hints, F2WhileTheBarIsVisibleDoesNothing) {
  run.show(run.controls.R1);
  run.shell.hints.GoiYF2();
  const std::string reminder = bar.Text();
  run.shell.hints.showOnF2(key::F2, run.controls.R1);
  EXPECT_EQ(bar.Text(), reminder);
}

TEST_F(Hints, TheFirstHintThatHoldsIsShownWithAllItsLines) {
  bool judged = true;
  run.shell.pages.add(
      {.surface = run.controls.RDT,
       .hints = {{{"one", "two", "three"}, [&judged] { return judged; }}, {{"four", "five"}}}});
  run.show(run.controls.RDT);
  run.shell.hints.HuongDan(run.controls.RDT);
  EXPECT_EQ(bar.Text(), "one\rtwo\rthree");
  judged = false;
  run.shell.hints.HuongDan(run.controls.RDT);
  EXPECT_EQ(bar.Text(), "four\rfive");
}

TEST_F(Hints, TheReminderAppearsThreeTimesInARunAtMost) {
  for (int time = 1; time <= 5; ++time) {
    bar.Visible(false);
    run.shell.hints.GoiYF2();
    EXPECT_EQ(bar.Visible(), time <= 3) << time;
  }
  EXPECT_EQ(bar.Text(), std::string("NhÍn Phím F2 ðÇ xem cách sÛ düng trong möi lúc."_bytes));
  bar.SelStart(10);
  bar.SelLength(2);
  EXPECT_EQ(bar.SelText(), "F2");
  EXPECT_EQ(bar.SelColor(), 255U);
}

TEST_F(Hints, TheReminderNeedsASecondRun) {
  run.shell.hints.DemChay = 1;
  run.shell.hints.GoiYF2();
  EXPECT_FALSE(bar.Visible());
}

TEST_F(Hints, MovingOverTheBarTakesItAwayAndGivesTheTextTheFocus) {
  run.show(run.controls.R2);
  run.show(run.controls.R1);
  run.shell.hints.HuongDan(run.controls.R1);
  bar.moveMouse(shift::None, {10, 10});
  EXPECT_FALSE(bar.Visible());
  EXPECT_TRUE(run.form.hasFocus(run.controls.R2));
}

TEST_F(Hints, TheHintForReadingAloudParksThePointer) {
  run.show(run.controls.R2);
  run.shell.hints.GoiYNghe(run.controls.R2);
  EXPECT_TRUE(bar.Visible());
  EXPECT_EQ(run.machine.input.cursorPos(), (PixelPoint{512, 55}));
  EXPECT_EQ(bar.Text(), std::string("Møi tên Trái=Nghe läi;  Møi tên phåi/xuÓng=TÝi\r"
                                    "Møi tên lên=Lui;      ESC = thoát"_bytes));
}

} // namespace
} // namespace talvora
