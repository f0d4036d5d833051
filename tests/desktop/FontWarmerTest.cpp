// The letters that are made ready ahead of their first use: of which faces, in which styles.
#include "desktop/FontWarmer.h"
#include "desktop/Fonts.h"
#include "desktop/QtLineLayout.h"

#include "NoScreen.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <algorithm>

namespace talvora {
namespace {

constexpr double UsualScale = 1.0 / 15;

class FontWarmerTest : public ::testing::Test {
 protected:
  [[nodiscard]] bool isWarmed(const FontSpec& font, bool italic = false) const {
    const auto styles = stylesOf(controls);
    return std::any_of(styles.begin(), styles.end(), [&](const CharStyle& style) {
      return style.font == font && style.italic == italic;
    });
  }

  NoScreen screen;
  QtTextMetrics metrics;
  QtLineLayout layout;
  Form form{screen, metrics};
  ReadingControls controls{form, layout};
};

// With a face that is loaded later, all that is ready would be forgotten.
TEST_F(FontWarmerTest, NoFaceIsLoadedBehindIt) {
  FontWarmer warmer(layout.letters());
  warmer.warm(stylesOf(controls), UsualScale);
  const QSignalSpy loaded(qGuiApp, &QGuiApplication::fontDatabaseChanged);
  ASSERT_TRUE(loaded.isValid());
  for (const char* const name : {"x1", "Vni-centur"}) {
    for (const double size : {8.0, 40.0}) {
      for (const bool bold : {false, true}) {
        for (const bool italic : {false, true}) {
          CharStyle style;
          style.font = {name, size, bold};
          style.italic = italic;
          static_cast<void>(fontFor(style));
        }
      }
    }
  }
  EXPECT_EQ(loaded.count(), 0);
}

TEST_F(FontWarmerTest, ThePopupIsReadyAheadOfEveryPage) {
  controls.RHD.FontSize(19);
  EXPECT_TRUE(isWarmed({"x1", 19, false}));
  EXPECT_TRUE(isWarmed({"x1", 19, true}));
  EXPECT_TRUE(isWarmed({"x1", 19, false}, true));
}

TEST_F(FontWarmerTest, ATextIsReadyWhenItsSizeIsKnown) {
  controls.RHD.FontSize(19);
  controls.RDOS.FontSize(21);
  EXPECT_FALSE(isWarmed({"x1", FontSpec().size, false}));
  controls.R2.FontSize(20);
  EXPECT_TRUE(isWarmed({"x1", 20, false}));
  EXPECT_TRUE(isWarmed({"x1", 20, true}));
}

} // namespace
} // namespace talvora
