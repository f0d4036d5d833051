// Your vocabulary: adding words in a text, the list, its sentences, and deleting rows.
#include "reading/TuVungChon.h"

#include "dictionary/DictionaryRun.h"
#include "support/ProgramRun.h"
#include "text/Bytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using namespace literals;
using test::ProgramRun;
using Texts = std::vector<std::string>;

constexpr Colour Red = 255;

/// A record of data.c.
std::string record(std::string word, std::int32_t place) {
  word.resize(20, ' ');
  for (int shift = 0; shift < 32; shift += 8)
    word += static_cast<char>(static_cast<std::uint32_t>(place) >> shift & 0xFFU);
  return word;
}

class VocabularyTest : public testing::Test {
 protected:
  VocabularyTest() {
    run.folder.writeIntegers("data.Kcu", {0, 1, 0, 5});
    test::writeWordFiles(run.folder, test::withLetterLines({{"bank", "#noun#_ bo song"},
                                                            {"go", "#verb#_ di"},
                                                            {"river", "#noun#_ song"}}));
    run.writeTexts({{1,
                     "Title\r_\tThe old bank, I go. _It's|here. _See abcdefghijklmnopqrst and "
                     "bcdefghijklmnopqrstuv.\r",
                     "_Mot._Hai._Ba."}});
    run.writeTexts({{1, "Talk\r_\tA river here.\r", "_Mot."}}, true);
  }

  void openText(int section = 1) {
    run.clickButton(section);
    run.controls().RDOS.Visible(false);
    run.controls().R1.SelStart(0);
    run.key(key::Home);
    run.key(key::Enter);
  }
  void leaveText() {
    while (run.controls().R1.Visible() || run.controls().R2.Visible())
      run.key(key::Esc);
  }
  /// Clicks into a word of the open text and presses Enter.
  void add(const std::string& word) {
    Surface& R2 = run.controls().R2;
    run.click(R2, static_cast<int>(R2.Text().find(word)) + 1);
    run.key(key::Enter);
  }
  /// Starts with a list in data.c and opens it.
  void openList(const std::string& records) {
    run.folder.write("data.c", records);
    run.start();
    run.clickButton(2);
    run.controls().RDOS.Visible(false);
    static_cast<void>(run.machine.log.take());
  }
  [[nodiscard]] int caretOf(const std::string& text) {
    return static_cast<int>(Rchon.Text().find(text));
  }
  /// Drags over the list from one caret to another.
  void drag(int from, int to) {
    Rchon.pressMouse(MouseButton::Left, shift::None, {});
    Rchon.SelStart(from);
    Rchon.SelLength(to - from);
    Rchon.releaseMouse(MouseButton::Left, shift::None, {});
  }
  [[nodiscard]] Texts logged(std::string_view what, std::string_view field) const {
    Texts texts;
    for (const LogEntry& entry : run.machine.log.entries()) {
      if (entry.what == what) texts.push_back(std::get<std::string>(*entry.find(field)));
    }
    return texts;
  }
  [[nodiscard]] Texts spoken() const { return logged("speak", "text"); }
  [[nodiscard]] std::string redText(const Surface& surface) const {
    std::string red;
    for (const StyledRun& each : surface.runs()) {
      if (each.style.color == Red) {
        red += surface.Text().substr(static_cast<std::size_t>(each.from),
                                     static_cast<std::size_t>(each.to - each.from));
      }
    }
    return red;
  }

  ProgramRun run;
  Surface& Rchon = run.controls().Rchon;
  Surface& RHD = run.controls().RHD;
};

/// The first byte of each sentence in the two texts, as records of their streams.
constexpr std::int32_t FirstSentence = 8;
constexpr std::int32_t SecondSentence = 30;

// -- Adding.

TEST_F(VocabularyTest, EnterOnAWordAddsItWithItsSentence) {
  run.start();
  openText();
  add("bank");
  add("here");
  EXPECT_EQ(run.number("SoTuVung"), 2);
  EXPECT_TRUE(run.flag("DaDoiTuVung"));
  EXPECT_EQ(run.text("ThongBaoHD"), "Hai.");
  leaveText();
  EXPECT_EQ(run.folder.read("data.c"),
            record("bank", FirstSentence) + record("here", SecondSentence));
  EXPECT_FALSE(run.flag("DaDoiTuVung"));
}

TEST_F(VocabularyTest, AdditionsReachTheDiskWhenTheSectionIsLeft) {
  run.start();
  openText();
  add("bank");
  EXPECT_EQ(run.folder.read("data.c"), "");
  run.key(key::Esc);
  EXPECT_EQ(run.folder.read("data.c"), "");
  run.key(key::Esc);
  EXPECT_EQ(run.folder.read("data.c"), record("bank", FirstSentence));
}

