// What the program paints can be read: every text colour that it chooses on every back colour that
// it chooses.
#include "desktop/Palette.h"

#include <array>
#include <gtest/gtest.h>

namespace talvora {
namespace {

constexpr double Readable = 4.5;
constexpr double Seen = 3.0; ///< for what is no text

// Body, heading, pure red, pure blue, black, grey of a wrong choice, light text of a dark panel.
constexpr std::array<Colour, 8> Texts = {0x750000, 0x393971, 0x0000FF,   0xFF0000,
                                         0x000000, 0xFFFFC0, 0x80000003, 0xFFFFFF};
// White page, list of your vocabulary, paper of the popup, dark sentence.
constexpr std::array<Colour, 4> Backs = {0xFFFFFF, 0x80000000, 0x80000013, 0x750000};

TEST(Palette, EveryTextCanBeReadOnEveryBack) {
  for (const Colour text : Texts) {
    for (const Colour back : Backs) {
      const QColor tone = readableOn(colourOf(text), colourOf(back));
      EXPECT_GE(contrastOf(tone, colourOf(back)), Readable) << std::hex << text << " on " << back;
    }
  }
}

TEST(Palette, AColourThatCanBeReadStaysAsItIs) {
  const QColor body = colourOf(0x750000);
  EXPECT_EQ(readableOn(body, Qt::white), body);
}

TEST(Palette, RedStaysRedOnADarkBack) {
  const QColor tone = readableOn(colourOf(0x0000FF), colourOf(0x750000));
  EXPECT_GT(tone.red(), tone.green());
  EXPECT_GT(tone.red(), tone.blue());
}

TEST(Palette, ContrastIsThatOfBlackOnWhiteAtMost) {
  EXPECT_NEAR(contrastOf(Qt::black, Qt::white), 21.0, 0.01);
  EXPECT_NEAR(contrastOf(Qt::white, Qt::white), 1.0, 0.001);
}

TEST(Palette, TextCanBeReadOnASelectionAndOnTheCurrentLine) {
  for (const QRgb back : {palette::Selection, palette::CurrentLine}) {
    for (const Colour text : {0x750000U, 0x393971U, 0x0000FFU, 0xFF0000U, 0x000000U, 0x80000003U}) {
      EXPECT_GE(contrastOf(colourOf(text), QColor(back)), Readable) << std::hex << text;
    }
  }
}

TEST(Palette, TheStripCanBeRead) {
  EXPECT_GE(contrastOf(QColor(palette::StripText), QColor(palette::Strip)), Readable);
  EXPECT_GE(contrastOf(QColor(palette::StripAmber), QColor(palette::Strip)), Readable);
  EXPECT_GE(contrastOf(QColor(palette::StripText), QColor(palette::StripHot)), Readable);
  EXPECT_GE(contrastOf(QColor(palette::StripText), QColor(palette::StripCloseHot)), Readable);
}

TEST(Palette, TheCurrentLineAndTheScrollBarAreSeen) {
  for (const Colour back : {0xFFFFFFU, 0x80000000U, 0x80000013U}) {
    EXPECT_GE(contrastOf(QColor(palette::CurrentLineEdge), colourOf(back)), Readable);
    EXPECT_GE(contrastOf(QColor(palette::ScrollBar), colourOf(back)), Seen) << std::hex << back;
  }
}

} // namespace
} // namespace talvora
