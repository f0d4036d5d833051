// Held keys and struck keys, as a window server reports them.
#include "desktop/AutoRepeat.h"

#include <QApplication>
#include <QWindow>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace talvora {
namespace {

using Strokes = std::vector<std::string>;

/// A window that writes down what keys it gets; "!" marks a repeated one.
class Listener final : public QWindow {
 public:
  Strokes strokes;

 protected:
  void keyPressEvent(QKeyEvent* event) override { note("press ", *event); }
  void keyReleaseEvent(QKeyEvent* event) override { note("release ", *event); }

 private:
  void note(const std::string& motion, const QKeyEvent& event) {
    strokes.push_back(motion + event.text().toStdString() + (event.isAutoRepeat() ? "!" : ""));
  }
};

class AutoRepeatTest : public testing::Test {
 protected:
  AutoRepeatTest() { QCoreApplication::instance()->installEventFilter(&repeats); }

  void send(QEvent::Type type, char character, unsigned long ms) {
    QKeyEvent event(type, character, Qt::NoModifier, QString(QLatin1Char(character)));
    event.setTimestamp(ms);
    QCoreApplication::sendEvent(&window, &event);
  }
  void press(char character, unsigned long ms) { send(QEvent::KeyPress, character, ms); }
  void release(char character, unsigned long ms) { send(QEvent::KeyRelease, character, ms); }
  /// Lets events run until so many strokes have come.
  void waitFor(std::size_t count) {
    while (window.strokes.size() < count)
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }

  Listener window;
  AutoRepeat repeats;
};

TEST_F(AutoRepeatTest, AReleaseAndAPressOfTheSameMomentAreARepeatedPress) {
  press('A', 100);
  for (const unsigned long ms : {700UL, 740UL, 780UL}) {
    release('A', ms);
    press('A', ms);
  }
  release('A', 800);
  waitFor(5);
  EXPECT_EQ(window.strokes, (Strokes{"press A", "press A!", "press A!", "press A!", "release A"}));
}

TEST_F(AutoRepeatTest, AReleaseAloneComesAMomentLater) {
  press('A', 100);
  release('A', 150);
  EXPECT_EQ(window.strokes, Strokes{"press A"});
  waitFor(2);
  EXPECT_EQ(window.strokes.back(), "release A");
}

TEST_F(AutoRepeatTest, AStrokeOfAnotherMomentOrKeyPassesTheReleaseOnFirst) {
  press('A', 100);
  release('A', 150);
  press('A', 151);
  release('A', 200);
  press('B', 200);
  EXPECT_EQ(window.strokes, (Strokes{"press A", "release A", "press A", "release A", "press B"}));
}

TEST_F(AutoRepeatTest, StrokesWithoutAMomentAreStrokes) {
  press('A', 0);
  release('A', 0);
  press('A', 0);
  EXPECT_EQ(window.strokes, (Strokes{"press A", "release A", "press A"}));
}

TEST_F(AutoRepeatTest, AClickComesBehindTheReleaseAheadOfIt) {
  press('A', 100);
  release('A', 150);
  QMouseEvent click(QEvent::MouseButtonPress, {}, {}, Qt::LeftButton, Qt::LeftButton, {});
  QCoreApplication::sendEvent(&window, &click);
  EXPECT_EQ(window.strokes, (Strokes{"press A", "release A"}));
}

TEST_F(AutoRepeatTest, AWindowThatGoesTakesItsReleaseAlong) {
  auto other = std::make_unique<Listener>();
  QKeyEvent event(QEvent::KeyRelease, Qt::Key_A, Qt::NoModifier);
  QCoreApplication::sendEvent(other.get(), &event);
  other.reset();
  press('B', 10);
  EXPECT_EQ(window.strokes, Strokes{"press B"});
}

} // namespace
} // namespace talvora

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
