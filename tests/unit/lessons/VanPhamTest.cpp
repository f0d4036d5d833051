#include "exercises/ItemRun.h"
#include "platform/FatalFailure.h"
#include "text/Bytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ItemRun;
using test::ItemStores;
using test::lookAt;

constexpr Colour Body = 0x750000;
constexpr Colour Mark = 0xFF0000;
constexpr Colour Heading = 0x393971;

ItemStores lessonStores() {
  ItemStores stores;
  stores.lessons = {
      {1, "*FIRST GROUP\r"},    {2, ".Present\rUse `it, often.\r&She goes.\rEnd"},
      {3, "Past & more\rbody"}, {4, "*SECOND\r"},
      {5, ".Future\rNext"},     {6, ".*BOTH\r"},
  };
  stores.counts = {{9 + 2, 2}, {9 + 5, 0}};
  stores.items.resize(9 + 1);
  stores.items.push_back({"402She *went___ home", ""});
  stores.items.push_back({"402They *go___ home", ""});
  stores.items.push_back({});
  stores.items.push_back({});
  stores.items.push_back({"402We *go___ home", ""});
  return stores;
}

class LessonList : public testing::Test {
 protected:
  explicit LessonList(const ItemStores& stores = lessonStores()) : run(stores) {
    run.lessons.open();
    run.controls.RDOS.Visible(false);
  }

  [[nodiscard]] int mark(int lesson) const {
    const auto reader = run.variables.find("TrangThaiVP");
    const auto table = std::get<VariableValue::Table>((*reader)().value);
    return static_cast<int>(std::get<double>(table[static_cast<std::size_t>(lesson)].value));
  }
  void rightClick(std::string_view line) { run.rightClick(RVP1, ItemRun::caretOf(RVP1, line) + 3); }

  ItemRun run;
  Surface& RVP1 = run.controls.RVP1;
  Surface& RVP2 = run.controls.RVP2;
};

TEST_F(LessonList, NumbersLessonsAndKeepsAHeadingsNumberForTheNextLine) {
  const std::string list = RVP1.Text();
  EXPECT_EQ(list.substr(0, list.find(" 4\t\tslot 7")),
            "*FIRST GROUP\r 1.\t\tPresent\r 2\t\tPast & more\r*SECOND\r 3.\t\tFuture\r*BOTH\r");
  EXPECT_EQ(run.state.list.DanhSachBai, list);
  EXPECT_EQ(run.state.list.SoNhom, 3);
  EXPECT_EQ(run.state.list.TenBaiHoc[2], "Present");
  EXPECT_EQ(run.state.list.TenBaiHoc[4], "*SECOND");
  EXPECT_EQ(run.state.list.BangViTri[1], 13);
  EXPECT_EQ(mark(1), 0);
  EXPECT_EQ(mark(2), 1);
  EXPECT_EQ(mark(6), 1) << "a title may carry both marks";
  EXPECT_EQ(run.state.places.MucMenu, 3);
  EXPECT_TRUE(run.lessons.BaiTuChon);
  EXPECT_EQ(run.focus(), "RVP1");
}

TEST_F(LessonList, HeadingsAreLargeBoldAndColoured) {
  RVP1.SelStart(1);
  RVP1.SelLength(1);
  EXPECT_EQ(RVP1.SelColor(), Heading);
  EXPECT_TRUE(RVP1.SelBold());
  const double headingSize = RVP1.SelFontSize();
  RVP1.SelStart(ItemRun::caretOf(RVP1, "Present"));
  RVP1.SelLength(1);
  EXPECT_EQ(RVP1.SelColor(), Body);
  EXPECT_EQ(headingSize, RVP1.SelFontSize() + 3);
}

TEST_F(LessonList, ACaretBehindTheLastCharacterMovesBackFirst) {
  RVP1.SelStart(RVP1.TextLength());
  run.lessons.ChonDongVP();
  EXPECT_EQ(run.state.list.SoBaiChon, 357);
  EXPECT_THAT(RVP1.SelText(), testing::EndsWith("slot 357\r"));
}

