// What a surface tells, what its keys do at the edges, and how it scrolls.
#include "surface/Surface.h"

#include "NotingHost.h"
#include "platform/scripted/FixedLayout.h"
#include "text/Bytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace talvora {
namespace {

using testing::ElementsAre;

/// Lines of 300 twips; ten of them are in view.
class SurfaceEventsTest : public testing::Test {
 protected:
  SurfaceEventsTest() {
    for (Surface* each : {&surface, &other}) {
      each->Width(6000);
      each->Height(3000);
      each->FontSize(10);
      each->Locked(false);
    }
  }

  static std::string lines(int count) {
    std::string text;
    for (int line = 0; line < count; ++line)
      text += "line\r";
    return text;
  }
  void press(int keyCode, int shift = 0) { surface.pressKey(keyCode, shift, 0); }
  void backspace() { surface.pressKey(key::Backspace, 0, chr(key::Backspace)); }

  NotingHost host;
  FixedLayout layout;
  Surface surface{"R", host, layout};
  Surface other{"O", host, layout};
};

TEST_F(SurfaceEventsTest, WritingNothingOverNothingTellsNobody) {
  surface.Text("abc");
  int changes = 0;
  surface.Change = [&] { ++changes; };
  host.changes.clear();
  const auto revision = surface.revision();
  surface.SelText("");
  EXPECT_EQ(changes, 0);
  EXPECT_TRUE(host.changes.empty());
  EXPECT_EQ(surface.revision(), revision);
}

TEST_F(SurfaceEventsTest, ChangeRunsWhenTheTextIsAnotherOne) {
  int changes = 0;
  surface.Change = [&] { ++changes; };
  surface.Text("");
  EXPECT_EQ(changes, 0);
  surface.Text("abc");
  surface.Text("abc");
  EXPECT_EQ(changes, 1);
  surface.SelColor(255);
  surface.SelText("x");
  EXPECT_EQ(changes, 2);
  surface.SelStart(0);
  EXPECT_EQ(changes, 2);
}

TEST_F(SurfaceEventsTest, AHandlerThatWritesDoesNotRunItselfAgain) {
  surface.Change = [&] { surface.SelText("!"); };
  surface.SelText("a");
  EXPECT_EQ(surface.Text(), "a!");
  surface.SelChange = [&] { surface.SelStart(surface.SelStart() + 1); };
  surface.SelStart(0);
  EXPECT_EQ(surface.SelStart(), 1);
  surface.Check();
}

TEST_F(SurfaceEventsTest, AHandlerMayReplaceItself) {
  int calls = 0;
  surface.Change = [&] {
    ++calls;
    surface.Change = nullptr;
    ++calls;
  };
  surface.SelText("a");
  surface.SelText("b");
  EXPECT_EQ(calls, 2);
}

TEST_F(SurfaceEventsTest, DeletingASelectionMovesTheSelection) {
  surface.Text("abcd");
  surface.SelStart(1);
  surface.SelLength(2);
  int moves = 0;
  surface.SelChange = [&] { ++moves; };
  backspace();
  EXPECT_EQ(surface.Text(), "ad");
  EXPECT_EQ(moves, 1);
}

TEST_F(SurfaceEventsTest, AKeyThatMovesTheCaretTellsTheFormOnce) {
  surface.Text("abcd");
  host.changes.clear();
  press(key::Right);
  EXPECT_THAT(host.changes, ElementsAre(ControlChange::Selection));
  host.changes.clear();
  surface.pressKey('X', 0, 'x');
  EXPECT_THAT(host.changes, ElementsAre(ControlChange::Text));
}

TEST_F(SurfaceEventsTest, AttributesThatAreToComeChangeNothingYet) {
  surface.Text("abc");
  const auto revision = surface.revision();
  host.changes.clear();
  surface.SelColor(255);
  EXPECT_EQ(surface.revision(), revision);
  EXPECT_TRUE(host.changes.empty());
  EXPECT_EQ(surface.SelColor(), 255U);
}

TEST_F(SurfaceEventsTest, ADefaultFontHoldsForLaterTextOnly) {
  surface.Text("old");
  surface.FontSize(20);
  EXPECT_EQ(surface.SelFontSize(), 10);
  surface.Text("");
  EXPECT_EQ(surface.SelFontSize(), 20);
  surface.SelText("new");
  EXPECT_EQ(surface.runs().at(0).style.font.size, 20);
}

TEST_F(SurfaceEventsTest, AfterALineEndTheNextParagraphsLookCounts) {
  surface.Text("redblue");
  surface.SelLength(3);
  surface.SelColor(255);
  surface.SelStart(3);
  surface.SelText("\r");
  EXPECT_EQ(surface.SelColor(), 0U) << "the character that follows opens the paragraph";
  surface.SelText("x");
  EXPECT_EQ(surface.runs().back().from, 4);
}

TEST_F(SurfaceEventsTest, DeletingALineEndKeepsTheFirstParagraphsLook) {
  surface.Text("one\rtwo");
  surface.SelAlignment(Alignment::Centred);
  surface.SelStart(3);
  press(key::Delete);
  EXPECT_EQ(surface.Text(), "onetwo");
  EXPECT_EQ(surface.SelAlignment(), Alignment::Centred);
}

TEST_F(SurfaceEventsTest, ParagraphsWrittenOverSeveralLookLikeTheFirst) {
  surface.Text("one\rtwo\rthree");
  surface.SelAlignment(Alignment::Right);
  surface.SelStart(2);
  surface.SelLength(7);
  surface.SelText("x\ry");
  EXPECT_EQ(surface.Text(), "onx\ryhree");
  EXPECT_EQ(surface.paragraphs().at(1).style.align, Alignment::Right);
}

TEST_F(SurfaceEventsTest, ALineEndOfTwoCharactersIsPassedAndDeletedAsOne) {
  surface.Text("a\r\nb");
  press(key::Right);
  press(key::Right);
  EXPECT_EQ(surface.SelStart(), 3);
  press(key::Left);
  EXPECT_EQ(surface.SelStart(), 1);
  press(key::Delete);
  EXPECT_EQ(surface.Text(), "ab");
  surface.Text("a\r\nb");
  surface.SelStart(3);
  backspace();
  EXPECT_EQ(surface.Text(), "ab");
}

TEST_F(SurfaceEventsTest, TheEndOfABrokenLineStandsAheadOfItsBlank) {
  surface.Text(std::string(50, 'a') + " " + std::string(50, 'b'));
  press(key::End);
  EXPECT_EQ(surface.SelStart(), 50);
  press(key::Down);
  EXPECT_EQ(surface.SelStart(), 101);
  press(key::Home);
  EXPECT_EQ(surface.SelStart(), 51);
  press(key::Up);
  EXPECT_EQ(surface.SelStart(), 0);
}

TEST_F(SurfaceEventsTest, AnEmptyLastLineTakesTheCaret) {
  surface.Text("ab\r");
  surface.SelStart(1);
  press(key::Down);
  EXPECT_EQ(surface.SelStart(), 3);
  press(key::Down);
  EXPECT_EQ(surface.SelStart(), 3);
  press(key::Up);
  EXPECT_EQ(surface.SelStart(), 1) << "the column is kept";
}

TEST_F(SurfaceEventsTest, PagesMoveByTheLinesInView) {
  surface.Text(lines(50));
  surface.SelStart(2);
  press(key::PgDn);
  EXPECT_EQ(surface.GetLineFromChar(surface.SelStart()), 10);
  EXPECT_EQ(surface.SelStart(), 52) << "the column is kept";
  press(key::PgDn, shift::Shift);
  EXPECT_EQ(surface.SelLength(), 50);
  press(key::PgUp);
  press(key::PgUp);
  press(key::PgUp);
  EXPECT_EQ(surface.SelStart(), 2);
}

TEST_F(SurfaceEventsTest, KeysGoOnFromASelectedLineAndNotFromTheOneBelow) {
  surface.Text(lines(50));
  const int lineLength = 5;
  const auto selectLine = [&](int line) {
    surface.SelStart(line * lineLength);
    surface.SelLength(lineLength);
  };
  const auto lineAfter = [&](int key) {
    selectLine(20);
    press(key);
    return surface.GetLineFromChar(surface.SelStart());
  };
  EXPECT_EQ(lineAfter(key::Down), 21);
  EXPECT_EQ(lineAfter(key::Up), 19);
  EXPECT_EQ(lineAfter(key::Home), 20);
  EXPECT_EQ(lineAfter(key::End), 20);
  EXPECT_EQ(lineAfter(key::PgDn), 30);
  EXPECT_EQ(lineAfter(key::PgUp), 10);
  selectLine(20);
  press(key::Down, shift::Shift);
  EXPECT_EQ(surface.SelLength(), 2 * lineLength) << "a selection is extended from its own end";
}

TEST_F(SurfaceEventsTest, ReplacedKeysAreTypedAsTheHandlerSays) {
  surface.KeyPress = [](int& KeyAscii) { KeyAscii = 'z'; };
  surface.pressKey('A', 0, 'a');
  EXPECT_EQ(surface.Text(), "z");
}

TEST_F(SurfaceEventsTest, ASwallowedKeyDownReachesNeitherKeyPressNorTheText) {
  int pressed = 0;
  surface.KeyDown = [](int& KeyCode, int) { KeyCode = 0; };
  surface.KeyPress = [&](int&) { ++pressed; };
  surface.pressKey('A', 0, 'a');
  EXPECT_EQ(pressed, 0);
  EXPECT_EQ(surface.Text(), "");
}

TEST_F(SurfaceEventsTest, KeysWithoutACharacterRunNoKeyPress) {
  int pressed = 0;
  surface.KeyPress = [&](int&) { ++pressed; };
  press(key::Right);
  press(key::F2);
  EXPECT_EQ(pressed, 0);
  surface.pressKey(key::Esc, 0, chr(key::Esc));
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(surface.Text(), "");
}

TEST_F(SurfaceEventsTest, TheViewMovesWithTheParagraphsThatItShows) {
  surface.Text(lines(100));
  surface.scrollBy(50 * 300);
  ASSERT_EQ(surface.scroll(), (ScrollPlace{50, 0}));
  surface.SelText("new\rlines\r");
  EXPECT_EQ(surface.scroll(), (ScrollPlace{52, 0}));
  surface.Check();
}

TEST_F(SurfaceEventsTest, AShorterTextLeavesNoEmptyView) {
  surface.Text(lines(100));
  surface.SelLength(99 * 5);
  surface.scrollBy(90 * 300);
  surface.SelText("");
  EXPECT_LT(surface.scroll().paragraph, surface.paragraphCount());
  surface.Check();
}

TEST_F(SurfaceEventsTest, LookingLateShowsTheSameAsLookingAtOnce) {
  const std::string text = lines(200);
  std::mt19937 random(5);
  for (int round = 0; round < 300; ++round) {
    surface.Text(text);
    other.Text(text);
    const int placements = 1 + static_cast<int>(random() % 60);
    for (int each = 0; each < placements; ++each) {
      const int caret = static_cast<int>(random() % (round % 2 == 0 ? text.size() : 150));
      surface.SelStart(caret);
      other.SelStart(caret);
      EXPECT_LE(other.scroll().paragraph, caret / 5);
    }
    ASSERT_EQ(surface.scroll(), other.scroll()) << "round " << round;
  }
}

TEST_F(SurfaceEventsTest, ADragBeyondTheUpperEdgeReachesTheTextAbove) {
  surface.Text(lines(100));
  surface.scrollBy(50 * 300);
  EXPECT_EQ(surface.paragraphOf(surface.caretAt({300, -450})), 48);
  surface.pressMouse(MouseButton::Left, 0, {300, 100});
  surface.dragMouse(0, {300, -450});
  EXPECT_EQ(surface.paragraphOf(surface.SelStart()), 48);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{48, 0}));
}

