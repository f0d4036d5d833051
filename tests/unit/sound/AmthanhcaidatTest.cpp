// The settings panel: its text, its cells, and what a click on each of them does.
#include "SoundRun.h"

#include "text/Bytes.h"

namespace talvora {
namespace {

using namespace literals;
using test::Numbers;
using test::SoundRun;
using test::Texts;

constexpr Colour Red = 255;
constexpr Colour Black = 0;

ScriptedOptions voices(int count) {
  ScriptedOptions options;
  options.voices = count;
  return options;
}

class PanelTest : public SoundRun {
 protected:
  // With so many voices every level can be chosen.
  explicit PanelTest(int voiceCount = 20) : SoundRun(voices(voiceCount)) {
    run.controls.but(8).Visible(true);
    setSettings(1, 5);
  }

  [[nodiscard]] Surface& surface() { return run.controls.RAmthanh; }
  void open(std::int32_t soundOn, std::int32_t level) {
    setSettings(soundOn, level);
    panel.open();
  }
  void clickAt(int caret) {
    forgetLog();
    surface().SelStart(caret);
    surface().MouseUp(MouseButton::Left, 0, {});
  }
  /// Caret of the first appearance of a text on the panel.
  [[nodiscard]] int caretOf(std::string_view text) {
    return static_cast<int>(surface().Text().find(text));
  }
  /// A caret inside the number of a level.
  [[nodiscard]] int caretOfLevel(int level) {
    return caretOf("\t " + std::to_string(level) + (level == 10 ? "\r" : "\t")) + 2;
  }
  [[nodiscard]] Colour colourAt(int caret) {
    for (const StyledRun& each : surface().runs()) {
      if (each.from <= caret && caret < each.to) return each.style.color;
    }
    ADD_FAILURE() << "no character at " << caret;
    return Black;
  }
  /// The levels whose number is red.
  [[nodiscard]] std::vector<int> redLevels() {
    std::vector<int> levels;
    for (int level = 1; level <= 10; ++level) {
      if (colourAt(caretOfLevel(level)) == Red) levels.push_back(level);
    }
    return levels;
  }
  [[nodiscard]] Colour onColour() { return colourAt(caretOf("BÏt"_bytes)); }
  [[nodiscard]] Colour offColour() { return colourAt(caretOf("TÁt"_bytes)); }

