// The caption strip: what it shows of a caption, for how long, and what its buttons send.
#include "desktop/CaptionStrip.h"
#include "desktop/Palette.h"
#include "desktop/StripButton.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

namespace talvora {
namespace {

const QString Padding(110, QLatin1Char(' '));

StripButton* buttonNamed(const CaptionStrip& strip, const QString& start) {
  for (auto* const button : strip.findChildren<QAbstractButton*>()) {
    if (button->accessibleName().startsWith(start)) return dynamic_cast<StripButton*>(button);
  }
  return nullptr;
}

TEST(CaptionStrip, TellsTheTypedWordFromTheTitle) {
  CaptionStrip strip(nullptr);
  strip.resize(1366, 23);
  strip.setCaption(Padding + QStringLiteral("TALVORA 2.4"));
  EXPECT_TRUE(strip.typedWord().isEmpty());
  strip.setCaption(QStringLiteral("street") + Padding + QStringLiteral("TALVORA 2.4"));
  EXPECT_TRUE(strip.typedWord().startsWith(QStringLiteral("street")));
  EXPECT_EQ(strip.title(), QStringLiteral("TALVORA 2.4"));
}

TEST(CaptionStrip, AScoreOutlivesTheNextItemsNumber) {
  CaptionStrip strip(nullptr);
  strip.resize(1366, 23);
  QStringList told;
  strip.told = [&](const QString& text) { told.append(text); };
  strip.setCaption(Padding + QStringLiteral("TALVORA 2.4"));
  strip.setCaption(Padding + QStringLiteral("3/5"));
  strip.setCaption(Padding + QStringLiteral("Cau 4"));
  EXPECT_EQ(strip.title(), QStringLiteral("Cau 4"));
  EXPECT_EQ(strip.notice(), QStringLiteral("3/5"));
  EXPECT_TRUE(told.contains(QStringLiteral("3/5")));
  QTest::qWait(2200);
  EXPECT_TRUE(strip.notice().isEmpty());
}

TEST(CaptionStrip, HelpStandsWhereNoNoticeDoes) {
  CaptionStrip strip(nullptr);
  strip.resize(1366, 23);
  strip.setCaption(QStringLiteral("TALVORA 2.4"));
  strip.setHelp(QStringLiteral("F10"));
  EXPECT_EQ(strip.notice(), QStringLiteral("F10"));
  strip.notice(QStringLiteral("Đã lưu: street (5)"));
  strip.setHelp(QStringLiteral("Tab"));
  EXPECT_EQ(strip.notice(), QStringLiteral("Đã lưu: street (5)"));
  QTest::qWait(2200);
  EXPECT_EQ(strip.notice(), QStringLiteral("Tab"));
  strip.setHelp({});
  EXPECT_TRUE(strip.notice().isEmpty());
}

TEST(CaptionStrip, TheLongestHelpFitsOnEveryScreen) {
  for (const QSize screen : {QSize(800, 600), QSize(1024, 768), QSize(1280, 1024), QSize(1366, 768),
                             QSize(1920, 1080), QSize(3840, 2160)}) {
    CaptionStrip strip(nullptr);
    strip.resize(screen.width(), screen.height() * 3 / 100);
    strip.setPlace(StripPlace::Page);
    strip.setCaption(Padding + QStringLiteral("TALVORA 2.4"));
    strip.setHelp(QStringLiteral("F10, Shift+F10: chuột trái, phải · Chuột giữa: Enter"));
    const StripButton* const back = buttonNamed(strip, QStringLiteral("Quay lại"));
    ASSERT_NE(back, nullptr);
    for (const QLabel* const label : strip.findChildren<QLabel*>()) {
      if (label->text().isEmpty()) continue;
      EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width())
          << label->text().toStdString() << " at " << screen.width();
      EXPECT_LE(label->geometry().right(), back->geometry().left())
          << label->text().toStdString() << " at " << screen.width();
    }
  }
}

TEST(CaptionStrip, AMarkStandsRightBehindTheTypedWord) {
  CaptionStrip strip(nullptr);
  strip.resize(1366, 23);
  strip.setCaption(QStringLiteral("street") + Padding + QStringLiteral("TALVORA 2.4"));
  strip.show();
  const QLabel* typed = nullptr;
  for (const QLabel* const label : strip.findChildren<QLabel*>())
    if (label->text() == QStringLiteral("street")) typed = label;
  ASSERT_NE(typed, nullptr);
  const QImage picture = strip.grab().toImage();
  const int behind = typed->x() + typed->fontMetrics().horizontalAdvance(typed->text());
  const QColor amber(palette::StripAmber);
  EXPECT_EQ(picture.pixelColor(behind, strip.height() / 2), amber);
  EXPECT_NE(picture.pixelColor(behind + strip.height() / 4, strip.height() / 2), amber);
}

TEST(CaptionStrip, TheProgramsNameIsNoNews) {
  CaptionStrip strip(nullptr);
  strip.resize(1366, 23);
  strip.setCaption(QStringLiteral("TALVORA 2.4"));
  strip.setCaption(QStringLiteral("Cau 4"));
  strip.setCaption(QStringLiteral("TALVORA 2.4"));
  EXPECT_TRUE(strip.notice().isEmpty());
}

TEST(CaptionStrip, ItsButtonsLeadBackAndShowTheHint) {
  CaptionStrip strip(nullptr);
  strip.resize(1366, 23);
  int back = 0;
  int hint = 0;
  strip.goBack = [&] { ++back; };
  strip.showHint = [&] { ++hint; };
  strip.show();
  strip.setPlace(StripPlace::Page);
  StripButton* const leads = buttonNamed(strip, QStringLiteral("Quay lại"));
  ASSERT_NE(leads, nullptr);
  QTest::mouseClick(leads, Qt::LeftButton);
  QTest::mouseClick(buttonNamed(strip, QStringLiteral("Gợi ý")), Qt::LeftButton);
  EXPECT_EQ(back, 1);
  EXPECT_EQ(hint, 1);
  strip.setPlace(StripPlace::Menu);
  EXPECT_NE(buttonNamed(strip, QStringLiteral("Thoát")), nullptr);
  EXPECT_FALSE(buttonNamed(strip, QStringLiteral("Gợi ý"))->isVisible());
}

TEST(CaptionStrip, NothingOverlapsOnTheSmallestScreen) {
  CaptionStrip strip(nullptr);
  strip.resize(800, 18);
  strip.setPlace(StripPlace::Page);
  strip.setCaption(QStringLiteral("internationally") + Padding +
                   QStringLiteral("Ban da lam dung 12/35 cau"));
  strip.show();
  QList<QRect> places;
  for (const QObject* child : strip.children()) {
    const auto* const widget = qobject_cast<const QWidget*>(child);
    if (widget == nullptr || widget->isHidden()) continue;
    for (const QRect& other : places)
      EXPECT_FALSE(widget->geometry().intersects(other));
    places.append(widget->geometry());
    EXPECT_TRUE(strip.rect().contains(widget->geometry()));
  }
  EXPECT_EQ(places.size(), 6);
}

} // namespace
} // namespace talvora
