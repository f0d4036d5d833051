#include "writing/Writing.h"
#include "exercises/XepTu.h"
#include "listening/DrillRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::DrillRun;
using test::valueOf;

class WritingPage : public testing::Test {
 protected:
  WritingPage()
      : ordering(run.controls(), run.state(), run.stores, run.base.shell, run.services,
                 run.base.machine.random, links),
        writing(run.base.form, run.controls(), run.state(), run.stores, run.base.shell,
                run.services, ordering),
        RW2(run.controls().RW2) {
    run.controls().but(6).Visible(true);
    std::string text = "T\r";
    std::string translation;
    for (const char* name : {"a", "b", "c", "d", "e"}) {
      text += std::string(name) == "a" ? "_\t" : "_";
      text += std::string(name) + " x y z. ";
      translation += "_vn " + std::string(name);
    }
    run.writeTexts({{2, {text, translation}}});
    run.open();
    Surface& RW1 = run.controls().RW1;
    run.state().list.DanhSachBai = "first line here\r\t\tsecond line\r\t\tthird line\r";
    run.state().list.BangViTri[1] = 16;
    run.state().list.BangViTri[2] = 30;
    run.state().list.BangViTri[3] = 43;
    RW1.Text(run.state().list.DanhSachBai);
    run.base.show(RW1);
  }

  void openTask() {
    run.controls().RW1.SelStart(20);
    writing.ChonDongViet();
    run.key(key::Enter);
  }
  std::string english() { return valueOf<std::string>(ordering, "CauTiengAnh"); }
  void clickLink(const std::string& link) {
    run.click(RW2, static_cast<int>(RW2.Text().find(link)) + 2);
  }

  DrillRun run;
  BackNextLinks links;
  XepTu ordering;
  Writing writing;
  Surface& RW2;
};

TEST_F(WritingPage, TheCaretChoosesALine) {
  Surface& RW1 = run.controls().RW1;
  RW1.SelStart(20);
  writing.ChonDongViet();
  EXPECT_EQ(run.state().list.SoBaiChon, 2);
  EXPECT_EQ(RW1.SelText(), "\tsecond line\r");
  RW1.SelStart(13);
  writing.ChonDongViet();
  EXPECT_EQ(run.state().list.SoBaiChon, 1);
  EXPECT_EQ(RW1.SelLength(), 13);
  RW1.SelStart(RW1.TextLength());
  writing.ChonDongViet();
  EXPECT_EQ(run.state().list.SoBaiChon, 3);
}

TEST_F(WritingPage, ABoldLineOpensNothing) {
  Surface& RW1 = run.controls().RW1;
  RW1.SelStart(0);
  RW1.SelLength(RW1.TextLength());
  RW1.SelBold(true);
  openTask();
  EXPECT_FALSE(RW2.Visible());
}

TEST_F(WritingPage, ATaskShowsTheTranslationAndTheShuffledWords) {
  openTask();
  EXPECT_TRUE(RW2.Visible());
  EXPECT_EQ(english(), "a x y z.");
  EXPECT_THAT(RW2.Text(), testing::HasSubstr("vn a\r\ra "));
  EXPECT_THAT(RW2.Text(), testing::EndsWith("\r\r\r\r<Back>    <Next>"));
  EXPECT_TRUE(run.controls().Frame3.Visible());
}

TEST_F(WritingPage, NextGoesOnAndBackGoesBack) {
  openTask();
  clickLink("<Next>");
  EXPECT_EQ(english(), "b x y z.");
  clickLink("<Next>");
  EXPECT_EQ(english(), "c x y z.");
  clickLink("<Back>");
  EXPECT_EQ(english(), "c x y z.");
  clickLink("<Back>");
  EXPECT_EQ(english(), "b x y z.");
}

TEST_F(WritingPage, BackAtSentenceOneWrapsToTheEnd) {
  openTask();
  ordering.ChiSoCau = 1;
  ordering.BuocXep = 1;
  clickLink("<Back>");
  EXPECT_EQ(ordering.ChiSoCau, 6);
  EXPECT_EQ(english(), "e x y z.");
}

TEST_F(WritingPage, TheTwentyFirstTryDoesNotHappen) {
  std::string text = "T\r";
  for (int sentence = 0; sentence < 30; ++sentence)
    text += "_short. ";
  run.writeTexts({{2, {text, ""}}});
  run.open();
  openTask();
  EXPECT_EQ(ordering.ChiSoCau, 20);
}

TEST_F(WritingPage, ARightClickMovesAWord) {
  openTask();
  const std::string line = valueOf<std::string>(ordering, "DongXep");
  const int caret = ordering.DauDong + static_cast<int>(line.find('x'));
  run.rightClick(RW2, caret);
  EXPECT_TRUE(valueOf<std::string>(ordering, "DongXep").starts_with("a x "));
}

TEST_F(WritingPage, EnterRevealsAndGoesOn) {
  openTask();
  run.key(key::Enter);
  EXPECT_THAT(RW2.Text(), testing::EndsWith("<Next>!\r\ra x y z."));
  run.key(key::Enter);
  EXPECT_EQ(english(), "b x y z.");
}

TEST_F(WritingPage, F6SwitchesTheShuffledLine) {
  openTask();
  run.key(key::F6);
  EXPECT_FALSE(ordering.XepChay);
  EXPECT_EQ(ordering.DauDong, static_cast<int>(valueOf<double>(ordering, "CuoiDong")));
  run.key(key::F6);
  EXPECT_TRUE(ordering.XepChay);
}

TEST_F(WritingPage, EscGoesToTheListAndThenToTheButton) {
  openTask();
  run.key(key::Esc);
  EXPECT_FALSE(RW2.Visible());
  EXPECT_EQ(run.focus(), "RW1");
  run.key(key::Esc);
  EXPECT_FALSE(run.controls().RW1.Visible());
  EXPECT_EQ(run.focus(), "but6");
}

} // namespace
} // namespace talvora
