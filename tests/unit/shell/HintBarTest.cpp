#include "support/ShellRun.h"
#include "text/Bytes.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ShellRun;

class Hints : public testing::Test {
 protected:
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
  EXPECT_EQ(
      bar.Text(),
      std::string("Enter/ChuÖt Trái=Mß bài ðöc; ChuÖt phåi= Nghe ViÉt; Møi tên Trái/phåi=Tiêu "
                  "ðÈ\rEsc=thoát; Gõ phím=Tra tÙ (SÛ düng Roll chuÖt)"_bytes));
  bar.SelStart(0);
  bar.SelLength(1);
  EXPECT_EQ(bar.SelColor(), 0xFF0000U);
  EXPECT_EQ(bar.SelAlignment(), Alignment::Centred);
  EXPECT_TRUE(run.form.hasFocus(run.controls.R1));
}

TEST_F(Hints, APointerOverTheBarGivesTheKeyboardToTheForemostPage) {
  Controls& c = run.controls;
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

TEST_F(Hints, TheReadingHintDiffersInTheAnalysisSection) {
  run.show(run.controls.R2);
  run.shell.hints.HuongDan(run.controls.R2);
  const std::string reading = bar.Text();
  run.state.places.MucMenu = 5;
  run.shell.hints.HuongDan(run.controls.R2);
  EXPECT_NE(bar.Text(), reading);
  EXPECT_NE(bar.Text().find("ngØ pháp"_bytes), std::string::npos);
}

TEST_F(Hints, AFillInItemHasThreeLinesOnceItIsJudged) {
  bool judged = true;
  run.shell.hints.itemJudged = [&judged] { return judged; };
  run.show(run.controls.RDT);
  run.shell.hints.HuongDan(run.controls.RDT);
  const std::string text = bar.Text();
  EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), 2);
  judged = false;
  run.shell.hints.HuongDan(run.controls.RDT);
  EXPECT_EQ(bar.Text(), std::string("ChuÖt Trái=Tra tÙ; ChuÖt phåi=Xem câu dïch; Next=Qua câu mÝi\r"
                                    "Enter=ðáp án (RÒi NhÍn F2)\r Esc = thoát"_bytes));
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
  run.shell.hints.GoiYNghe();
  EXPECT_TRUE(bar.Visible());
  EXPECT_EQ(run.machine.input.cursorPos(), (PixelPoint{512, 55}));
  EXPECT_EQ(bar.Text(), std::string("Møi tên Trái=Nghe läi;  Møi tên phåi/xuÓng=TÝi\r"
                                    "Møi tên lên=Lui;      ESC = thoát"_bytes));
}

} // namespace
} // namespace talvora
