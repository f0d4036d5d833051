// The text on `R2`: what clicks and keys do to it, with a real dictionary behind.
#include "dictionary/DictionaryRun.h"
#include "support/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ProgramRun;

class OpenPage : public testing::Test {
 protected:
  OpenPage() {
    run.writeTexts(
        {{1, "Title\r_\tOne bank here, now. _Two banks there.\r", "_Mot cau._Hai cau."}});
    test::writeWordFiles(
        run.folder,
        test::withLetterLines(
            {{"bank", "_money"}, {"boat", "_ship"}, {"here", "_place"}, {"now", "_time"}}));
    run.folder.writeIntegers("data.Kcu", {0, 1});
    run.start();
    run.clickButton(1);
    run.controls().RDOS.Visible(false);
    run.controls().R1.SelStart(0);
    run.key(key::Enter);
    forgetLog();
  }

  /// The caret in the middle of a word of the text.
  [[nodiscard]] int at(const std::string& word) const {
    return static_cast<int>(R2.Text().find(word) + word.size() / 2);
  }
  void forgetLog() { static_cast<void>(run.machine.log.take()); }
  [[nodiscard]] std::vector<std::string> spoken() const {
    std::vector<std::string> texts;
    for (const LogEntry& entry : run.machine.log.entries()) {
      if (entry.what == "speak") texts.push_back(std::get<std::string>(*entry.find("text")));
    }
    return texts;
  }
  void clickWord(const std::string& word) { run.click(R2, at(word)); }
  void rightClick() { run.click(R2, R2.SelStart(), MouseButton::Right); }
  void press(int keyCode, char character) { run.form().pressKey(keyCode, shift::None, character); }
  void release(int keyCode) { run.form().releaseKey(keyCode, shift::None); }

  ProgramRun run;
  Surface& R2 = run.controls().R2;
  Surface& RHD = run.controls().RHD;
  Surface& RTD = run.controls().RTD;
};

// -- Words.

TEST_F(OpenPage, AClickLooksAWordUpAndSavesPointerAndCaret) {
  clickWord("bank");
  EXPECT_EQ(R2.SelText(), "bank");
  EXPECT_EQ(RHD.Text(), "bank \r - money\r");
  EXPECT_EQ(run.number("ViTriCaret"), at("bank"));
  EXPECT_THAT(spoken(), testing::ElementsAre("bank", "bank"));
}

TEST_F(OpenPage, AClickTellsThePageOfFourThings) {
  int told = 0;
  const auto count = [&told](auto& event) {
    if (!event) return;
    event = [&told, before = event](auto&&... values) {
      ++told;
      before(values...);
    };
  };
  count(R2.MouseMove);
  count(R2.MouseDown);
  count(R2.MouseUp);
  count(R2.Click);
  Notification before = R2.SelChange;
  R2.SelChange = [&] {
    ++told;
    before.tell();
  };
  clickWord("bank");
  // The pointer's move, the caret that the press places, the release, the word that it takes.
  EXPECT_EQ(told, 4);
  EXPECT_EQ(R2.SelText(), "bank");
}

TEST_F(OpenPage, AClickWithoutAWordDoesNothing) {
  // The blank behind the point of a sentence that goes on.
  run.click(R2, static_cast<int>(R2.Text().find("now.")) + 4);
  EXPECT_FALSE(RHD.Visible());
  EXPECT_EQ(run.text("TuHienTai"), "");
  EXPECT_TRUE(spoken().empty());
}

TEST_F(OpenPage, ARightClickSaysTheClickedWordAgain) {
  clickWord("banks");
  EXPECT_EQ(run.text("TuHienTai"), "bank");
  forgetLog();
  rightClick();
  EXPECT_EQ(run.text("TuHienTai"), "banks");
  EXPECT_THAT(spoken(), testing::ElementsAre("banks", "banks"));
}

TEST_F(OpenPage, ARightClickWithoutAWordSaysNothing) {
  rightClick();
  EXPECT_TRUE(spoken().empty());
}

TEST_F(OpenPage, AWordGoesWithTheSelection) {
  clickWord("bank");
  R2.SelStart(3);
  EXPECT_EQ(run.text("TuHienTai"), "");
}