TEST_F(SurfaceEventsTest, AnEmptyLastLineIsAsHighAsWhatIsWrittenThere) {
  surface.SelFontSize(30);
  surface.SelText("big\r");
  EXPECT_EQ(surface.paragraph(1).view().runs[0].style->font.size, 30);
}

TEST_F(SurfaceEventsTest, ATextWithoutASizeIsNeverScrolled) {
  Surface flat("F", host, layout);
  flat.Text(lines(100));
  for (int caret = 0; caret < 400; caret += 7)
    flat.SelStart((caret * 31) % 400);
  EXPECT_EQ(flat.scroll(), (ScrollPlace{0, 0}));
  flat.Check();
}

TEST_F(SurfaceEventsTest, FormattingARangeTellsOfNoSelectionAndMovesNothing) {
  surface.Text(lines(50));
  surface.SelStart(7);
  surface.SelLength(2);
  int moves = 0;
  surface.SelChange = [&] { ++moves; };
  host.changes.clear();
  surface.format({200, 204}, {.color = 255, .bold = true});
  surface.formatParagraphs({200, 204}, {.align = Alignment::Right});
  EXPECT_EQ(moves, 0);
  EXPECT_THAT(host.changes, ElementsAre(ControlChange::Look, ControlChange::Look));
  EXPECT_EQ(surface.SelStart(), 7);
  EXPECT_EQ(surface.SelLength(), 2);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{0, 0}));
  EXPECT_EQ(surface.styleAt(200).color, 255U);
  EXPECT_TRUE(surface.styleAt(203).font.bold);
  EXPECT_EQ(surface.styleAt(204).color, 0U);
  EXPECT_EQ(surface.paragraphs().at(40).style.align, Alignment::Right);
  EXPECT_EQ(surface.paragraphs().at(41).style.align, Alignment::Left);
}

