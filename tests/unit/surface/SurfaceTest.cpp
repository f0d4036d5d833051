#include "surface/Surface.h"

#include "NotingHost.h"
#include "platform/FatalFailure.h"
#include "platform/scripted/FixedLayout.h"
#include "support/TestFolder.h"
#include "text/Bytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace talvora {
namespace {

class SurfaceTest : public testing::Test {
 protected:
  SurfaceTest() {
    surface.Width(6000);
    surface.Height(3000);
    surface.FontSize(10);
    surface.Locked(false);
  }

  void type(const std::string& text) {
    for (const char character : text)
      surface.pressKey(asc(character), 0, character);
  }
  void press(int keyCode, int shift = 0) { surface.pressKey(keyCode, shift, 0); }

  NotingHost host;
  FixedLayout layout;
  Surface surface{"R", host, layout};
};

TEST_F(SurfaceTest, PositionsAreTheRunningLengthOfWhatWasWritten) {
  surface.SelText("one\r");
  EXPECT_EQ(surface.SelStart(), 4);
  surface.SelText("two");
  EXPECT_EQ(surface.SelStart(), 7);
  EXPECT_EQ(surface.Text(), "one\rtwo");
}

TEST_F(SurfaceTest, SettingTheTextClearsAllFormatting) {
  surface.SelColor(255);
  surface.SelAlignment(Alignment::Centred);
  surface.SelText("red");
  surface.Text("plain");
  ASSERT_EQ(surface.runs().size(), 1U);
  EXPECT_EQ(surface.runs()[0].style.color, 0U);
  EXPECT_EQ(surface.SelAlignment(), Alignment::Left);
  EXPECT_EQ(surface.SelStart(), 0);
}

TEST_F(SurfaceTest, AnAttributeAtTheCaretHoldsForTextWrittenThere) {
  surface.SelColor(255);
  surface.SelText("a");
  surface.SelText("b");
  surface.SelColor(0xFF0000);
  surface.SelText("c");
  const auto runs = surface.runs();
  ASSERT_EQ(runs.size(), 2U);
  EXPECT_EQ(runs[0].to, 2);
  EXPECT_EQ(runs[0].style.color, 255U);
  EXPECT_EQ(runs[1].style.color, 0xFF0000U);
}

TEST_F(SurfaceTest, MovingTheCaretForgetsTheAttributesThatWereToCome) {
  surface.SelText("ab");
  surface.SelColor(255);
  surface.SelStart(1);
  EXPECT_EQ(surface.SelColor(), 0U);
}

TEST_F(SurfaceTest, ASelectionTakesAttributesWithoutChangingItsNeighbours) {
  surface.Text("abcdef");
  surface.SelStart(2);
  surface.SelLength(2);
  surface.SelBold(true);
  surface.SelItalic(true);
  const auto runs = surface.runs();
  ASSERT_EQ(runs.size(), 3U);
  EXPECT_EQ(runs[1].from, 2);
  EXPECT_EQ(runs[1].to, 4);
  EXPECT_TRUE(runs[1].style.font.bold);
  EXPECT_FALSE(runs[2].style.italic);
  surface.SelBold(false);
  surface.SelItalic(false);
  EXPECT_EQ(surface.runs().size(), 1U) << "equal neighbours become one run";
}

TEST_F(SurfaceTest, TheCaretHasTheLookOfTheCharacterAheadAndAtALinesStartOfTheOneBehind) {
  surface.Text("ab\rcd");
  surface.SelStart(3);
  surface.SelLength(2);
  surface.SelBold(true);
  surface.SelStart(3);
  EXPECT_TRUE(surface.SelBold());
  surface.SelStart(2);
  EXPECT_FALSE(surface.SelBold());
  surface.SelStart(5);
  EXPECT_TRUE(surface.SelBold());
}

TEST_F(SurfaceTest, TextOverASelectionTakesItsLook) {
  surface.Text("abc");
  surface.SelStart(1);
  surface.SelLength(1);
  surface.SelUnderline(true);
  surface.SelText("XY");
  EXPECT_EQ(surface.Text(), "aXYc");
  EXPECT_EQ(surface.SelStart(), 3);
  EXPECT_TRUE(surface.runs()[1].style.underline);
}

TEST_F(SurfaceTest, CaretsOutsideTheTextGoToItsEnds) {
  surface.Text("abc");
  surface.SelStart(-5);
  EXPECT_EQ(surface.SelStart(), 0);
  surface.SelStart(99);
  EXPECT_EQ(surface.SelStart(), 3);
  surface.SelStart(1);
  surface.SelLength(99);
  EXPECT_EQ(surface.SelLength(), 2);
  surface.SelLength(-1);
  EXPECT_EQ(surface.SelLength(), 0);
  EXPECT_EQ(surface.TextBetween(-3, 99), "abc");
  EXPECT_EQ(surface.TextBetween(2, 1), "");
  EXPECT_EQ(surface.CharAt(3), '\0');
}

TEST_F(SurfaceTest, SpanRunsForwardUpToTheSet) {
  surface.Text("some words, more");
  surface.SelStart(5);
  surface.Span(" ,.", SpanDirection::Forward, SpanUntil::InSet);
  EXPECT_EQ(surface.SelText(), "words");
}

TEST_F(SurfaceTest, SpanRunsBackwardUpToTheSetAndKeepsTheEnd) {
  surface.Text("some words, more");
  surface.SelStart(8);
  surface.SelLength(2);
  surface.Span(" ", SpanDirection::Backward, SpanUntil::InSet);
  EXPECT_EQ(surface.SelText(), "words");
}

TEST_F(SurfaceTest, SpanRunsWhileCharactersAreInTheSet) {
  surface.Text("aaab");
  surface.Span("a", SpanDirection::Forward, SpanUntil::NotInSet);
  EXPECT_EQ(surface.SelText(), "aaa");
  surface.SelStart(3);
  surface.Span("a", SpanDirection::Backward, SpanUntil::NotInSet);
  EXPECT_EQ(surface.SelStart(), 0);
}

TEST_F(SurfaceTest, SpanStopsAtTheTextsEnds) {
  surface.Text("word");
  surface.SelStart(2);
  surface.Span(" ", SpanDirection::Forward, SpanUntil::InSet);
  surface.Span(" ", SpanDirection::Backward, SpanUntil::InSet);
  EXPECT_EQ(surface.SelText(), "word");
}

TEST_F(SurfaceTest, ParagraphAttributesTouchEveryParagraphOfTheSelection) {
  surface.Text("one\rtwo\rthree");
  surface.SelStart(1);
  surface.SelLength(4);
  surface.SelAlignment(Alignment::Centred);
  surface.SelIndent(285.1654);
  surface.SelBullet(true);
  const auto paragraphs = surface.paragraphs();
  ASSERT_EQ(paragraphs.size(), 3U);
  EXPECT_EQ(paragraphs[0].style.align, Alignment::Centred);
  EXPECT_EQ(paragraphs[1].style.indent, 285.1654);
  EXPECT_TRUE(paragraphs[1].style.bullet);
  EXPECT_EQ(paragraphs[2].style.align, Alignment::Left);
  EXPECT_EQ(paragraphs[1].from, 4);
  EXPECT_EQ(paragraphs[1].to, 8);
}

TEST_F(SurfaceTest, ALineEndGivesTheNewParagraphTheLookOfTheOld) {
  surface.Text("onetwo");
  surface.SelAlignment(Alignment::Centred);
  surface.SelStart(3);
  surface.SelText('\r');
  EXPECT_EQ(surface.paragraphs()[1].style.align, Alignment::Centred);
}

TEST_F(SurfaceTest, ACopyKeepsCaretsAndColours) {
  surface.SelColor(255);
  surface.SelText("red\r");
  surface.SelColor(0);
  surface.SelAlignment(Alignment::Centred);
  surface.SelText("black");
  Surface copy("C", host, layout);
  copy.TextRTF(surface.TextRTF());
  EXPECT_EQ(copy.Text(), surface.Text());
  EXPECT_EQ(copy.runs(), surface.runs());
  EXPECT_EQ(copy.paragraphs(), surface.paragraphs());
  EXPECT_EQ(copy.SelStart(), 0);
  copy.Check();
}

TEST_F(SurfaceTest, APlainFileIsKeptAsItStands) {
  test::TestFolder folder;
  folder.write("list.txt", "one\r\ntwo\nthree\rfour");
  surface.LoadFile(MappedFile::open(folder.pathOf("list.txt")));
  EXPECT_EQ(surface.Text(), "one\r\ntwo\nthree\rfour");
  EXPECT_EQ(surface.paragraphCount(), 4);
  EXPECT_EQ(surface.paragraphStart(1), 5);
  EXPECT_EQ(surface.paragraph(0).view().text, "one");
  EXPECT_EQ(surface.paragraph(1).view().text, "two");
  surface.SelStart(3);
  surface.SelText("X");
  EXPECT_EQ(surface.Text(), "oneX\r\ntwo\nthree\rfour");
  EXPECT_EQ(folder.read("list.txt"), "one\r\ntwo\nthree\rfour");
  surface.Check();
}

TEST_F(SurfaceTest, AFileOfWhichTheParagraphsAreKnownIsNotSearchedForThem) {
  test::TestFolder folder;
  folder.write("list.txt", "one\r\ntwo\n");
  surface.LoadFile(MappedFile::open(folder.pathOf("list.txt")), {0, 5, 9});
  EXPECT_EQ(surface.Text(), "one\r\ntwo\n");
  EXPECT_EQ(surface.paragraphCount(), 3);
  EXPECT_EQ(surface.paragraph(1).view().text, "two");
  surface.Check();
}

TEST_F(SurfaceTest, ARichTextHasItsOwnParagraphs) {
  test::TestFolder folder;
  folder.write("page.rtf", R"({\rtf1 one\par two})");
  surface.LoadFile(MappedFile::open(folder.pathOf("page.rtf")), {0, 5});
  EXPECT_EQ(surface.Text(), "one\rtwo");
  surface.Check();
}

TEST_F(SurfaceTest, AMissingFileIsNamed) {
  EXPECT_THROW(surface.LoadFile(MappedFile::open("/nowhere/readme.rtf")), FatalFailure);
}

TEST_F(SurfaceTest, LockedTextIsNotChangedByKeys) {
  surface.Text("abc");
  surface.Locked(true);
  type("x\r");
  press(key::Delete);
  surface.pressKey(key::Backspace, 0, chr(key::Backspace));
  EXPECT_EQ(surface.Text(), "abc");
}

TEST_F(SurfaceTest, ProtectedTextIsNotChangedByKeysButByTheProgram) {
  surface.Text("abcdef");
  surface.SelStart(1);
  surface.SelLength(3);
  surface.SelProtected(true);
  surface.SelStart(2);
  type("x");
  press(key::Delete);
  surface.SelStart(0);
  surface.SelLength(6);
  press(key::Delete);
  EXPECT_EQ(surface.Text(), "abcdef");
  surface.SelStart(5);
  type("x");
  EXPECT_EQ(surface.Text(), "abcdexf");
  surface.SelStart(2);
  surface.SelText("y");
  EXPECT_EQ(surface.Text(), "abycdexf");
}

TEST_F(SurfaceTest, TypingWritesAtTheCaretAndOverASelection) {
  type("abc");
  EXPECT_EQ(surface.Text(), "abc");
  surface.pressKey(key::Backspace, 0, chr(key::Backspace));
  EXPECT_EQ(surface.Text(), "ab");
  surface.SelStart(0);
  press(key::Delete);
  EXPECT_EQ(surface.Text(), "b");
  surface.SelLength(1);
  type("z\r");
  EXPECT_EQ(surface.Text(), "z\r");
}

TEST_F(SurfaceTest, AHandlerSwallowsAKey) {
  surface.Text("abc");
  surface.KeyPress = [](int& KeyAscii) {
    if (KeyAscii == 'x') KeyAscii = 0;
  };
  type("xy");
  EXPECT_EQ(surface.Text(), "yabc");
  surface.KeyDown = [](int& KeyCode, int) {
    if (KeyCode == key::Right) KeyCode = 0;
  };
  press(key::Right);
  EXPECT_EQ(surface.SelStart(), 1);
  press(key::Left);
  EXPECT_EQ(surface.SelStart(), 0);
}

TEST_F(SurfaceTest, ArrowsMoveByCharacterWordAndLine) {
  surface.Text("one two\rthree");
  press(key::Right);
  EXPECT_EQ(surface.SelStart(), 1);
  press(key::Right, shift::Ctrl);
  EXPECT_EQ(surface.SelStart(), 4);
  press(key::Down);
  EXPECT_EQ(surface.SelStart(), 12);
  press(key::Home);
  EXPECT_EQ(surface.SelStart(), 8);
  press(key::End);
  EXPECT_EQ(surface.SelStart(), 13);
  press(key::Up);
  EXPECT_EQ(surface.SelStart(), 5);
  press(key::Home, shift::Ctrl);
  EXPECT_EQ(surface.SelStart(), 0);
  press(key::End, shift::Ctrl);
  EXPECT_EQ(surface.SelStart(), 13);
  press(key::Left, shift::Ctrl);
  EXPECT_EQ(surface.SelStart(), 8);
}

TEST_F(SurfaceTest, ByWordASelectionIsLeftAtTheSideOfTheMove) {
  surface.Text("one two three");
  surface.SelStart(4);
  surface.SelLength(3);
  press(key::Left, shift::Ctrl);
  EXPECT_EQ(surface.SelStart(), 0);
  surface.SelStart(4);
  surface.SelLength(3);
  press(key::Right, shift::Ctrl);
  EXPECT_EQ(surface.SelStart(), 8);
}

TEST_F(SurfaceTest, ShiftExtendsTheSelectionFromItsAnchor) {
  surface.Text("abcdef");
  surface.SelStart(3);
  press(key::Right, shift::Shift);
  press(key::Right, shift::Shift);
  EXPECT_EQ(surface.SelText(), "de");
  press(key::Home, shift::Shift);
  EXPECT_EQ(surface.SelText(), "abc");
  press(key::Right);
  EXPECT_EQ(surface.SelStart(), 3);
  EXPECT_EQ(surface.SelLength(), 0);
}

TEST_F(SurfaceTest, UpAndDownStartFromTheLineThatIsSelected) {
  surface.Text("one\rtwo\rthree\rfour\r");
  const auto selectSecondLine = [this] {
    surface.SelStart(4);
    surface.SelLength(4);
  };
  selectSecondLine();
  press(key::Down);
  EXPECT_EQ(surface.GetLineFromChar(surface.SelStart()), 2);
  selectSecondLine();
  press(key::Up);
  EXPECT_EQ(surface.GetLineFromChar(surface.SelStart()), 0);
  selectSecondLine();
  press(key::Down, shift::Shift);
  EXPECT_EQ(surface.SelText(), "two\rthree\r");
}

TEST_F(SurfaceTest, UpAndDownKeepTheColumnOverShortLines) {
  surface.Text("long line\rx\rlong line");
  surface.SelStart(6);
  press(key::Down);
  EXPECT_EQ(surface.SelStart(), 11);
  press(key::Down);
  EXPECT_EQ(surface.SelStart(), 18);
  press(key::Up);
  press(key::Up);
  EXPECT_EQ(surface.SelStart(), 6);
}

TEST_F(SurfaceTest, LinesAreCountedAsTheLayoutBreaksThem) {
  // 6000 twips less four characters of 100 hold 56 characters.
  surface.Text(std::string(50, 'a') + " " + std::string(50, 'b') + "\rend");
  EXPECT_EQ(surface.GetLineFromChar(0), 0);
  EXPECT_EQ(surface.GetLineFromChar(51), 1);
  EXPECT_EQ(surface.GetLineFromChar(102), 2);
  EXPECT_EQ(surface.GetLineFromChar(9999), 2);
}

TEST_F(SurfaceTest, PointsAndCaretsAreInverse) {
  surface.Text("some words\rand more of them");
  for (const int caret : {0, 3, 9, 11, 20, 26}) {
    EXPECT_EQ(surface.caretAt(surface.pointOf(caret)), caret);
  }
  EXPECT_EQ(surface.caretAt({-100, -100}), 0);
  EXPECT_EQ(surface.caretAt({99999, 99999}), surface.TextLength());
}

TEST_F(SurfaceTest, ACaretIsBroughtIntoViewWithAsLittleScrollingAsPossible) {
  std::string text;
  for (int line = 0; line < 100; ++line)
    text += "line\r";
  surface.Text(text);
  surface.SelStart(0);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{0, 0}));
  // Ten lines of 300 twips fit.
  surface.SelStart(50 * 5);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{41, 0}));
  surface.SelStart(45 * 5);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{41, 0}));
  surface.SelStart(20 * 5);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{20, 0}));
}