  Amthanhcaidat panel{run.controls, run.state, run.machine.platform, stores, run.shell, speech};
};

const Texts testSentence{"Welcom to talvora 2.4"};

// -- Opening.

TEST_F(PanelTest, TheTextStandsAsWrittenCellByCell) {
  open(1, 5);
  const std::string expected =
      std::string("NhÍn chuÖt trái 1 lÌn vào müc muÓn chön:"_bytes) +
      std::string("\r\t- BÏt âm thanh"_bytes) + std::string("\t- TÁt âm thanh\r"_bytes) +
      std::string("\t+ Töa ðÖ ðöc:\r"_bytes) + "\t 1\t 2\t 3\t 4\t 5\t 6\t 7\t 8\t 9\t 10" +
      std::string("\r\tXong nhÍn phim ESC ðÇ thoát."_bytes);
  EXPECT_EQ(surface().Text(), expected);
  EXPECT_EQ(panel.TextPanel, expected);
  EXPECT_EQ(panel.SoCell, 15);
  EXPECT_EQ(surface().SelStart(), 0);
  EXPECT_EQ(panel.CellChon, 1);
}

TEST_F(PanelTest, EveryCellEntersItsEndAndTheFirstTwoMore) {
  open(1, 5);
  const auto& entries = run.state.list.BangViTri;
  const int heading = caretOf("\r");
  EXPECT_EQ(entries[1], heading + 2);
  EXPECT_EQ(entries[2], caretOf("\t- TÁt"_bytes));
  EXPECT_EQ(entries[3], caretOf("\t+"));
  EXPECT_EQ(entries[4], caretOf("\t 1\t"));
  EXPECT_EQ(entries[5], caretOf("\t 2\t"));
  EXPECT_EQ(entries[14], caretOf("\r\tXong"));
  EXPECT_EQ(entries[15], surface().TextLength());
}

TEST_F(PanelTest, HeadingsAreBoldAndAllIsLarge) {
  open(1, 5);
  const int speedHeading = caretOf("\t+");
  const int firstChoice = caretOf("\r");
  for (const StyledRun& each : surface().runs()) {
    EXPECT_EQ(each.style.font.name, "x1");
    EXPECT_EQ(each.style.font.size, run.state.measures.CoChu + 5);
    for (int caret = each.from; caret < each.to; ++caret) {
      const bool heading =
          caret < firstChoice || (caret >= speedHeading && caret < run.state.list.BangViTri[4]);
      EXPECT_EQ(each.style.font.bold, heading) << caret;
    }
  }
}

TEST_F(PanelTest, OpeningBringsTheSurfaceInOnAWhiteCard) {
  run.controls.Frame1.BackColor(0);
  open(1, 5);
  EXPECT_TRUE(surface().Visible());
  EXPECT_EQ(surface().Font().size, run.state.measures.CoChu - 1);
  EXPECT_TRUE(run.controls.Frame1.Visible());
  EXPECT_EQ(run.controls.Frame1.BackColor(), 0xFFFFFFU);
  EXPECT_EQ(run.form.ActiveControl(), &surface());
}

TEST_F(PanelTest, OpeningPaintsTheSettingsRedAndSpeaksTheTestSentence) {
  open(1, 7);
  EXPECT_EQ(onColour(), Red);
  EXPECT_EQ(offColour(), Black);
  EXPECT_EQ(redLevels(), std::vector{7});
  EXPECT_EQ(spoken(), (Texts{testSentence[0], testSentence[0]}));
  EXPECT_EQ(logged<std::int64_t>("speed", "value").back(), 170);
}

TEST_F(PanelTest, TheSecondTestSentenceCutsTheFirstOff) {
  open(1, 7);
  Texts deeds;
  for (const LogEntry& entry : run.machine.log.entries()) {
    if (entry.what == "speak" || entry.what == "stopspeaking") deeds.push_back(entry.what);
  }
  EXPECT_EQ(deeds, (Texts{"speak", "stopspeaking", "speak"}));
}

TEST_F(PanelTest, OpeningWithTheSoundOffIsSilent) {
  open(0, 2);
  EXPECT_EQ(onColour(), Black);
  EXPECT_EQ(offColour(), Red);
  EXPECT_EQ(redLevels(), std::vector{2});
  EXPECT_EQ(spoken(), Texts{});
  EXPECT_EQ(speech.AmThanhBat, 0);
}

TEST_F(PanelTest, AStoredLevelOutOfRangePaintsNone) {
  for (const int level : {0, 11, -3, 4'000'000}) {
    open(1, level);
    EXPECT_EQ(redLevels(), std::vector<int>{}) << level;
  }
}

TEST_F(PanelTest, EachOpeningFillsThePanelAnew) {
  open(1, 7);
  const int length = surface().TextLength();
  panel.ExitRAmThanh();
  open(0, 3);
  EXPECT_EQ(surface().TextLength(), length);
  EXPECT_EQ(redLevels(), std::vector{3});
  EXPECT_EQ(panel.SoCell, 15);
}

// -- Finding a cell.

TEST_F(PanelTest, EveryCellIsFoundByACaretInIt) {
  open(1, 5);
  const auto cellAt = [this](int caret) {
    surface().SelStart(caret);
    panel.ChonMuc();
    return panel.CellChon;
  };
  EXPECT_EQ(cellAt(3), 1);
  EXPECT_EQ(cellAt(caretOf("BÏt"_bytes)), 2);
  EXPECT_EQ(cellAt(caretOf("TÁt"_bytes)), 3);
  EXPECT_EQ(cellAt(caretOf("+") + 2), 1); // bold: there is nothing to choose
  for (int level = 1; level <= 10; ++level)
    EXPECT_EQ(cellAt(caretOfLevel(level)), level + 4);
  EXPECT_EQ(cellAt(caretOf("nhÍn phim"_bytes)), 15);
}

TEST_F(PanelTest, ACellIsSelectedFromOneBehindItsTabToTheNextTab) {
  open(1, 5);
  surface().SelStart(caretOf("BÏt"_bytes) + 2);
  panel.ChonMuc();
  EXPECT_EQ(surface().SelText(), " BÏt âm thanh"_bytes);
  surface().SelStart(caretOfLevel(3));
  panel.ChonMuc();
  EXPECT_EQ(surface().SelText(), "3");
  surface().SelStart(caretOf("Xong") + 5);
  panel.ChonMuc();
  EXPECT_EQ(surface().SelLength(), 0);
}

// -- Clicks.

TEST_F(PanelTest, AClickSwitchesTheSoundOff) {
  open(1, 5);
  clickAt(caretOf("TÁt"_bytes));
  EXPECT_EQ(speech.AmThanhBat, 0);
  EXPECT_EQ(offColour(), Red);
  EXPECT_EQ(onColour(), Black);
  EXPECT_EQ(spoken(), Texts{});
  EXPECT_FALSE(run.machine.speech.IsSpeaking());
  EXPECT_EQ(surface().SelStart(), run.state.list.BangViTri[2] + 2);
}

TEST_F(PanelTest, AClickSwitchesTheSoundOnAndSpeaks) {
  open(0, 5);
  clickAt(caretOf("BÏt"_bytes));
  EXPECT_EQ(speech.AmThanhBat, 1);
  EXPECT_EQ(onColour(), Red);
  EXPECT_EQ(offColour(), Black);
  EXPECT_EQ(spoken(), testSentence);
  EXPECT_EQ(surface().SelStart(), run.state.list.BangViTri[1] + 2);
}

TEST_F(PanelTest, AClickChoosesALevelAtOnce) {
  open(1, 5);
  for (int level = 1; level <= 10; ++level) {
    clickAt(caretOfLevel(level));
    EXPECT_EQ(speech.TocDoDoc, level);
    EXPECT_EQ(redLevels(), std::vector{level});
    EXPECT_EQ(logged<std::int64_t>("select", "value"), Numbers{speech.GiongDoc});
    EXPECT_EQ(logged<std::int64_t>("speed", "value"), Numbers{level * 20 + 30});
    EXPECT_EQ(run.machine.log.count("stopspeaking"), 1);
    EXPECT_EQ(spoken(), testSentence);
    EXPECT_EQ(surface().SelLength(), 0);
  }
  EXPECT_EQ(onColour(), Red);
  EXPECT_EQ(offColour(), Black);
}

TEST_F(PanelTest, ALevelWithTheSoundOffIsChosenSilently) {
  open(0, 5);
  clickAt(caretOfLevel(9));
  EXPECT_EQ(speech.TocDoDoc, 9);
  EXPECT_EQ(redLevels(), std::vector{9});
  EXPECT_EQ(spoken(), Texts{});
}

TEST_F(PanelTest, HeadingsAndTheLeaveNoteChooseNothing) {
  open(1, 5);
  for (const int caret : {3, caretOf("+") + 2, caretOf("Xong") + 5}) {
    clickAt(caret);
    EXPECT_EQ(spoken(), Texts{}) << caret;
    EXPECT_EQ(surface().SelLength(), 0);
  }
  EXPECT_EQ(speech.AmThanhBat, 1);
  EXPECT_EQ(speech.TocDoDoc, 5);
  EXPECT_EQ(redLevels(), std::vector{5});
}

TEST_F(PanelTest, ARightClickChoosesNothing) {
  open(1, 5);
  forgetLog();
  surface().SelStart(caretOfLevel(2));
  surface().MouseUp(MouseButton::Right, 0, {});
  EXPECT_EQ(speech.TocDoDoc, 5);
  EXPECT_EQ(spoken(), Texts{});
}

class PanelOfThreeVoicesTest : public PanelTest {
 protected:
  PanelOfThreeVoicesTest() : PanelTest(3) {}
};

TEST_F(PanelOfThreeVoicesTest, TheCellFiveAboveTheNumberOfVoicesIsLeftAlone) {
  open(1, 5);
  clickAt(caretOfLevel(4));
  EXPECT_EQ(speech.TocDoDoc, 5);
  EXPECT_EQ(redLevels(), std::vector{5});
  EXPECT_EQ(spoken(), Texts{});
  clickAt(caretOfLevel(3));
  EXPECT_EQ(speech.TocDoDoc, 3);
}

class PanelOfOneVoiceTest : public PanelTest {
 protected:
  PanelOfOneVoiceTest() : PanelTest(1) {}
};

TEST_F(PanelOfOneVoiceTest, LevelTwoIsLeftAlone) {
  open(1, 5);
  clickAt(caretOfLevel(2));
  EXPECT_EQ(speech.TocDoDoc, 5);
  EXPECT_EQ(spoken(), Texts{});
  for (const int level : {1, 3}) {
    clickAt(caretOfLevel(level));
    EXPECT_EQ(speech.TocDoDoc, level);
  }
}

TEST_F(PanelOfOneVoiceTest, AStoredLevelThatIsLeftAloneIsNotPainted) {
  open(1, 2);
  EXPECT_EQ(redLevels(), std::vector<int>{});
  EXPECT_EQ(spoken(), testSentence);
}

// -- Leaving.

TEST_F(PanelTest, EscStoresTheSettingsAndGoesBackToTheButton) {
  open(1, 5);
  clickAt(caretOfLevel(8));
  clickAt(caretOf("TÁt"_bytes));
  EXPECT_EQ(stores.readSetting(setting::SoundOn), 1);
  EXPECT_EQ(stores.readSetting(setting::SpeedLevel), 5);
  int KeyAscii = key::Esc;
  surface().KeyPress(KeyAscii);
  EXPECT_EQ(stores.readSetting(setting::SoundOn), 0);
  EXPECT_EQ(stores.readSetting(setting::SpeedLevel), 8);
  EXPECT_FALSE(surface().Visible());
  EXPECT_FALSE(run.controls.Frame1.Visible());
  EXPECT_TRUE(run.form.hasFocus(run.controls.but(8)));
}

TEST_F(PanelTest, AChangeThatIsNotLeftByEscIsNotStored) {
  open(1, 5);
  clickAt(caretOfLevel(8));
  speech.setUp(stores);
  EXPECT_EQ(speech.TocDoDoc, 5);
}

TEST_F(PanelTest, AnotherKeyLeavesThePanelOpen) {
  open(1, 5);
  int KeyAscii = 'a';
  surface().KeyPress(KeyAscii);
  EXPECT_TRUE(surface().Visible());
  EXPECT_FALSE(run.form.hasFocus(run.controls.but(8)));
}

TEST_F(PanelTest, F2ShowsNothingHere) {
  open(1, 5);
  int KeyCode = key::F2;
  surface().KeyDown(KeyCode, 0);
  EXPECT_FALSE(run.controls.RDOS.Visible());
  EXPECT_EQ(run.controls.RDOS.Text(), "");
}

} // namespace
} // namespace talvora
