// Keys that do a mouse's work: lines of the vocabulary that are marked and deleted, and what the
// window says of such keys.
#include "desktop/MouseKeys.h"
#include "desktop/KeyHelp.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/ProgramControls.h"

#include <QKeyEvent>
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

  void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QKeyEvent event(QEvent::KeyPress, key, modifiers);
    if (keys.press(event)) return;
    const int shift = modifiers.testFlag(Qt::ShiftModifier) ? shift::Shift : shift::None;
    input.pressKey(codeOf(key), shift, '\0');
  }
  void release(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    const QKeyEvent event(QEvent::KeyRelease, key, modifiers);
    if (!keys.release(event)) input.releaseKey(codeOf(key), shift::None);
  }
  void strike(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    press(key, modifiers);
    release(key, modifiers);
  }

  [[nodiscard]] int caretOf(const std::string& word) const {
    return static_cast<int>(Rchon.Text().find(word));
  }

  ScriptedMachine machine{ScriptedOptions{}};
  Form form{machine.screen, machine.metrics};
  ProgramControls controls{form, machine.layout};
  EventBridge bridge;
  FormInput input{form};
  MouseKeys keys{form, input, bridge};
  Surface& Rchon{controls.Rchon};
  std::vector<std::string> released; ///< what was selected at each release of the mouse

 private:
  static int codeOf(int key) {
    switch (key) {
    case Qt::Key_Up:
      return key::Up;
    case Qt::Key_Down:
      return key::Down;
    case Qt::Key_Delete:
      return key::Delete;
    default:
      return key::Shift;
    }
  }
  void markWord() {
    const int start = Rchon.paragraphStart(Rchon.paragraphOf(Rchon.SelStart())) + 3;
    const auto end = Rchon.Text().find('\r', static_cast<std::size_t>(start));
    Rchon.SelStart(start);
    Rchon.SelLength(static_cast<int>(end) - start);
  }
};

TEST_F(MouseKeysTest, DeleteIsADragAcrossTheLineOfTheCaret) {
  strike(Qt::Key_Delete);
  EXPECT_EQ(released, std::vector<std::string>{"2\t\tboy"});
}

TEST_F(MouseKeysTest, LinesMarkedWithShiftStayMarkedUntilTheyAreDeleted) {
  press(Qt::Key_Shift, Qt::ShiftModifier);
  strike(Qt::Key_Down, Qt::ShiftModifier);
  release(Qt::Key_Shift);
  EXPECT_NE(Rchon.SelText().find("3\t\t"), std::string::npos);
  strike(Qt::Key_Delete);
  EXPECT_EQ(released, std::vector<std::string>{"2\t\tboy\r3\t\triver"});
}

TEST_F(MouseKeysTest, MarkedLinesAreDeletedByARightClickToo) {
  strike(Qt::Key_Up, Qt::ShiftModifier);
  strike(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(released, std::vector<std::string>{"1\t\tbank\r2\t\tboy"});
}

TEST_F(MouseKeysTest, WithoutMarkedLinesARightClickIsOne) {
  strike(Qt::Key_Menu);
  EXPECT_EQ(released, std::vector<std::string>{"boy"});
}

TEST_F(MouseKeysTest, TheShiftOfARightClickIsNoneForTheAnswer) {
  press(Qt::Key_Shift, Qt::ShiftModifier);
  EXPECT_FALSE(keys.shiftClicks());
  strike(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_TRUE(keys.shiftClicks());
  release(Qt::Key_Shift);
  EXPECT_FALSE(keys.shiftClicks());
}

TEST_F(MouseKeysTest, BehindTheLastLineThereIsNothingToDelete) {
  Rchon.SelStart(Rchon.TextLength());
  press(Qt::Key_Delete);
  EXPECT_TRUE(released.empty());
}

TEST_F(MouseKeysTest, LinesOutOfViewAreReached) {
  Rchon.Height(machine.layout.heightOf(Rchon.paragraph(0).view()));
  Rchon.SelStart(caretOf("bank"));
  strike(Qt::Key_Down, Qt::ShiftModifier);
  strike(Qt::Key_Down, Qt::ShiftModifier);
  strike(Qt::Key_Delete);
  EXPECT_EQ(released, std::vector<std::string>{"1\t\tbank\r2\t\tboy\r3\t\triver"});
}

TEST_F(MouseKeysTest, ElsewhereDeleteIsThePages) {
  controls.R2.Visible(true);
  controls.R2.SetFocus();
  const QKeyEvent event(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
  EXPECT_FALSE(keys.press(event));
}

// -- What the window says of them.

TEST_F(MouseKeysTest, NothingIsSaidUntilTheHintsAreCalledUp) {
  EXPECT_TRUE(keyHelp(form).isEmpty());
  controls.RDOS.Top(600);
  controls.RDOS.Visible(true);
  EXPECT_TRUE(keyHelp(form).isEmpty()) << "a word or a reminder";
}

TEST_F(MouseKeysTest, TheHintsOfAPageNameTheKeysOfTheWindow) {
  controls.RDOS.Top(0);
  controls.RDOS.Visible(true);
  EXPECT_TRUE(keyHelp(form).contains(QStringLiteral("Delete")));
  controls.R2.Visible(true);
  controls.R2.SetFocus();
  EXPECT_TRUE(keyHelp(form).contains(QStringLiteral("Chuột giữa: Enter")));
  EXPECT_FALSE(keyHelp(form).contains(QStringLiteral("Delete")));
}

TEST_F(MouseKeysTest, AnExplanationThatNamesALessonTellsOfTab) {
  controls.RHDBT.Text("see the lesson");
  controls.RHDBT.Visible(true);
  EXPECT_TRUE(keyHelp(form).isEmpty());
  controls.RHDBT.format({8, 14}, {.italic = true});
  EXPECT_TRUE(keyHelp(form).startsWith(QStringLiteral("Tab")));
}

} // namespace
} // namespace talvora