TEST_F(SurfaceTest, GoingFartherDownFirstLeavesALineNearTheTop) {
  std::string text;
  for (int line = 0; line < 100; ++line)
    text += "line\r";
  surface.Text(text);
  surface.SelStart(60 * 5);
  surface.SelStart(50 * 5);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{50, 0}));
}

TEST_F(SurfaceTest, ScrollingStopsAtTheFirstAndTheLastLine) {
  std::string text;
  for (int line = 0; line < 20; ++line)
    text += "line\r";
  surface.Text(text);
  surface.scrollBy(-500);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{0, 0}));
  surface.scrollBy(450);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{1, 150}));
  surface.scrollBy(100000);
  EXPECT_EQ(surface.scroll(), (ScrollPlace{11, 0}));
  surface.Check();
}

TEST_F(SurfaceTest, FromALineSelectedWholeUpAndDownLeadToItsNeighbours) {
  surface.Text("one\rtwo\rthree\rfour\r");
  const auto selectTwo = [this] {
    surface.SelStart(4);
    surface.SelLength(4);
  };
  selectTwo();
  press(key::Down);
  EXPECT_EQ(surface.GetLineFromChar(surface.SelStart()), 2);
  selectTwo();
  press(key::Up);
  EXPECT_EQ(surface.GetLineFromChar(surface.SelStart()), 0);
  selectTwo();
  press(key::Home);
  EXPECT_EQ(surface.SelStart(), 4);
  selectTwo();
  press(key::End);
  EXPECT_EQ(surface.SelStart(), 7);
  EXPECT_EQ(surface.SelLength(), 0);
}

