#include "DictionaryRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace talvora {
namespace {

using test::DictionaryRun;
using test::Word;

std::vector<Word> listWords() {
  std::vector<Word> words = {{"able", "_can"}, {"air-raid", "_attack"}, {"cat", "_animal"}};
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    words.push_back({std::string("z") + letter, "_number " + std::string(1, letter)});
  }
  return words;
}

class LookUpListTest : public testing::Test {
 protected:
  void open(char character) { run.dictionary.MoDanhSachTu(character); }
  [[nodiscard]] std::string typed() const { return run.state.word.TuHienTai; }

  DictionaryRun run{listWords()};
  LookUpList& list = run.dictionary.list();
  Surface& RTD = run.controls.RTD;
};

TEST_F(LookUpListTest, TheCaptionThatStoodBeforeComesBack) {
  run.form.Caption("     Cau  10");
  open('c');
  EXPECT_EQ(run.form.Caption(), "c" + run.state.measures.TieuDeE);
  run.type("at");
  list.DongDanhSachTu();
  EXPECT_EQ(run.form.Caption(), "     Cau  10");
  open('c');
  run.form.Caption("cat");
  open('a');
  list.DongDanhSachTu();
  EXPECT_EQ(run.form.Caption(), "     Cau  10") << "opened again while it is open";
}

TEST_F(LookUpListTest, LoadsItsTextOnceUnderAMessage) {
  EXPECT_FALSE(list.DaNapRTD);
  open('a');
  EXPECT_TRUE(list.DaNapRTD);
  EXPECT_EQ(RTD.Text(), run.folder.read("datatu.txt"));
  const auto& entries = run.machine.log.entries();
  EXPECT_EQ(run.machine.log.count("untold"), 1);
  const auto message = std::find_if(entries.begin(), entries.end(),
                                    [](const LogEntry& each) { return each.what == "message"; });
  ASSERT_NE(message, entries.end());
  EXPECT_EQ(*message->find("text"), logText("Loading Data..."));
  EXPECT_EQ(*message->find("ms"), logNumber(0));
  EXPECT_FALSE(run.state.places.waitkd);
  run.key(key::Esc, key::Esc);
  run.key(key::Esc, key::Esc);
  open('b');
  EXPECT_EQ(run.machine.log.count("message"), 1);
}

TEST_F(LookUpListTest, StandsInTheWorkAreaWithTheFocus) {
  open('a');
  const Measures& m = run.state.measures;
  EXPECT_TRUE(RTD.Visible());
  EXPECT_EQ(RTD.Left(), m.LeTraiBai);
  EXPECT_EQ(RTD.Top(), m.LeTrenBai);
  EXPECT_EQ(RTD.Width(), m.RongBai);
  EXPECT_EQ(RTD.Height(), m.CaoBai);
  EXPECT_EQ(run.form.ActiveControl(), &RTD);
  EXPECT_FALSE(run.controls.RHD.Visible());
}

TEST_F(LookUpListTest, SavesTheCaretsOfTheVisibleTexts) {
  run.controls.R2.SelStart(5);
  run.controls.R1.SelStart(3);
  open('a');
  EXPECT_EQ(run.state.word.ViTriCaret, 5);
  EXPECT_EQ(run.state.word.ViTriCaretR1, 3);
}

TEST_F(LookUpListTest, JumpsToTheWordThatIsTypedAndNamesItInTheCaption) {
  open('C');
  run.type("at");
  EXPECT_EQ(typed(), "cat");
  EXPECT_EQ(run.form.Caption(), "cat" + run.state.measures.TieuDeE);
  EXPECT_EQ(RTD.SelText(), "cat");
  EXPECT_EQ(list.ChuChon, "cat");
  EXPECT_EQ(run.dictionary.words().Chu(list.TuChon), "cat");
}

TEST_F(LookUpListTest, SearchesAHyphenAsABlank) {
  open('a');
  run.type("ir-raid");
  EXPECT_EQ(typed(), "air-raid");
  EXPECT_EQ(list.ChuChon, "air-raid");
}

TEST_F(LookUpListTest, DropsABlankOrHyphenThatIsTypedFirst) {
  open('a');
  run.type("\b");
  for (const char first : {'-', ' '}) {
    run.type(std::string(1, first));
    EXPECT_EQ(typed(), "") << first;
  }
}

TEST_F(LookUpListTest, PutsAHyphenInThePlaceOfABlank) {
  open('a');
  run.type(" -");
  EXPECT_EQ(typed(), "a-");
  run.type("-");
  EXPECT_EQ(typed(), "a-");
  run.type(" ");
  EXPECT_EQ(typed(), "a-");
  run.type("b  c");
  EXPECT_EQ(typed(), "a-b c");
}

TEST_F(LookUpListTest, TakesOnlyCharactersOfWords) {
  open('a');
  run.type("B1'.?/\\,()_x\xE0");
  EXPECT_EQ(typed(), "ab'./\\,()x");
}

TEST_F(LookUpListTest, StopsGrowingAtFiftyCharactersAndStillTakesBackspace) {
  open('a');
  run.type(std::string(59, 'b'));
  EXPECT_EQ(typed().size(), 50U);
  run.key(key::Backspace, key::Backspace);
  EXPECT_EQ(typed().size(), 49U);
}

TEST_F(LookUpListTest, LeavesTheCaretAtTheStartForAWordBehindItsSection) {
  open('c');
  run.type("zz");
  EXPECT_EQ(RTD.SelStart(), 0);
}

