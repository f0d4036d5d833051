#include "support/ProgramRun.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ProgramRun;

constexpr Colour BodyColour = 0x750000;
constexpr Colour Blue = 0xFF0000;

class Drills : public testing::Test {
 protected:
  Drills() : R1(run.controls().R1), R2(run.controls().R2), RHDBT(run.controls().RHDBT) {
    run.writeTexts({{3, "*HEADING\r", ""},
                    {4, "My day\r_\tI|get up.|_Then|I eat.\r", "_Toi day._Roi toi an."},
                    {400, "Script\r_\tOne two. _Three four.\r", "_Mot hai._Ba bon."}});
    run.writeTexts({{2, "Talk\r_\tHi.\r", "_Chao."}}, true);
    run.folder.writeIntegers("dataPt.vt", {0});
    run.folder.writeStream("dataPt.v", "\r| I\r^\r| get up\r^\r| Then\r^\r| I eat\r@");
    run.start();
  }

  void openText(int button, int slot) {
    run.clickButton(button);
    run.click(R1, caretOfLine(slot));
  }
  void openDictation(int slot) { run.click(R1, caretOfLine(slot), MouseButton::Right); }
  /// A caret inside the title of a text.
  int caretOfLine(int slot) const {
    std::size_t at = 0;
    for (int line = 1; line < slot; ++line)
      at = R1.Text().find('\r', at) + 1;
    return static_cast<int>(at) + 3;
  }
  Colour colourOf(const std::string& word) {
    const int caret = caretOf(word);
    for (const StyledRun& each : R2.runs()) {
      if (each.from <= caret && caret < each.to) return each.style.color;
    }
    return 0;
  }
  int caretOf(const std::string& word) const { return static_cast<int>(R2.Text().find(word)); }
  void explain(const std::string& word) { run.click(R2, caretOf(word) + 1, MouseButton::Right); }

  ProgramRun run;
  Surface& R1;
  Surface& R2;
  Surface& RHDBT;
};

TEST_F(Drills, AMarkedWordGetsItsColourBackWhenTheNextIsExplained) {
  openText(5, 4);
  explain("get up");
  EXPECT_EQ(colourOf("get up"), Blue);
  explain("eat");
  EXPECT_EQ(colourOf("get up"), BodyColour);
  EXPECT_EQ(colourOf("eat"), Blue);
  explain("eat");
  EXPECT_EQ(run.number("MauCu"), BodyColour);
  run.key(key::Up);
  EXPECT_EQ(colourOf("eat"), BodyColour);
  EXPECT_EQ(run.text("ChuCu"), "");
  EXPECT_FALSE(RHDBT.Visible());
}

TEST_F(Drills, AnyKeyOnTheExplanationTakesTheMarkBack) {
  openText(5, 4);
  explain("get up");
  RHDBT.SetFocus();
  run.key(key::Down);
  EXPECT_EQ(run.text("ChuCu"), "");
  EXPECT_EQ(colourOf("get up"), BodyColour);
}

TEST_F(Drills, ALeftClickEndsAnExplanation) {
  openText(5, 4);
  explain("get up");
  ASSERT_TRUE(RHDBT.Visible());
  run.click(R2, caretOf("get up") + 5);
  EXPECT_FALSE(RHDBT.Visible());
  EXPECT_EQ(colourOf("get up"), BodyColour);
}

TEST_F(Drills, ARecordingDoesNotOutliveItsText) {
  run.folder.write("sound/1.wav", "x");
  run.folder.writeIntegers("DataS", {1, 100, 250});
  run.clickButton(1);
  openDictation(400);
  ASSERT_TRUE(run.flag("AmThanhThuc"));
  run.key(key::Esc);
  run.key(key::Esc);
  run.key(key::Esc);
  ASSERT_FALSE(run.controls().Rviet.Visible());
  openText(1, 4);
  ASSERT_TRUE(R2.Visible());
  EXPECT_FALSE(run.flag("AmThanhThuc"));
}

TEST_F(Drills, TheSpeakingSectionBuildsItsListAnew) {
  run.clickButton(1);
  ASSERT_EQ(run.number("SoBai"), 408);
  run.controls().RDOS.Visible(false);
  run.key(key::Esc);
  run.clickButton(7);
  EXPECT_TRUE(R1.Text().starts_with("\t\tslot 1\r\t\tTalk\r"));
}

} // namespace
} // namespace talvora