TEST_F(SurfaceTest, ScrollsBackToAPlaceThatWasSeenWhereverTheCaretIs) {
  std::string text;
  for (int line = 0; line < 200; ++line)
    text += "line\r";
  surface.Text(text);
  surface.scrollBy(450);
  const ScrollPlace seen = surface.scroll();
  surface.SelStart(50 * 5);
  surface.SelStart(150 * 5);
  surface.scroll(seen);
  EXPECT_EQ(surface.scroll(), seen);
  surface.scroll({100000, 100000});
  EXPECT_EQ(surface.scroll().paragraph, 200);
  surface.scroll({-1, -1});
  EXPECT_EQ(surface.scroll(), ScrollPlace{});
  surface.Check();
}

TEST_F(SurfaceTest, ClicksPlaceTheCaretForTheLeftButtonOnly) {
  surface.Text("some words");
  std::vector<std::string> events;
  surface.MouseDown = [&](MouseButton, int, SurfacePoint) { events.emplace_back("down"); };
  surface.MouseUp = [&](MouseButton, int, SurfacePoint) { events.emplace_back("up"); };
  surface.Click = [&] { events.emplace_back("click"); };
  surface.DblClick = [&] { events.emplace_back("double"); };
  const SurfacePoint at = surface.pointOf(6);
  surface.pressMouse(MouseButton::Right, 0, at);
  surface.releaseMouse(MouseButton::Right, 0, at);
  EXPECT_EQ(surface.SelStart(), 0);
  surface.pressMouse(MouseButton::Left, 0, at);
  EXPECT_EQ(surface.SelStart(), 6);
  surface.releaseMouse(MouseButton::Left, 0, at);
  surface.doubleClick(0, at);
  EXPECT_EQ(surface.SelText(), "words");
  surface.releaseMouse(MouseButton::Left, 0, at);
  EXPECT_THAT(events,
              testing::ElementsAre("down", "up", "click", "down", "up", "click", "double", "up"));
}