TEST_F(OpenPage, AClickBehindASentenceShowsTheWordAgain) {
  run.doubleClick(R2, at("bank"));
  ASSERT_EQ(RHD.Text(), "Mot cau.");
  // The pointer has not moved since.
  const SurfacePoint point = R2.pointOf(at("bank"));
  R2.pressMouse(MouseButton::Left, shift::None, point);
  R2.SelStart(at("bank"));
  R2.releaseMouse(MouseButton::Left, shift::None, point);
  EXPECT_EQ(RHD.Text(), "bank \r - money\r");
  EXPECT_EQ(RHD.BackColor(), run.number("MauNenHD")) << "an entry cannot be read on dark blue";
}

// -- Sentences.

TEST_F(OpenPage, ADoubleClickTakesTheSentence) {
  run.doubleClick(R2, at("bank"));
  EXPECT_EQ(R2.SelText(), "One bank here, now. ");
  EXPECT_EQ(run.text("TuHienTai"), "One bank here, now");
  EXPECT_EQ(RHD.Text(), "Mot cau.");
  EXPECT_FALSE(run.flag("CoDupChuot"));
  EXPECT_THAT(spoken(), testing::Contains("one bank here, now"));
}

TEST_F(OpenPage, ADoubleClickOnASentencesFirstWordTakesThatSentence) {
  run.doubleClick(R2, at("Two"));
  EXPECT_EQ(R2.SelText(), "Two banks there.");
  EXPECT_EQ(RHD.Text(), "Hai cau.");
}

TEST_F(OpenPage, ARightClickSaysTheSentenceAgain) {
  run.doubleClick(R2, at("bank"));
  forgetLog();
  rightClick();
  EXPECT_THAT(spoken(), testing::ElementsAre("one bank here, now"));
}

TEST_F(OpenPage, SpaceShowsTheSentenceWhileItIsHeld) {
  R2.SelStart(at("Two"));
  press(key::Space, ' ');
  EXPECT_TRUE(run.flag("GiuSpace"));
  EXPECT_EQ(R2.SelText(), "Two banks there.");
  EXPECT_EQ(RHD.Text(), "Hai cau.");
  forgetLog();
  press(key::Space, ' ');
  EXPECT_TRUE(spoken().empty()) << "the key repeats";
  R2.moveMouse(shift::None, {0, 0});
  EXPECT_TRUE(RHD.Visible()) << "the pointer may wander";
  const int caret = at("Two");
  release(key::Space);
  EXPECT_FALSE(run.flag("GiuSpace"));
  EXPECT_FALSE(run.flag("CoDupChuot"));
  EXPECT_FALSE(RHD.Visible());
  EXPECT_EQ(R2.SelLength(), 0);
  EXPECT_EQ(R2.SelStart(), caret);
}

TEST_F(OpenPage, SpaceIsForgottenWhenItsReleaseGoesElsewhere) {
  R2.SelStart(at("Two"));
  press(key::Space, ' ');
  press('A', 'a');
  release('A');
  ASSERT_TRUE(RTD.Visible());
  release(key::Space);
  EXPECT_FALSE(run.flag("GiuSpace"));
  EXPECT_FALSE(run.flag("CoDupChuot"));
}

TEST_F(OpenPage, SpaceOnTheTitleShowsNoTranslation) {
  R2.SelStart(3);
  press(key::Space, ' ');
  EXPECT_EQ(R2.SelText(), "Title");
  EXPECT_EQ(run.text("ThongBaoHD"), "");
  EXPECT_FALSE(RHD.Visible()) << "the dictionary does not have it either";
  release(key::Space);
  EXPECT_EQ(R2.SelStart(), 3);
}

// -- Keys.

TEST_F(OpenPage, RightAndLeftStepByWord) {
  R2.SelStart(at("One"));
  run.key(key::Right);
  EXPECT_EQ(R2.SelStart(), static_cast<int>(R2.Text().find("bank")));
  run.key(key::Right);
  run.key(key::Right);
  EXPECT_EQ(R2.SelStart(), static_cast<int>(R2.Text().find(" now")) + 1);
  run.key(key::Left);
  EXPECT_EQ(R2.SelStart(), static_cast<int>(R2.Text().find("here")));
  run.key(key::Left);
  EXPECT_EQ(R2.SelStart(), static_cast<int>(R2.Text().find("bank")));
}