TEST_F(LookUpListTest, StopsAtTheListsEndWhereTenMoreLinesAreMissing) {
  open('z');
  run.type("z");
  EXPECT_EQ(list.ChuChon, "zz");
  EXPECT_EQ(list.TuChon, run.dictionary.words().count());
}

TEST_F(LookUpListTest, SelectsTheLineAtTheCaret) {
  open('a');
  const int caret = run.dictionary.words().ViTriDanhSach(1) + 2;
  RTD.SelStart(caret);
  list.ChonDongRTD();
  EXPECT_EQ(list.TuChon, 2);
  EXPECT_EQ(RTD.SelStart(), caret - 2);
  EXPECT_EQ(RTD.SelText(), "able");
}

TEST_F(LookUpListTest, PicksTheLineOnEnter) {
  open('c');
  run.type("a");
  run.key(key::Enter, key::Enter);
  EXPECT_FALSE(RTD.Visible());
  EXPECT_EQ(run.form.Caption(), run.state.measures.TieuDeE);
  EXPECT_EQ(typed(), "cat");
  EXPECT_TRUE(run.controls.RHD.Visible());
  EXPECT_EQ(run.shown(), "cat \r - animal\r");
  EXPECT_TRUE(run.state.word.DaChonRTD);
  EXPECT_THAT(run.spoken(), testing::ElementsAre("cat", "cat"));
}

TEST_F(LookUpListTest, MovesThePointerToThePopupOfAPick) {
  run.state.atHand.pointAt({1500, 1500});
  open('c');
  run.type("at");
  run.key(key::Enter, key::Enter);
  const PixelPoint pointer = run.machine.input.cursorPos();
  // The form lies at the screen's lower edge.
  const SurfacePoint onForm{pointer.x * TwipsPerPixel,
                            pointer.y * TwipsPerPixel - (768 * TwipsPerPixel - run.form.Height())};
  EXPECT_EQ(run.form.controlAt(onForm), &run.controls.RHD);
  EXPECT_LT(onForm.x - run.controls.RHD.Left(), 3 * TwipsPerPixel);
  EXPECT_LT(onForm.y - run.controls.RHD.Top(), 3 * TwipsPerPixel);
}

TEST_F(LookUpListTest, GivesTheFocusBackFromThePopupOfAPick) {
  open('c');
  run.type("at");
  run.key(key::Enter, key::Enter);
  run.key(key::Esc, key::Esc);
  EXPECT_FALSE(run.controls.RHD.Visible());
  EXPECT_EQ(run.form.ActiveControl(), &run.controls.R2);
}

TEST_F(LookUpListTest, PicksTheLineOnADoubleClick) {
  open('c');
  const SurfacePoint at = RTD.pointOf(run.dictionary.words().ViTriDanhSach(1) + 1);
  RTD.pressMouse(MouseButton::Left, shift::None, at);
  RTD.SelStart(run.dictionary.words().ViTriDanhSach(1) + 1);
  RTD.releaseMouse(MouseButton::Left, shift::None, at);
  EXPECT_EQ(list.ChuChon, "able");
  if (RTD.DblClick) RTD.DblClick();
  RTD.releaseMouse(MouseButton::Left, shift::None, at);
  EXPECT_FALSE(RTD.Visible());
  EXPECT_EQ(run.shown(), "able \r - can\r");
}

TEST_F(LookUpListTest, ClearsTheTypedWordOnEscAndClosesOnTheNext) {
  open('c');
  run.state.atHand.beginPick();
  run.key(key::Esc, key::Esc);
  EXPECT_EQ(typed(), "");
  EXPECT_FALSE(run.state.word.DaChonRTD);
  EXPECT_TRUE(RTD.Visible());
  EXPECT_EQ(RTD.SelStart(), 0);
  run.key(key::Esc, key::Esc);
  EXPECT_FALSE(RTD.Visible());
  EXPECT_EQ(run.form.ActiveControl(), &run.controls.R2);
  EXPECT_EQ(run.form.Caption(), run.state.measures.TieuDeE);
}

TEST_F(LookUpListTest, DoesTheSameOnRightClicks) {
  open('c');
  RTD.pressMouse(MouseButton::Right, shift::None, {0, 0});
  EXPECT_EQ(typed(), "");
  EXPECT_TRUE(RTD.Visible());
  RTD.pressMouse(MouseButton::Right, shift::None, {0, 0});
  EXPECT_FALSE(RTD.Visible());
  EXPECT_EQ(run.form.ActiveControl(), &run.controls.R2);
}

TEST_F(LookUpListTest, ClosesAheadOfThePopupBelowIt) {
  open('c');
  run.controls.RHD.Visible(true);
  EXPECT_TRUE(run.shell.gestures.DongPhu(run.controls.R2));
  EXPECT_FALSE(RTD.Visible());
  EXPECT_TRUE(run.controls.RHD.Visible());
}

TEST_F(LookUpListTest, StoresThePointerThatMovesOverIt) {
  open('c');
  RTD.moveMouse(shift::None, {321, 654});
  EXPECT_EQ(run.state.word.ViTriChuot, (SurfacePoint{321, 654}));
}

TEST_F(LookUpListTest, ShowsItsHintOnF2) {
  open('c');
  run.key(key::F2, '\0');
  EXPECT_TRUE(run.controls.RDOS.Visible());
}

TEST_F(LookUpListTest, GivesTheFocusBackWhenAPickHasNoEntry) {
  run.folder.write("data.avt", "");
  run.stores.MoDuLieu();
  open('c');
  run.key(key::Enter, key::Enter);
  EXPECT_FALSE(run.controls.RHD.Visible());
  EXPECT_EQ(run.form.ActiveControl(), &run.controls.R2);
}

} // namespace
} // namespace talvora