TEST_F(SurfaceTest, ADoubleClickTakesTheBlanksBehindTheWord) {
  surface.Text("some  words");
  surface.doubleClick(0, surface.pointOf(1));
  EXPECT_EQ(surface.SelText(), "some  ");
}

TEST_F(SurfaceTest, ADoubleClickKeepsAHardBlankOutOfTheWord) {
  surface.Text("some \xA0words");
  surface.doubleClick(0, surface.pointOf(8));
  EXPECT_EQ(surface.SelStart(), 6);
  EXPECT_EQ(surface.SelText(), "words");
}

TEST_F(SurfaceTest, ADragSelectsFromThePress) {
  surface.Text("some words");
  surface.pressMouse(MouseButton::Left, 0, surface.pointOf(7));
  surface.dragMouse(0, surface.pointOf(2));
  EXPECT_EQ(surface.SelStart(), 2);
  EXPECT_EQ(surface.SelLength(), 5);
}

TEST_F(SurfaceTest, SelChangeRunsOnlyWhenTheSelectionMoves) {
  int changes = 0;
  surface.Text("abc");
  surface.SelChange = [&] { ++changes; };
  surface.SelStart(0);
  EXPECT_EQ(changes, 0);
  surface.SelStart(2);
  surface.SelStart(2);
  EXPECT_EQ(changes, 1);
  surface.SelLength(1);
  EXPECT_EQ(changes, 2);
  surface.Text("other");
  EXPECT_EQ(changes, 3);
}

