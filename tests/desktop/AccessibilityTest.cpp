// What assistive technology gets to know of the form, and what it may do.
#include "desktop/Accessibility.h"
#include "desktop/DesktopMachine.h"
#include "desktop/EventBridge.h"
#include "desktop/FormView.h"
#include "desktop/InputGate.h"
#include "desktop/KeyCodes.h"
#include "desktop/Teller.h"
#include "desktop/Window.h"
#include "program/Program.h"
#include "program/ProgramControls.h"

#include "NoScreen.h"

#include <QAccessible>
#include <QApplication>
#include <gtest/gtest.h>

#include <memory>

namespace talvora {
namespace {

class OfferedForm : public ::testing::Test {
 protected:
  OfferedForm() {
    installAccessibility();
    QAccessible::setActive(true);
    for (Surface* surface : {&controls.R2, &controls.Rnen}) {
      surface->Width(9000);
      surface->Height(6000);
      surface->FontName("x1");
      surface->FontSize(20);
      surface->Visible(true);
    }
    controls.R2.Text("one\rtwo");
    Button& button = controls.but(12);
    button.Width(3000);
    button.Height(500);
    button.Top(7000);
    button.TabIndex(12);
    button.Caption("TENSE");
    button.Visible(true);
    window.resize(1024, 768);
    view.setGeometry(window.rect());
    view.setScale(1.0 / 15);
    window.show();
    form.Show();
    view.repaintNow();
  }

  [[nodiscard]] QAccessibleInterface* offered(const QString& name) {
    QAccessibleInterface* const parent = QAccessible::queryAccessibleInterface(&view);
    for (int each = 0; each < parent->childCount(); ++each) {
      if (parent->child(each)->text(QAccessible::Name) == name) return parent->child(each);
    }
    return nullptr;
  }

  NoScreen screen;
  QtTextMetrics metrics;
  QtLineLayout layout;
  Form form{screen, metrics};
  ProgramControls controls{form, layout};
  FormInput input{form};
  EventBridge bridge;
  QWidget window;
  FormView view{form, input, bridge, layout, &window};
};

TEST_F(OfferedForm, PagesHaveVietnameseNamesAndPlatesAreNotOffered) {
  ASSERT_NE(offered(QStringLiteral("Bài đọc")), nullptr);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&view)->childCount(), 2);
}

TEST_F(OfferedForm, LineEndsAreNewLines) {
  QAccessibleTextInterface* const text = offered(QStringLiteral("Bài đọc"))->textInterface();
  EXPECT_EQ(text->text(0, text->characterCount()), QStringLiteral("one\ntwo"));
}

TEST_F(OfferedForm, RunsTellTheirColourAndTheirLanguage) {
  controls.R2.Text("");
  controls.R2.SelColor(0x0000FF);
  controls.R2.SelText("read ");
  controls.R2.SelColor(0);
  controls.R2.SelText("\xE2");
  QAccessibleTextInterface* const text = offered(QStringLiteral("Bài đọc"))->textInterface();
  int from = -1;
  int to = -1;
  const QString english = text->attributes(1, &from, &to);
  EXPECT_EQ(from, 0);
  EXPECT_EQ(to, 5);
  EXPECT_TRUE(english.contains(QStringLiteral("language:en"))) << english.toStdString();
  const QString vietnamese = text->attributes(5, &from, &to);
  EXPECT_TRUE(vietnamese.contains(QStringLiteral("language:vi"))) << vietnamese.toStdString();
  EXPECT_NE(english.section(u';', 0, 0), vietnamese.section(u';', 0, 0));
}

TEST_F(OfferedForm, AButtonIsPressedThroughTheGate) {
  int clicks = 0;
  controls.but(12).Click = [&] { ++clicks; };
  KeyTable keys;
  InputGate gate(keys);
  qApp->installEventFilter(&gate);
  QAccessibleInterface* const button = offered(QStringLiteral("TENSE"));
  ASSERT_NE(button, nullptr);
  EXPECT_FALSE(button->text(QAccessible::Description).isEmpty());
  gate.shut();
  button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCoreApplication::processEvents();
  EXPECT_EQ(clicks, 0);
  gate.open();
  QCoreApplication::processEvents();
  EXPECT_EQ(clicks, 1);
}

TEST_F(OfferedForm, ACaretThatIsAskedForWaitsForTheGate) {
  KeyTable keys;
  InputGate gate(keys);
  qApp->installEventFilter(&gate);
  gate.shut();
  offered(QStringLiteral("Bài đọc"))->textInterface()->setCursorPosition(2);
  QCoreApplication::processEvents();
  EXPECT_EQ(controls.R2.SelStart(), 0);
  gate.open();
  QCoreApplication::processEvents();
  EXPECT_EQ(controls.R2.SelStart(), 2);
}

TEST_F(OfferedForm, ACaretThatIsAskedForInAListChoosesItsLine) {
  controls.R1.Text("one\rtwo\rthree");
  controls.R1.Visible(true);
  controls.R1.SetFocus();
  view.repaintNow();
  int chosenAt = -1;
  controls.R1.KeyUp = [&](int& KeyCode, int) {
    if (KeyCode == key::Down) chosenAt = controls.R1.SelStart();
  };
  offered(QStringLiteral("Danh sách bài"))->textInterface()->setCursorPosition(5);
  QCoreApplication::processEvents();
  EXPECT_EQ(chosenAt, 5);
}

TEST(Announcer, SaysWhatItWasTold) {
  QAccessible::setActive(true);
  QWidget window;
  Announcer announcer(&window);
  announcer.tell(QStringLiteral("  Đã lưu: street (5) "));
  EXPECT_EQ(announcer.accessibleName(), QStringLiteral("Đã lưu: street (5)"));
}

TEST(Announcer, AVerdictSaysHowManyPlacesAreRight) {
  DesktopNarrator narrator;
  QStringList said;
  narrator.say = [&](const QString& text) { said.append(text); };
  for (const Verdict verdict : {Verdict{1, 1}, Verdict{0, 1}, Verdict{1, 3}, Verdict{3, 3}})
    narrator.answerJudged(verdict);
  EXPECT_EQ(said.join(u'|').toStdString(), "Đúng|Chưa đúng|Đúng 1 trên 3 chỗ|Đúng");
}

TEST(Typing, NoInputMethodComposesInTheWindow) {
  DesktopMachine machine({1024, 768}, 1, ".");
  Program program(machine.platform, std::string("."));
  EventBridge bridge;
  Window window(machine, program, bridge);
  EXPECT_FALSE(window.testAttribute(Qt::WA_InputMethodEnabled));
  for (const QWidget* const child : window.findChildren<QWidget*>())
    EXPECT_FALSE(child->testAttribute(Qt::WA_InputMethodEnabled))
        << child->objectName().toStdString();
}

} // namespace
} // namespace talvora
