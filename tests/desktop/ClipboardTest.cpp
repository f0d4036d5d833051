// The clipboard, which no text of a page may leave.
#include "desktop/DesktopDesk.h"

#include <QClipboard>
#include <QGuiApplication>
#include <gtest/gtest.h>

namespace talvora {
namespace {

TEST(DesktopClipboard, LosesWhateverIsOnIt) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  DesktopClipboard desk;
  for (const char* text : {"before the first key", "later", "later still"}) {
    clipboard.setText(QLatin1String(text));
    desk.clear();
    EXPECT_EQ(clipboard.text(), QString()) << text;
    desk.clear();
  }
}

} // namespace
} // namespace talvora