TEST_F(SurfaceTest, AHandlerMayChangeTheSurfaceAgain) {
  surface.SelChange = [&] {
    if (surface.SelStart() == 2) surface.SelStart(1);
  };
  surface.Change = [&] {
    if (surface.Text() == "ab") surface.SelText("c");
  };
  surface.SelText("a");
  surface.SelText("b");
  EXPECT_EQ(surface.Text(), "abc");
  surface.Check();
}

TEST_F(SurfaceTest, EachMutatorTellsTheFormOnce) {
  surface.Text("abc");
  host.changes.clear();
  surface.SelText("x");
  EXPECT_THAT(host.changes, testing::ElementsAre(ControlChange::Text));
  host.changes.clear();
  surface.SelLength(2);
  surface.SelColor(255);
  EXPECT_THAT(host.changes, testing::ElementsAre(ControlChange::Selection, ControlChange::Look));
}

// A naive twin: a text and a style for each character.
struct Twin {
  std::string text;
  std::vector<Colour> colours;

  void replace(std::size_t from, std::size_t to, const std::string& with, Colour colour) {
    const auto at = static_cast<std::ptrdiff_t>(from);
    text.replace(from, to - from, with);
    colours.erase(colours.begin() + at, colours.begin() + static_cast<std::ptrdiff_t>(to));
    colours.insert(colours.begin() + at, with.size(), colour);
  }
};