TEST_F(SurfaceEventsTest, ARangeOutsideTheTextCountsAsWhatLiesInside) {
  surface.Text("abc");
  surface.format({2, 99}, {.color = 255});
  surface.format({50, 60}, {.color = 1});
  surface.write({3, 3}, "d");
  surface.write({-5, 1}, "A");
  EXPECT_EQ(surface.Text(), "Abcd");
  EXPECT_EQ(surface.styleAt(2).color, 255U);
  EXPECT_EQ(surface.styleAt(3).color, 0U);
  surface.Check();
}

TEST_F(SurfaceEventsTest, WritingARangeTakesCaretAndSelectionAlong) {
  surface.Text("one two three");
  const auto select = [&](int from, int length) {
    surface.SelStart(from);
    surface.SelLength(length);
  };
  select(8, 5);
  surface.write({0, 3}, "eleven", {.color = 255});
  EXPECT_EQ(surface.SelText(), "three");
  EXPECT_EQ(surface.styleAt(5).color, 255U);
  select(0, 6);
  surface.write({7, 10}, "2");
  EXPECT_EQ(surface.SelText(), "eleven");
  surface.SelStart(3);
  surface.write({0, 6}, "twelve");
  EXPECT_EQ(surface.SelStart(), 3) << "a text of the same length leaves the caret where it is";
  surface.write({0, 6}, "x");
  EXPECT_EQ(surface.SelStart(), 1);
  surface.Check();
}

TEST_F(SurfaceEventsTest, TheLineOfACaretFollowsEditsAndWidth) {
  const std::string longLine = std::string(50, 'a') + " " + std::string(50, 'b') + "\r";
  surface.Text(longLine + lines(10));
  const auto lastLine = [&] { return surface.GetLineFromChar(surface.TextLength()); };
  EXPECT_EQ(lastLine(), 12);
  surface.write({0, 51}, "");
  EXPECT_EQ(lastLine(), 11);
  surface.write({0, 0}, longLine);
  EXPECT_EQ(lastLine(), 13);
  surface.Width(60000);
  EXPECT_EQ(lastLine(), 12);
  surface.format({0, 200}, {.fontSize = 100.0});
  EXPECT_GT(lastLine(), 12);
}

} // namespace
} // namespace talvora