TEST_F(LessonList, ACaretNearTheStartSelectsEightCharacters) {
  for (const int caret : {0, 8}) {
    RVP1.SelStart(caret);
    run.lessons.ChonDongVP();
    EXPECT_EQ(RVP1.SelStart(), 0);
    EXPECT_EQ(RVP1.SelText(), "*FIRST G");
    EXPECT_EQ(run.state.list.SoBaiChon, 1);
  }
}

TEST_F(LessonList, ALineIsSelectedFromItsSecondCharacterOn) {
  RVP1.SelStart(ItemRun::caretOf(RVP1, "Past"));
  run.lessons.ChonDongVP();
  EXPECT_EQ(RVP1.SelText(), "2\t\tPast & more\r");
  EXPECT_EQ(run.state.list.SoBaiChon, 3);
}

TEST_F(LessonList, UpAndDownGoLineByLine) {
  for (const int line : {2, 3, 4, 5}) {
    run.key(key::Down);
    EXPECT_EQ(run.state.list.SoBaiChon, line);
  }
  for (const int line : {4, 3, 2, 1}) {
    run.key(key::Up);
    EXPECT_EQ(run.state.list.SoBaiChon, line);
  }
  run.key(key::Down);
  run.key(key::End);
  EXPECT_EQ(run.state.list.SoBaiChon, 2);
  run.key(key::Home);
  EXPECT_EQ(run.state.list.SoBaiChon, 2);
}

TEST_F(LessonList, ArrowsJumpBetweenHeadings) {
  RVP1.SelStart(0);
  run.key(key::Right);
  EXPECT_EQ(run.state.list.SoBaiChon, 4);
  run.key(key::Right);
  EXPECT_EQ(run.state.list.SoBaiChon, 6);
  run.key(key::Right);
  EXPECT_EQ(run.state.list.SoBaiChon, 6) << "behind the last heading nothing moves";
  run.key(key::Left);
  EXPECT_EQ(run.state.list.SoBaiChon, 4);
  run.key(key::Left);
  EXPECT_EQ(run.state.list.SoBaiChon, 1);
}

TEST_F(LessonList, ARightClickMarksAndAnotherTakesTheMarkOff) {
  rightClick("Present");
  EXPECT_EQ(mark(2), 2);
  EXPECT_TRUE(run.state.word.ChoGiai);
  const int caret = ItemRun::caretOf(RVP1, "Present");
  EXPECT_EQ(lookAt(RVP1, caret).color, Mark);
  rightClick("Present");
  EXPECT_EQ(mark(2), 1);
  EXPECT_FALSE(run.state.word.ChoGiai);
  EXPECT_EQ(lookAt(RVP1, caret).color, Body);
}

TEST_F(LessonList, WhileALessonIsMarkedALeftClickMarksToo) {
  rightClick("Present");
  run.click(RVP1, ItemRun::caretOf(RVP1, "Future"));
  EXPECT_EQ(mark(5), 2);
  EXPECT_FALSE(RVP2.Visible());
}

TEST_F(LessonList, ALookUpAmongMarkedLessonsLeavesThemMarked) {
  rightClick("Present");
  run.state.atHand.disarm(); // as a word picked from the look-up list leaves it
  run.click(RVP1, ItemRun::caretOf(RVP1, "Future"));
  EXPECT_EQ(mark(5), 2);
  EXPECT_FALSE(RVP2.Visible());
}

TEST_F(LessonList, LessonsAndHeadingsWithoutAPointCannotBeMarked) {
  rightClick("Past");
  rightClick("*SECOND");
  EXPECT_EQ(mark(3), 0);
  EXPECT_EQ(mark(4), 0);
  EXPECT_FALSE(run.state.word.ChoGiai);
  EXPECT_EQ(lookAt(RVP1, ItemRun::caretOf(RVP1, "Past")).color, Body);
}

TEST_F(LessonList, EscTakesTheMarksOffFirstAndThenLeaves) {
  rightClick("Present");
  run.key(key::Esc);
  EXPECT_EQ(mark(2), 1);
  EXPECT_TRUE(RVP1.Visible());
  EXPECT_EQ(lookAt(RVP1, ItemRun::caretOf(RVP1, "Present")).color, Body);
  EXPECT_EQ(lookAt(RVP1, 0).color, Heading);
  run.key(key::Esc);
  EXPECT_FALSE(RVP1.Visible());
  EXPECT_FALSE(run.lessons.BaiTuChon);
  EXPECT_EQ(run.focus(), "but3");
}