TEST_F(SurfaceTest, EqualsANaiveTwinThroughThousandsOfEdits) {
  std::mt19937 random(20260101);
  const auto below = [&](std::size_t limit) { return random() % (limit + 1); };
  const std::vector<std::string> pieces = {"a", "bc", "\r", "long piece of text", "", "x\ry\r"};
  Twin twin;
  for (int step = 0; step < 4000; ++step) {
    const std::size_t from = below(twin.text.size());
    const std::size_t length = below(std::min<std::size_t>(twin.text.size() - from, 12));
    surface.SelStart(static_cast<int>(from));
    surface.SelLength(static_cast<int>(length));
    const Colour colour = static_cast<Colour>(below(3));
    if (below(2) == 0 && length > 0) {
      surface.SelColor(colour);
      std::fill_n(twin.colours.begin() + static_cast<std::ptrdiff_t>(from), length, colour);
    } else {
      const std::string piece = pieces[below(pieces.size() - 1)];
      surface.SelColor(colour);
      surface.SelText(piece);
      twin.replace(from, from + length, piece, colour);
    }
    if (twin.text.size() > 600) {
      surface.Text("");
      twin = {};
    }
    surface.Check();
    ASSERT_EQ(surface.Text(), twin.text) << "step " << step;
    for (const StyledRun& run : surface.runs()) {
      for (int at = run.from; at < run.to; ++at) {
        ASSERT_EQ(run.style.color, twin.colours[static_cast<std::size_t>(at)]) << "step " << step;
      }
    }
  }
}

} // namespace
} // namespace talvora
