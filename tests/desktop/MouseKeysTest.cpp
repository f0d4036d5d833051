// Keys that do a mouse's work: lines of the vocabulary that are marked and deleted, and what the
// window says of such keys.
#include "fronts/MouseKeys.h"
#include "fronts/KeyHelp.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/ProgramControls.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace talvora {
namespace {

class MouseKeysTest : public testing::Test {
 protected:
  MouseKeysTest() {
    Rchon.Width(9000);
    Rchon.Height(6000);
    Rchon.FontSize(16);
    Rchon.Visible(true);
    Rchon.Text("1\t\tbank\r2\t\tboy\r3\t\triver\r");
    Rchon.SetFocus();
    // The page marks the word of the caret's line whenever something over it is closed.
    Rchon.MouseDown = [this](MouseButton, int, SurfacePoint) { markWord(); };
    Rchon.KeyUp = [this](int&, int) { markWord(); };
    Rchon.MouseUp = [this](MouseButton, int, SurfacePoint) { released.push_back(Rchon.SelText()); };
    Rchon.SelStart(caretOf("boy"));
    markWord();
  }

  void press(int keyCode, int shift = shift::None) {
    if (!keys.press(keyCode, shift, false)) input.pressKey(keyCode, shift, '\0');
  }
  void release(int keyCode) {
    if (!keys.release(keyCode)) input.releaseKey(keyCode, shift::None);
  }
  void strike(int keyCode, int shift = shift::None) {
    press(keyCode, shift);
    release(keyCode);
  }

  [[nodiscard]] int caretOf(const std::string& word) const {
    return static_cast<int>(Rchon.Text().find(word));
  }

  ScriptedMachine machine{ScriptedOptions{}};
  Form form{machine.screen, machine.metrics};
  ProgramControls controls{form, machine.layout};
  FormInput input{form};
  MouseKeys keys{form, input, [](const std::function<void()>& deed) { deed(); }};
  Surface& Rchon{controls.Rchon};
  std::vector<std::string> released; ///< what was selected at each release of the mouse

 private:
  void markWord() {
    const int start = Rchon.paragraphStart(Rchon.paragraphOf(Rchon.SelStart())) + 3;
    const auto end = Rchon.Text().find('\r', static_cast<std::size_t>(start));
    Rchon.SelStart(start);
    Rchon.SelLength(static_cast<int>(end) - start);
  }
};

TEST_F(MouseKeysTest, DeleteIsADragAcrossTheLineOfTheCaret) {
  strike(key::Delete);
  EXPECT_EQ(released, std::vector<std::string>{"2\t\tboy"});
}

TEST_F(MouseKeysTest, LinesMarkedWithShiftStayMarkedUntilTheyAreDeleted) {
  press(key::Shift, shift::Shift);
  strike(key::Down, shift::Shift);
  release(key::Shift);
  EXPECT_NE(Rchon.SelText().find("3\t\t"), std::string::npos);
  strike(key::Delete);
  EXPECT_EQ(released, std::vector<std::string>{"2\t\tboy\r3\t\triver"});
}

TEST_F(MouseKeysTest, MarkedLinesAreDeletedByARightClickToo) {
  strike(key::Up, shift::Shift);
  strike(key::F10, shift::Shift);
  EXPECT_EQ(released, std::vector<std::string>{"1\t\tbank\r2\t\tboy"});
}

TEST_F(MouseKeysTest, WithoutMarkedLinesARightClickIsOne) {
  strike(key::Menu);
  EXPECT_EQ(released, std::vector<std::string>{"boy"});
}

TEST_F(MouseKeysTest, TheShiftOfARightClickIsNoneForTheAnswer) {
  KeyTable down;
  down.press(key::Shift);
  down.press(key::Ctrl);
  press(key::Shift, shift::Shift);
  EXPECT_EQ(keys.shiftDown(down), shift::Shift | shift::Ctrl);
  strike(key::F10, shift::Shift);
  EXPECT_EQ(keys.shiftDown(down), shift::Ctrl);
  release(key::Shift);
  EXPECT_EQ(keys.shiftDown(down), shift::Shift | shift::Ctrl);
}

TEST_F(MouseKeysTest, BehindTheLastLineThereIsNothingToDelete) {
  Rchon.SelStart(Rchon.TextLength());
  press(key::Delete);
  EXPECT_TRUE(released.empty());
}

TEST_F(MouseKeysTest, LinesOutOfViewAreReached) {
  Rchon.Height(machine.layout.heightOf(Rchon.paragraph(0).view()));
  Rchon.SelStart(caretOf("bank"));
  strike(key::Down, shift::Shift);
  strike(key::Down, shift::Shift);
  strike(key::Delete);
  EXPECT_EQ(released, std::vector<std::string>{"1\t\tbank\r2\t\tboy\r3\t\triver"});
}

TEST_F(MouseKeysTest, ElsewhereDeleteIsThePages) {
  controls.R2.Visible(true);
  controls.R2.SetFocus();
  EXPECT_FALSE(keys.press(key::Delete, shift::None, false));
}

// -- What the window says of them.

TEST_F(MouseKeysTest, NothingIsSaidUntilTheHintsAreCalledUp) {
  EXPECT_TRUE(keyHelp(form).empty());
  controls.RDOS.Top(600);
  controls.RDOS.Visible(true);
  EXPECT_TRUE(keyHelp(form).empty()) << "a word or a reminder";
}

TEST_F(MouseKeysTest, TheHintsOfAPageNameTheKeysOfTheWindow) {
  controls.RDOS.Top(0);
  controls.RDOS.Visible(true);
  EXPECT_NE(keyHelp(form).find(u"Delete"), std::u16string_view::npos);
  controls.R2.Visible(true);
  controls.R2.SetFocus();
  EXPECT_NE(keyHelp(form).find(u"Chuột giữa: Enter"), std::u16string_view::npos);
  EXPECT_EQ(keyHelp(form).find(u"Delete"), std::u16string_view::npos);
}

TEST_F(MouseKeysTest, AnExplanationThatNamesALessonTellsOfTab) {
  controls.RHDBT.Text("see the lesson");
  controls.RHDBT.Visible(true);
  EXPECT_TRUE(keyHelp(form).empty());
  controls.RHDBT.format({8, 14}, {.italic = true});
  EXPECT_TRUE(keyHelp(form).starts_with(u"Tab"));
}

} // namespace
} // namespace talvora