TEST_F(LessonList, EscTakesTheHintBarOffBeforeAnythingElse) {
  rightClick("Present");
  run.key(key::F2);
  EXPECT_TRUE(run.controls.RDOS.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(run.controls.RDOS.Visible());
  EXPECT_EQ(mark(2), 2);
}

TEST_F(LessonList, MarksDoNotSurviveLeaving) {
  rightClick("Present");
  run.lessons.ExitRVP1();
  run.lessons.open();
  EXPECT_EQ(mark(2), 1);
}

TEST_F(LessonList, EnterAndAClickOpenTheLessonAndEscComesBackToItsLine) {
  run.click(RVP1, ItemRun::caretOf(RVP1, "Past"));
  EXPECT_TRUE(RVP2.Visible());
  EXPECT_EQ(run.focus(), "RVP2");
  run.key(key::Esc);
  EXPECT_FALSE(RVP2.Visible());
  EXPECT_EQ(run.focus(), "RVP1");
  EXPECT_EQ(run.state.list.SoBaiChon, 3);
  run.key(key::Enter);
  EXPECT_TRUE(RVP2.Visible());
  EXPECT_EQ(RVP2.Text(), "Past & more\rbody\r");
}

TEST_F(LessonList, EnterBeforeAnyLineWasChosenOpensTheFirst) {
  ASSERT_EQ(run.state.list.SoBaiChon, 0);
  run.key(key::Enter);
  EXPECT_EQ(RVP2.Text(), "*FIRST GROUP\r\r");
}

TEST_F(LessonList, BothArrowsStoreTheCaretAlsoBehindTheLastHeading) {
  RVP1.SelStart(ItemRun::caretOf(RVP1, "slot 9"));
  const int caret = RVP1.SelStart();
  run.form.pressKey(key::Right, shift::None, '\0');
  EXPECT_EQ(run.state.word.ViTriCaret, caret - 1);
  run.form.pressKey(key::Left, shift::None, '\0');
  EXPECT_EQ(run.state.word.ViTriCaret, ItemRun::caretOf(RVP1, "*BOTH") + 2);
}

TEST_F(LessonList, AHeadingThatBeginsWithAPointCanBeMarked) {
  rightClick("*BOTH");
  EXPECT_EQ(mark(6), 2);
}

TEST_F(LessonList, LessonsWithoutItemsOfTheirOwnGiveOneItemEach) {
  rightClick("Future");
  rightClick("*BOTH");
  run.key(key::Enter);
  EXPECT_EQ(run.exercises.run.SoCauChay(), 2);
}

TEST_F(LessonList, EnterWithMarksRunsTheItemsOfTheMarkedLessons) {
  rightClick("Present");
  rightClick("Future");
  run.key(key::Enter);
  EXPECT_EQ(run.exercises.run.SoCauChay(), 3) << "a lesson with the count 0 has one item";
  EXPECT_THAT(run.controls.RDT.Text(), testing::StartsWith("ÐiÈn vào: THE, A, AN  (ho"_bytes));
  EXPECT_THAT(run.controls.RDT.Text(), testing::HasSubstr("She ________ home"));
  EXPECT_TRUE(run.controls.Frame2.Visible());
}

TEST_F(LessonList, LeavingARunTakesTheMarksOffAndGoesBackToTheList) {
  rightClick("Present");
  run.key(key::Enter);
  run.key(key::Esc);
  EXPECT_FALSE(run.controls.RDT.Visible());
  EXPECT_EQ(run.focus(), "RVP1");
  EXPECT_EQ(mark(2), 1);
  EXPECT_EQ(run.form.Caption(), run.state.measures.TieuDeE);
}

TEST_F(LessonList, ALetterOpensTheLookUpList) {
  run.type("w");
  EXPECT_TRUE(run.controls.RTD.Visible());
}

TEST_F(LessonList, TheListOfSection5IsBuiltWithoutBeingShown) {
  run.lessons.ExitRVP1();
  RVP1.Text("untouched");
  run.state.places.MucMenu = 5;
  run.lessons.MoVanPham();
  EXPECT_EQ(RVP1.Text(), "untouched");
  EXPECT_EQ(run.state.list.TenBaiHoc[5], "Future");
}

TEST(LessonListBounds, MoreThanFortyHeadingsEndTheProgramAndNameTheLesson) {
  ItemStores stores;
  for (int slot = 1; slot <= 41; ++slot)
    stores.lessons[slot] = "*H\r";
  ItemRun run(stores);
  try {
    run.lessons.open();
    FAIL() << "no failure";
  } catch (const FatalFailure& failure) {
    EXPECT_THAT(failure.what(),
                testing::StartsWith(run.state.places.ThuMuc + "/datavp.n: lesson 41 "));
  }
}

TEST(LessonListBounds, AStreamWithoutLineEndsGivesShortTitles) {
  ItemStores stores;
  stores.lessons[357] = std::string(100000, 'x');
  ItemRun run(stores);
  run.lessons.open();
  EXPECT_LT(run.state.list.TenBaiHoc[357].size(), 1100U);
}

class LessonOpen : public LessonList {
 protected:
  LessonOpen() {
    run.state.list.SoBaiChon = 2;
    run.lessons.GoiRVP2();
  }
};

TEST_F(LessonOpen, ShowsTheTitleAsACentredLineWithoutItsPoint) {
  EXPECT_EQ(RVP2.Text(), "Present\rUse it, often.\rShe goes.\rEnd\r");
  RVP2.SelStart(0);
  RVP2.SelLength(1);
  EXPECT_EQ(RVP2.SelAlignment(), Alignment::Centred);
  EXPECT_TRUE(RVP2.SelBold());
  EXPECT_EQ(RVP2.SelColor(), Heading);
  EXPECT_EQ(RVP2.SelFontSize(), run.state.measures.CoChu + 3);
  const int body = ItemRun::caretOf(RVP2, "Use");
  EXPECT_EQ(lookAt(RVP2, body).color, Body);
  EXPECT_EQ(lookAt(RVP2, body + 4).color, 255U);
  EXPECT_EQ(lookAt(RVP2, body + 6).color, Body);
  EXPECT_EQ(lookAt(RVP2, ItemRun::caretOf(RVP2, "She goes")).color, 0xFF0000U);
  RVP2.SelStart(body);
  EXPECT_EQ(RVP2.SelAlignment(), Alignment::Left);
  EXPECT_NEAR(RVP2.SelIndent(), 285.1654, 0.0001);
  EXPECT_EQ(RVP2.SelFontSize(), run.state.measures.CoChu);
}

TEST_F(LessonOpen, AppearsBehindTheCurtain) {
  EXPECT_EQ(run.machine.log.count("curtain"), 1);
  EXPECT_TRUE(run.controls.Frame2.Visible());
}

TEST_F(LessonOpen, ALessonWithoutALineEndIsAllTitle) {
  ItemStores stores;
  stores.lessons[357] = "no end";
  ItemRun other(stores);
  other.lessons.open();
  other.lessons.page().MoBaiVP(357);
  EXPECT_EQ(lookAt(other.controls.RVP2, 5).color, Heading);
}

TEST_F(LessonOpen, ANumberOutsideTheListOpensNothing) {
  const std::string before = RVP2.Text();
  for (const int number : {-1, 358, 100000})
    run.lessons.page().MoBaiVP(number);
  EXPECT_EQ(RVP2.Text(), before);
}

TEST_F(LessonOpen, ARightClickSpeaksTheWordThatWasClicked) {
  run.state.atHand.take("word");
  run.machine.log.take();
  const SurfacePoint at = RVP2.pointOf(3);
  RVP2.releaseMouse(MouseButton::Right, shift::None, at);
  EXPECT_GE(run.machine.log.count("speak"), 1);
}

TEST_F(LessonOpen, AClickLooksTheWordUp) {
  run.controls.RVP2.Text("");
  run.controls.RVP2.SelText("They went home");
  run.click(RVP2, 7);
  EXPECT_EQ(run.state.word.TuHienTai, "went");
  EXPECT_TRUE(run.controls.RHD.Visible());
  EXPECT_EQ(RVP2.SelText(), "went");
}

} // namespace
} // namespace talvora