TEST_F(OpenPage, RightPassesTheMarkOfTheNextSentence) {
  R2.SelStart(at("now"));
  run.key(key::Right);
  EXPECT_EQ(R2.SelStart(), static_cast<int>(R2.Text().find("Two")));
  run.key(key::Left);
  EXPECT_EQ(R2.SelStart(), static_cast<int>(R2.Text().find("Two")) - 1) << "ahead of the mark";
  run.key(key::Left);
  EXPECT_EQ(R2.SelStart(), static_cast<int>(R2.Text().find("now")));
}

TEST_F(OpenPage, AKeyReleaseClosesThePopup) {
  clickWord("bank");
  ASSERT_TRUE(RHD.Visible());
  run.key(key::F2);
  EXPECT_FALSE(RHD.Visible());
  EXPECT_EQ(run.text("NghiaHienTai"), "");
}

TEST_F(OpenPage, AKeyReleaseClosesThePopupAlsoBehindAPickFromTheList) {
  run.type('b');
  run.key(key::Enter);
  ASSERT_EQ(run.focus(), "RHD");
  run.key(key::Esc);
  ASSERT_EQ(run.focus(), "R2");
  clickWord("here");
  ASSERT_TRUE(RHD.Visible());
  run.key(key::Right);
  EXPECT_FALSE(RHD.Visible());
}

TEST_F(OpenPage, EscClosesThePopupAheadOfTheText) {
  clickWord("bank");
  run.key(key::Esc);
  EXPECT_FALSE(RHD.Visible());
  EXPECT_TRUE(R2.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(R2.Visible());
  EXPECT_EQ(run.focus(), "R1");
}

TEST_F(OpenPage, EnterTakesAWordAndNoSentence) {
  clickWord("bank");
  run.key(key::Enter);
  EXPECT_EQ(run.number("SoTuVung"), 1);
  run.doubleClick(R2, at("here"));
  run.key(key::Enter);
  EXPECT_EQ(run.number("SoTuVung"), 1);
}

TEST_F(OpenPage, EnterTellsWhatBecameOfTheWord) {
  using Taken = ScriptedNarrator::Taken;
  clickWord("bank");
  run.key(key::Enter);
  EXPECT_EQ(run.machine.narrator.lastTaken(), (Taken{"bank", WordTaken::Stored, 1}));
  clickWord("bank");
  run.key(key::Enter);
  EXPECT_EQ(run.machine.narrator.lastTaken(), (Taken{"bank", WordTaken::WasThere, 1}));
}

TEST_F(OpenPage, NoKeyChangesTheText) {
  const std::string before = R2.Text();
  for (const char character : std::string_view("1;\b\r "))
    run.type(character);
  EXPECT_EQ(R2.Text(), before);
}

// -- The way to the look-up list and back.

TEST_F(OpenPage, TheKeyboardComesBackFromTheListWhenAWordIsSelected) {
  clickWord("bank");
  run.type('b');
  ASSERT_EQ(run.focus(), "RTD");
  run.key(key::Esc);
  run.key(key::Esc);
  EXPECT_FALSE(RTD.Visible());
  EXPECT_EQ(run.focus(), "R2");
  EXPECT_EQ(R2.SelText(), "bank");
}

TEST_F(OpenPage, TheKeyboardAndTheCaretComeBackFromThePopupOfAPick) {
  clickWord("bank");
  run.type('b');
  run.type('o');
  run.key(key::Enter);
  ASSERT_EQ(run.focus(), "RHD");
  ASSERT_EQ(RHD.Text(), "boat \r - ship\r");
  run.key(key::Esc);
  EXPECT_FALSE(RHD.Visible());
  EXPECT_EQ(run.focus(), "R2");
  EXPECT_EQ(R2.SelLength(), 0) << "the word that was on show before is let go";
  EXPECT_EQ(R2.SelStart(), static_cast<int>(R2.Text().find("bank")));
}

TEST_F(OpenPage, TheKeyboardComesBackFromAPopupThatARightClickCloses) {
  clickWord("bank");
  RHD.SetFocus();
  RHD.pressMouse(MouseButton::Right, shift::None, {100, 100});
  EXPECT_FALSE(RHD.Visible()) << "the press closes it";
  RHD.releaseMouse(MouseButton::Right, shift::None, {100, 100});
  EXPECT_EQ(run.focus(), "R2");
}

} // namespace
} // namespace talvora