TEST_F(VocabularyTest, AWordOfASpeakingTextHasItsPlaceNegated) {
  run.start();
  openText(7);
  add("river");
  leaveText();
  EXPECT_EQ(run.folder.read("data.c"), record("river", -7));
}

TEST_F(VocabularyTest, OnlyAWordThatBeginsWithACapitalIKeepsItsCapitals) {
  run.start();
  openText();
  add("The");
  add("It's");
  leaveText();
  EXPECT_EQ(run.folder.read("data.c"),
            record("the", FirstSentence) + record("It's", SecondSentence));
}

TEST_F(VocabularyTest, TwentyCharactersFitAndTwentyOneDoNot) {
  run.start();
  openText();
  add("abcdefghijklmnopqrst");
  EXPECT_EQ(run.number("SoTuVung"), 1);
  add("bcdefghijklmnopqrstuv");
  EXPECT_EQ(run.number("SoTuVung"), 1);
  EXPECT_EQ(run.text("TuHienTai"), "bcdefghijklmnopqrstuv");
}

TEST_F(VocabularyTest, AWordThatIsThereInAnyCaseIsRefusedSilently) {
  run.folder.write("data.c", record("Bank", 1));
  run.start();
  openText();
  add("bank");
  EXPECT_EQ(run.number("SoTuVung"), 1);
  EXPECT_FALSE(run.flag("DaDoiTuVung"));
  EXPECT_EQ(logged("message", "text"), Texts{});
}

TEST_F(VocabularyTest, ASentenceIsNotAdded) {
  run.start();
  openText();
  run.doubleClick(run.controls().R2, 15);
  run.key(key::Enter);
  EXPECT_EQ(run.number("SoTuVung"), 0);
}

// -- The list.

TEST_F(VocabularyTest, AnEmptyListIsToldOfForTwoSecondsAndTheSectionLeft) {
  openList("");
  EXPECT_FALSE(Rchon.Visible());
  EXPECT_FALSE(run.controls().R1.Visible());
  EXPECT_FALSE(run.controls().Frame1.Visible());
  static_cast<void>(run.machine.log.take());
  run.clickButton(2);
  EXPECT_EQ(logged("message", "text"),
            Texts{std::string("Bän chŸa chön tÙ vÜng trong bài ðöc."_bytes)});
}

TEST_F(VocabularyTest, AWordIsALineWithItsNumber) {
  openList(record("bank", 1) + record("go", 2));
  EXPECT_EQ(Rchon.Text(), "1\t\tbank\r2\t\tgo\r");
  EXPECT_EQ(run.text("CauHoi"), Rchon.Text());
  EXPECT_EQ(Rchon.BackColor(), 0x80000000U);
  EXPECT_EQ(Rchon.SelStart(), 0);
  EXPECT_EQ(run.focus(), "Rchon");
  EXPECT_EQ(run.number("MucMenu"), 2);
  for (const StyledRun& each : Rchon.runs())
    EXPECT_EQ(each.style.color, 0x750000U);
}

TEST_F(VocabularyTest, AClickMarksTheWordOfItsRowAndLooksItUp) {
  openList(record("bank", 1) + record("go", 2) + record("river", 3));
  run.click(Rchon, caretOf("go"));
  EXPECT_EQ(Rchon.SelText(), "go");
  EXPECT_TRUE(RHD.Visible());
  EXPECT_EQ(RHD.Text().substr(0, 2), "go");
  EXPECT_EQ(spoken(), (Texts{"go", "go"}));
  run.click(Rchon, 0);
  EXPECT_EQ(Rchon.SelText(), "bank");
  EXPECT_EQ(run.text("TuHienTai"), "bank");
  EXPECT_EQ(run.number("ViTriCaret"), 3);
}

TEST_F(VocabularyTest, AClickOnALineEndTakesTheRowItEnds) {
  openList(record("bank", 1) + record("go", 2));
  run.click(Rchon, caretOf("\r"));
  EXPECT_EQ(Rchon.SelText(), "bank");
  run.click(Rchon, caretOf("2"));
  EXPECT_EQ(Rchon.SelText(), "go");
}

TEST_F(VocabularyTest, ARightClickSpeaksTheWordAtHand) {
  openList(record("bank", 1) + record("go", 2));
  run.click(Rchon, caretOf("go"));
  static_cast<void>(run.machine.log.take());
  run.click(Rchon, 0, MouseButton::Right);
  EXPECT_EQ(spoken(), (Texts{"go", "go"}));
}

