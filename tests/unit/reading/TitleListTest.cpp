#include "support/ProgramRun.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace talvora {
namespace {

using test::ProgramRun;
using test::StoredText;

constexpr Colour HeadingColour = 0x393971;

const std::vector<StoredText>& texts() {
  static const std::vector<StoredText> all = {
      {1, "*FIRST HEADING\r", ""},
      {2, "Guide|text\r_\tOne.\r", "_Mot."},
      {3, "*SECOND\r", ""},
      {4, "A title\r_\tOne sentence here. _And two.\r", "_Mot cau.`Va hai."},
  };
  return all;
}

class TitleList : public testing::Test {
 protected:
  explicit TitleList(const ScriptedOptions& options = {}) : run(options) {
    run.writeTexts(texts());
    run.writeTexts({{1, "*SPEAKING\r", ""}, {2, "Talk\r_\tHi.\r", "_Chao."}}, true);
    run.start();
  }

  void moveTo(int caret) {
    R1.SelStart(caret);
    run.key(key::Home);
  }

  ProgramRun run;
  Surface& R1 = run.controls().R1;
};

TEST(DamagedTitles, WithoutLineEndsAreCutOff) {
  ProgramRun run;
  // Every title would reach to the end of the file.
  run.writeTexts(texts(), true);
  run.folder.write("datasp.av", std::string(300'000, static_cast<char>('x' ^ 0xC0)));
  run.start();
  run.clickButton(7);
  const std::string list = run.controls().R1.Text();
  EXPECT_EQ(std::count(list.begin(), list.end(), '\r'), 2025);
  EXPECT_EQ(list.substr(0, 1003), "\t\t" + std::string(1000, 'x') + "\r");
}

TEST(DamagedTitles, FarBeyondTheFileAreEmptyAndOpenAnEmptyText) {
  ProgramRun run;
  run.folder.writeIntegers("datasp.vt", std::vector<std::int32_t>(4051, 2147483647));
  run.start();
  run.clickButton(7);
  EXPECT_EQ(run.controls().R1.Text().substr(0, 6), "\t\t\r\t\t\r");
  run.controls().RDOS.Visible(false);
  run.key(key::Enter);
  EXPECT_EQ(run.controls().R2.Text(), "\xA0\xA0");
}

TEST_F(TitleList, HasALineForEveryTextAndHeadingsWithoutAnIndent) {
  run.clickButton(1);
  EXPECT_EQ(R1.Text().substr(0, 56),
            "*FIRST HEADING\r\t\tGuide text\r*SECOND\r\t\tA title\r\t\tslot 5\r\t");
  EXPECT_EQ(run.number("SoNhom"), 2);
  EXPECT_EQ(run.number("MucMenu"), 1);
  EXPECT_TRUE(run.flag("DaNapDanhSach"));
  EXPECT_EQ(run.text("DanhSachBai"), R1.Text());
}

TEST_F(TitleList, StandsAtTheStandardPlaceWithItsCard) {
  run.clickButton(1);
  EXPECT_EQ(R1.Left(), 1843);
  EXPECT_TRUE(run.controls().Frame1.Visible());
  EXPECT_EQ(run.focus(), "R1");
}

TEST_F(TitleList, AnEmptyStoredPositionSelectsTheFirstLine) {
  run.clickButton(1);
  EXPECT_EQ(R1.SelStart(), 0);
  EXPECT_EQ(R1.SelText(), "*FIRST HEADING\r");
  EXPECT_EQ(run.number("SoBaiChon"), 1);
}

TEST_F(TitleList, SelectsTheLineAtTheCaretFromItsSecondCharacterOn) {
  run.clickButton(1);
  moveTo(40);
  EXPECT_EQ(R1.SelText(), "\tA title\r");
  EXPECT_EQ(run.number("SoBaiChon"), 4);
  EXPECT_EQ(run.number("ViTriDanhSachBai"), 37);
}

TEST_F(TitleList, ACaretAtTheTextsEndGoesToTheLastLine) {
  run.clickButton(1);
  run.key(key::End, shift::Ctrl);
  EXPECT_EQ(R1.SelText(), "\tslot 408\r");
  EXPECT_EQ(run.number("SoBaiChon"), 408);
}

TEST_F(TitleList, HeadingsAreBoldLargeAndColoured) {
  run.clickButton(1);
  for (const int caret : {0, 28}) {
    R1.SelStart(caret);
    R1.SelLength(3);
    EXPECT_EQ(R1.SelColor(), HeadingColour);
    EXPECT_TRUE(R1.SelBold());
    EXPECT_EQ(R1.SelFontSize(), 22);
    EXPECT_FALSE(R1.SelProtected());
  }
  R1.SelStart(17);
  R1.SelLength(3);
  EXPECT_EQ(R1.SelColor(), 0x750000U);
  EXPECT_TRUE(R1.SelProtected());
}

TEST_F(TitleList, EnterOnAHeadingDoesNothing) {
  run.clickButton(1);
  moveTo(0);
  run.key(key::Enter);
  EXPECT_FALSE(run.controls().R2.Visible());
  run.click(R1, 30);
  EXPECT_FALSE(run.controls().R2.Visible());
}

TEST_F(TitleList, EnterAndAClickOpenAText) {
  run.clickButton(1);
  moveTo(40);
  run.key(key::Enter);
  EXPECT_TRUE(run.controls().R2.Visible());
  EXPECT_EQ(run.focus(), "R2");
  EXPECT_EQ(run.number("ViTriCaretR1"), 37);
  run.key(key::Esc);
  EXPECT_FALSE(run.controls().R2.Visible());
  EXPECT_EQ(run.focus(), "R1");
  EXPECT_EQ(R1.SelText(), "\tA title\r");
  run.click(R1, 40);
  EXPECT_TRUE(run.controls().R2.Visible());
}

TEST_F(TitleList, RightAndLeftJumpBetweenHeadings) {
  run.clickButton(1);
  run.key(key::Right);
  EXPECT_EQ(R1.SelStart(), 28);
  run.key(key::Right);
  EXPECT_EQ(R1.SelStart(), 28) << "with none left the last heading stays";
  moveTo(40);
  run.key(key::Left);
  EXPECT_EQ(R1.SelStart(), 28);
  run.key(key::Left);
  EXPECT_EQ(R1.SelStart(), 0);
  run.key(key::Left);
  EXPECT_EQ(R1.SelStart(), 0);
}

TEST_F(TitleList, UpAndDownGoByOneLine) {
  run.clickButton(1);
  moveTo(0);
  std::vector<int> lines;
  for (const int arrow :
       {key::Down, key::Down, key::Down, key::Down, key::Up, key::Up, key::Up, key::Up, key::Up}) {
    run.key(arrow);
    lines.push_back(static_cast<int>(run.number("SoBaiChon")));
  }
  EXPECT_EQ(lines, (std::vector{2, 3, 4, 5, 4, 3, 2, 1, 1}));
}

TEST_F(TitleList, HomeAndEndStayInTheLine) {
  run.clickButton(1);
  moveTo(40);
  for (const int keyCode : {key::Home, key::Home, key::End, key::End}) {
    run.key(keyCode);
    EXPECT_EQ(run.number("SoBaiChon"), 4) << keyCode;
  }
}

TEST_F(TitleList, PgDownAndPgUpGoByAsMany) {
  run.clickButton(1);
  moveTo(0);
  run.key(key::PgDn);
  const double page = run.number("SoBaiChon") - 1;
  EXPECT_GT(page, 1);
  run.key(key::PgDn);
  EXPECT_EQ(run.number("SoBaiChon"), 1 + 2 * page);
  run.key(key::PgUp);
  EXPECT_EQ(run.number("SoBaiChon"), 1 + page);
}

TEST_F(TitleList, EscLeadsBackStepByStepAndThePositionIsStored) {
  run.clickButton(1);
  run.controls().RDOS.Visible(false);
  moveTo(40);
  run.key(key::F2);
  EXPECT_TRUE(run.controls().RDOS.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(run.controls().RDOS.Visible());
  EXPECT_TRUE(R1.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(R1.Visible());
  EXPECT_FALSE(run.controls().Frame1.Visible());
  EXPECT_EQ(run.focus(), "but1");
  EXPECT_FALSE(run.flag("DaNapDanhSach"));
  EXPECT_EQ(run.folder.read("data.Kcu").substr(0, 4), std::string("\x25\0\0\0", 4));
  run.clickButton(1);
  EXPECT_EQ(R1.SelText(), "\tA title\r");
}

TEST_F(TitleList, Section5ShowsFourteenTitlesAndGreysTheGuides) {
  run.clickButton(5);
  const std::string list = R1.Text();
  EXPECT_EQ(std::count(list.begin(), list.end(), '\r'), 14);
  R1.SelStart(20);
  R1.SelLength(27);
  EXPECT_EQ(R1.SelColor(), 0x80000003U);
  moveTo(20);
  run.key(key::Enter);
  EXPECT_FALSE(run.controls().R2.Visible()) << "the first three are not analysed";
  run.controls().RDOS.Visible(false);
  run.key(key::Esc);
  EXPECT_EQ(run.focus(), "but5");
}

TEST_F(TitleList, TheSpeakingSectionHasItsOwnStoreAndCaret) {
  run.clickButton(7);
  EXPECT_EQ(R1.Text().substr(0, 17), "*SPEAKING\r\t\tTalk\r");
  moveTo(12);
  run.key(key::Enter);
  EXPECT_EQ(run.controls().R2.Text().substr(1, 5), "Talk\r");
  run.key(key::Esc);
  run.controls().RDOS.Visible(false);
  run.key(key::Esc);
  EXPECT_EQ(run.focus(), "but7");
  EXPECT_EQ(run.folder.read("data.Kcu").size(), 32U);
}

TEST_F(TitleList, TheReminderIsShownOnTheFirstOpeningOnly) {
  run.clickButton(1);
  EXPECT_TRUE(run.controls().RDOS.Visible());
  EXPECT_EQ(run.number("DemGoiYF2"), 1);
  run.key(key::Esc);
  run.key(key::Esc);
  run.clickButton(1);
  EXPECT_FALSE(run.controls().RDOS.Visible());
}

TEST_F(TitleList, TypingDoesNotChangeIt) {
  run.clickButton(1);
  const std::string before = R1.Text();
  run.type('7');
  run.key(key::Delete);
  run.key(key::Backspace);
  EXPECT_EQ(R1.Text(), before);
}

TEST(TitleListHeadings, TheThirtyNinthHeadingStartsTheTableOver) {
  ProgramRun run;
  std::vector<StoredText> headings;
  for (int slot = 1; slot <= 41; ++slot) {
    headings.push_back({slot, "*H" + std::to_string(slot) + "\r", ""});
  }
  run.writeTexts(headings);
  run.start();
  run.clickButton(1);
  EXPECT_EQ(run.number("SoNhom"), 2);
  Surface& R1 = run.controls().R1;
  R1.SelStart(0);
  R1.SelLength(2);
  EXPECT_NE(R1.SelColor(), HeadingColour) << "only the last ones stay formatted";
  R1.SelStart(static_cast<int>(R1.Text().find("*H40")));
  R1.SelLength(2);
  EXPECT_EQ(R1.SelColor(), HeadingColour);
}

class SmallScreenTitleList : public TitleList {
 protected:
  SmallScreenTitleList() : TitleList(smallScreen()) {}

  static ScriptedOptions smallScreen() {
    ScriptedOptions options;
    options.screenWidth = 800;
    options.screenHeight = 600;
    return options;
  }
};

TEST_F(SmallScreenTitleList, OnlyHeadingsAreBoldAndDoNotOpen) {
  run.clickButton(1);
  moveTo(30);
  EXPECT_TRUE(R1.SelBold());
  run.key(key::Enter);
  EXPECT_FALSE(run.controls().R2.Visible());
  moveTo(40);
  EXPECT_FALSE(R1.SelBold());
  run.key(key::Enter);
  EXPECT_TRUE(run.controls().R2.Visible());
}

} // namespace
} // namespace talvora