TEST_F(VocabularyTest, ALetterOpensTheLookUpList) {
  openList(record("bank", 1));
  run.type('r');
  EXPECT_TRUE(run.controls().RTD.Visible());
}

TEST_F(VocabularyTest, TheArrowsWalkTheList) {
  openList(record("bank", 1) + record("go", 2));
  run.key(key::Down);
  EXPECT_EQ(Rchon.SelText(), "go");
  run.key(key::Up);
  EXPECT_EQ(Rchon.SelText(), "bank");
}

TEST_F(VocabularyTest, EscLeavesAtOnceAlsoWithThePopupUp) {
  openList(record("bank", 1));
  run.click(Rchon, 3);
  ASSERT_TRUE(RHD.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(RHD.Visible());
  EXPECT_FALSE(Rchon.Visible());
  EXPECT_FALSE(run.controls().Frame1.Visible());
  EXPECT_EQ(run.focus(), "but2");
  EXPECT_FALSE(run.flag("DaNapDanhSach"));
}

TEST_F(VocabularyTest, AClickBelowTheLastRowTakesNoWord) {
  openList(record("bank", FirstSentence));
  run.click(Rchon, 3);
  run.doubleClick(Rchon, Rchon.TextLength());
  EXPECT_EQ(run.text("TuHienTai"), "");
  EXPECT_EQ(run.text("ChuoiCau"), "");
  EXPECT_FALSE(RHD.Visible());
  run.click(Rchon, 3);
  EXPECT_EQ(redText(RHD), "bank") << "a word again, not a sentence";
}

// -- A word in its sentence.

TEST_F(VocabularyTest, ADoubleClickShowsTheSentenceWithTheWordInRed) {
  openList(record("bank", FirstSentence) + record("go", FirstSentence));
  run.doubleClick(Rchon, 3);
  EXPECT_EQ(run.text("ChuoiCau"), "The old bank, I go. ");
  EXPECT_EQ(RHD.Text(), "The old bank, I go. ");
  EXPECT_EQ(redText(RHD), " bank");
  EXPECT_EQ(RHD.BackColor(), 0x750000U);
  EXPECT_TRUE(run.controls().Rnen.Visible());
  EXPECT_EQ(spoken().back(), "the old bank, i go. ");
  EXPECT_FALSE(run.flag("XemCauTuVung"));
  run.click(Rchon, caretOf("go"));
  EXPECT_EQ(RHD.Text().substr(0, 2), "go") << "a click shows the entry again";
}

TEST_F(VocabularyTest, TheWordIsFoundInSixForms) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"We go on", " go"},     {"We can go. Now", " go"}, {"We go, and", " go"},
      {"Ago we went", "go "},  {"We went go", " go"},     {"He said \"go!\"", "\"go"},
      {"Go go go", " go"},     {"Going on", ""},          {"Nothing of it", ""},
      {"They are gone", " go"}};
  for (const auto& [sentence, red] : cases) {
    ProgramRun other;
    other.writeTexts({{1, "T\r_" + sentence + "_x", ""}});
    other.folder.write("data.c", record("go", 4));
    other.start();
    other.clickButton(2);
    other.doubleClick(other.controls().Rchon, 3);
    EXPECT_EQ(redText(other.controls().RHD), red) << sentence;
  }
}

TEST_F(VocabularyTest, AWordOfASpeakingTextIsReadBackFromThere) {
  openList(record("river", -7));
  run.doubleClick(Rchon, 3);
  EXPECT_EQ(RHD.Text(), "A river here.");
  EXPECT_EQ(redText(RHD), " river");
}

TEST_F(VocabularyTest, ASentenceEndsAtItsMarkAndHasNeitherTabsNorBars) {
  run.writeTexts({{1, "T\r_\tOne|two\tthree`four", ""}, {2, "U\r_five\xBCsix", ""}});
  openList(record("two", 4) + record("five", 27));
  run.doubleClick(Rchon, 3);
  EXPECT_EQ(run.text("ChuoiCau"), "One twothree");
  run.doubleClick(Rchon, caretOf("five"));
  EXPECT_EQ(run.text("ChuoiCau"), "five") << "one byte holds two marks";
}

TEST_F(VocabularyTest, APlaceOutsideTheFileShowsNoSentence) {
  openList(record("bank", 1'000'000));
  run.doubleClick(Rchon, 3);
  EXPECT_EQ(run.text("ChuoiCau"), "");
  EXPECT_FALSE(RHD.Visible());
  EXPECT_FALSE(run.flag("XemCauTuVung"));
  run.click(Rchon, 3);
  EXPECT_EQ(redText(RHD), "bank");
}

// -- Deleting.

TEST_F(VocabularyTest, ADragOverARowAsksAndDeletesIt) {
  openList(record("bank", 1) + record("go", 2) + record("river", 3));
  run.machine.boxes.answer(BoxAnswer::Yes);
  drag(caretOf("2"), caretOf("go") + 2);
  EXPECT_EQ(logged("box", "text"), Texts{"Xoa tu vung 2 khong?"});
  EXPECT_EQ(logged("box", "default"), Texts{"no"});
  EXPECT_EQ(run.folder.read("data.c"), record("bank", 1) + record("river", 3));
  EXPECT_EQ(Rchon.Text(), "1\t\tbank\r2\t\triver\r");
  EXPECT_EQ(run.focus(), "Rchon");
}

TEST_F(VocabularyTest, ADragOverRowsDeletesThemAll) {
  openList(record("bank", 1) + record("go", 2) + record("river", 3));
  run.machine.boxes.answer(BoxAnswer::Yes);
  drag(caretOf("2"), Rchon.TextLength() - 1);
  EXPECT_EQ(logged("box", "text"), Texts{"Xoa cac tu vung 2 - 3 khong?"});
  EXPECT_EQ(run.folder.read("data.c"), record("bank", 1));
}

TEST_F(VocabularyTest, NoIsTheDefaultAndChangesNothing) {
  openList(record("bank", 1) + record("go", 2));
  drag(0, 6);
  EXPECT_EQ(logged("box", "answer"), Texts{"no"});
  EXPECT_EQ(run.folder.read("data.c"), record("bank", 1) + record("go", 2));
  EXPECT_EQ(Rchon.Text(), "1\t\tbank\r2\t\tgo\r");
}

TEST_F(VocabularyTest, DeletingAllRowsLeavesTheFileEmptyAndTheSection) {
  openList(record("bank", 1) + record("go", 2));
  run.machine.boxes.answer(BoxAnswer::Yes);
  drag(0, Rchon.TextLength() - 1);
  EXPECT_EQ(run.folder.read("data.c"), "");
  EXPECT_FALSE(Rchon.Visible());
  EXPECT_EQ(run.focus(), "but2");
}

TEST_F(VocabularyTest, ADragWithinAWordDeletesNothing) {
  openList(record("bank", 1));
  drag(3, 6);
  EXPECT_EQ(logged("box", "text"), Texts{});
  EXPECT_EQ(Rchon.SelText(), "bank");
}

// -- A list that cannot be written.

TEST_F(VocabularyTest, AListThatCannotBeWrittenIsToldOfAndKeptUntilItCan) {
  run.start();
  openText();
  add("bank");
  run.files.failAlways();
  leaveText();
  EXPECT_EQ(logged("box", "text"),
            Texts{std::string("ChŸa ghi ðŸ¢c tÙ vÜng vào ðña. ChŸ×ng trình giØ các tÙ và sç ghi "
                              "läi sau."_bytes)});
  EXPECT_EQ(logged("message", "text"), Texts{}) << "the window is not held up";
  run.clickButton(2);
  EXPECT_EQ(Rchon.Text(), "1\t\tbank\r");
  run.key(key::Esc);
  run.files.failNever();
  openText();
  leaveText();
  EXPECT_EQ(run.folder.read("data.c"), record("bank", FirstSentence));
}

TEST_F(VocabularyTest, AWordWithADigitIsShownAndHeardLikeAnyOther) {
  openList(record("mp3", 1));
  const int caret = static_cast<int>(Rchon.Text().find("mp3")) + 1;
  run.click(Rchon, caret);
  ASSERT_EQ(Rchon.SelText(), "mp3");
  run.machine.log.take();
  // The word stays selected; the next release over it must not ask whether to delete it.
  run.click(Rchon, caret, MouseButton::Right);
  EXPECT_EQ(run.machine.log.count("box"), 0);
  EXPECT_EQ(run.machine.log.count("speak"), 2);
}

TEST(CoSoVaChuTest, NeedsADigitAndASmallLetter) {
  EXPECT_TRUE(CoSoVaChu("1\t\tbank"));
  EXPECT_TRUE(CoSoVaChu("nk\r2\t\tb"));
  EXPECT_FALSE(CoSoVaChu("b1")) << "a digit of the word itself";
  EXPECT_FALSE(CoSoVaChu("bank"));
  EXPECT_FALSE(CoSoVaChu("12"));
  EXPECT_FALSE(CoSoVaChu("1 BANK"));
  EXPECT_FALSE(CoSoVaChu(""));
}

} // namespace
} // namespace talvora
