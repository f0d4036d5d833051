// The Vietnamese side: its list, its search, and its entry in the hint bar while Ctrl is held.
#include "dictionary/VietnameseSide.h"

#include "support/ProgramRun.h"
#include "text/Bytes.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using namespace literals;
using test::ProgramRun;
using Texts = std::vector<std::string>;

constexpr Colour Red = 255;
constexpr Colour Black = 0;
constexpr Colour Blue = 0xFF0000;

struct SideWord {
  std::string line;
  std::string entry;
};

/// Writes the three files of a Vietnamese side; the last entry ends with its file.
void writeSide(const test::TestFolder& folder, const std::vector<SideWord>& words) {
  std::string list;
  std::string entries;
  std::vector<std::int32_t> positions;
  for (const SideWord& word : words) {
    list += word.line + "\r\n";
    positions.push_back(static_cast<std::int32_t>(entries.size()) + 1);
    entries += word.entry + "\r";
  }
  if (!entries.empty()) entries.pop_back();
  folder.write("datatuD.txt", list);
  folder.writeIntegers("dataD.vt", positions);
  folder.writeStream("dataD.av", entries);
}

class VietnameseSideTest : public testing::Test {
 protected:
  VietnameseSideTest() {
    run.folder.writeIntegers("data.Kcu", {0, 1, 0, 5});
    run.writeTexts({{1, "Title\r_\tI am at the banks. _I'm|zzz none.\r", "_Mot._Hai."}});
    writeSide(run.folder, {{"am", "am~thi"},
                           {"at", ""},
                           {"banks", "banks~bo  <bank> x"},
                           {"i", "i~toi"},
                           {"i'm", " i'm~toi la "},
                           {"zzz", "zzz~het"}});
  }

  /// Opens the text with the caret inside a word.
  void openAt(const std::string& word) {
    run.start();
    run.clickButton(1);
    run.controls().R1.SelStart(0);
    run.key(key::Home);
    run.key(key::Enter);
    putCaretIn(word);
    static_cast<void>(run.machine.log.take());
  }
  void putCaretIn(const std::string& word) {
    R2.SelStart(static_cast<int>(R2.Text().find(word)) + 1);
    // A key that was released there.
    run.form().releaseKey(key::Right, shift::None);
  }
  void holdCtrl() { run.form().pressKey(key::Ctrl, shift::Ctrl, '\0'); }
  void releaseCtrl() { run.form().releaseKey(key::Ctrl, shift::None); }

  [[nodiscard]] std::string inColour(Colour colour) const {
    std::string text;
    for (const StyledRun& each : RDOS.runs()) {
      if (each.style.color != colour) continue;
      text += RDOS.Text().substr(static_cast<std::size_t>(each.from),
                                 static_cast<std::size_t>(each.to - each.from));
    }
    return text;
  }
  [[nodiscard]] Texts spoken() const {
    Texts texts;
    for (const LogEntry& entry : run.machine.log.entries()) {
      if (entry.what == "speak") texts.push_back(std::get<std::string>(*entry.find("text")));
    }
    return texts;
  }
  [[nodiscard]] std::string found(const std::string& key) {
    return std::get<std::string>((*run.program.procedures().find("TimTuD"))({key})->value);
  }

  ProgramRun run;
  Surface& R2 = run.controls().R2;
  Surface& RDOS = run.controls().RDOS;
};

// -- On a text.

TEST_F(VietnameseSideTest, CtrlShowsTheEntryInItsColoursAndSpeaksTheWord) {
  openAt("banks");
  holdCtrl();
  EXPECT_TRUE(RDOS.Visible());
  EXPECT_EQ(RDOS.Text(), "banks bo  <bank> x");
  EXPECT_EQ(inColour(Red), "banks");
  EXPECT_EQ(inColour(Black), " bo  <> x");
  EXPECT_EQ(inColour(Blue), "bank");
  EXPECT_EQ(RDOS.SelStart(), 0);
  EXPECT_EQ(RDOS.SelAlignment(), Alignment::Centred);
  EXPECT_EQ(RDOS.SelFontSize(), run.number("CoChu"));
  EXPECT_EQ(run.text("NghiaD"), "banks~bo  <bank> x");
  EXPECT_EQ(R2.SelText(), "banks");
  EXPECT_EQ(spoken(), (Texts{"banks", "banks"}));
}

TEST_F(VietnameseSideTest, ReleasingCtrlTakesItDownAndEndsTheSpeech) {
  openAt("banks");
  holdCtrl();
  run.controls().R1.SetFocus();
  releaseCtrl();
  run.form().releaseKey(key::Ctrl, shift::None);
  EXPECT_EQ(run.text("NghiaD"), "banks~bo  <bank> x") << "another surface has the keyboard";
  R2.SetFocus();
  releaseCtrl();
  EXPECT_FALSE(RDOS.Visible());
  EXPECT_EQ(run.text("NghiaD"), "");
  EXPECT_EQ(run.focus(), "R2");
  EXPECT_FALSE(run.machine.speech.IsSpeaking());
}

TEST_F(VietnameseSideTest, AKeyReleasedWhileCtrlIsHeldLeavesIt) {
  openAt("banks");
  holdCtrl();
  run.form().releaseKey('A', shift::Ctrl);
  EXPECT_TRUE(RDOS.Visible());
}

TEST_F(VietnameseSideTest, AHeldCtrlDoesNotRepeatTheSearch) {
  openAt("banks");
  holdCtrl();
  R2.SelStart(static_cast<int>(R2.Text().find("zzz")) + 1);
  holdCtrl();
  EXPECT_EQ(RDOS.Text(), "banks bo  <bank> x");
  EXPECT_EQ(spoken(), (Texts{"banks", "banks"}));
}

TEST_F(VietnameseSideTest, AWordWithoutAnEntryIsSaidToBeMissingAndSpoken) {
  openAt("none");
  holdCtrl();
  EXPECT_EQ(RDOS.Text(), "Không tìm thÍy!"_bytes);
  EXPECT_EQ(inColour(Red), RDOS.Text());
  EXPECT_EQ(spoken(), (Texts{"none", "none"}));
}

TEST_F(VietnameseSideTest, AnEmptyEntryShowsNothing) {
  openAt("at");
  holdCtrl();
  EXPECT_FALSE(RDOS.Visible());
  EXPECT_EQ(spoken(), Texts{});
}

TEST_F(VietnameseSideTest, ThePronounIsACapital) {
  openAt("I am");
  holdCtrl();
  EXPECT_EQ(RDOS.Text(), "I toi");
  releaseCtrl();
  putCaretIn("I'm");
  holdCtrl();
  EXPECT_EQ(RDOS.Text(), "I'm toi la");
}

TEST_F(VietnameseSideTest, ABarAtTheTopIsPutInItsPlaceFirst) {
  openAt("banks");
  run.key(key::F2);
  ASSERT_EQ(RDOS.Top(), 0);
  holdCtrl();
  EXPECT_GT(RDOS.Top(), 0);
}

TEST_F(VietnameseSideTest, TheCaretIsSavedAndThePopupClosed) {
  openAt("banks");
  const int caret = R2.SelStart();
  run.controls().RHD.Visible(true);
  holdCtrl();
  EXPECT_FALSE(run.controls().RHD.Visible());
  EXPECT_EQ(run.number("ViTriCaret"), caret);
}

// -- The search.

TEST_F(VietnameseSideTest, AWordIsFoundInAnyCase) {
  run.start();
  EXPECT_EQ(found("BANKS"), "banks~bo  <bank> x");
  EXPECT_EQ(found("i"), "i~toi");
  EXPECT_EQ(found("nothing"), "?");
  EXPECT_EQ(found(""), "?");
}

TEST_F(VietnameseSideTest, TheLastEntryEndsWithItsFile) {
  run.start();
  EXPECT_EQ(found("zzz"), "zzz~het");
}

TEST_F(VietnameseSideTest, AFullListIsFoundFromItsFirstLineToItsLast) {
  std::vector<SideWord> words;
  for (int line = 1; line <= VietnameseSide::EntryCount + 5; ++line) {
    std::string name;
    for (int rest = 100'000 + line; rest > 0; rest /= 10)
      name.insert(name.begin(), static_cast<char>('a' + rest % 10));
    words.push_back({name, "entry of " + name});
  }
  writeSide(run.folder, words);
  run.start();
  for (const int line : {1, 2, 6119, 12237, 12238}) {
    const SideWord& word = words[static_cast<std::size_t>(line - 1)];
    EXPECT_EQ(found(word.line), word.entry) << line;
  }
  EXPECT_EQ(found(words[12238].line), "?") << "lines behind the last one are not read";
}

TEST_F(VietnameseSideTest, AMissSettlesOnThePlaceWhereTheWordWouldStand) {
  openAt("none");
  holdCtrl();
  EXPECT_EQ(run.number("ViTriGan"), 6) << "zzz follows";
}

TEST_F(VietnameseSideTest, TheListIsSeenAsItIsDeclared) {
  run.start();
  const auto table = std::get<VariableValue::Table>((*run.program.variables().find("TuD"))().value);
  ASSERT_EQ(table.size(), 12241U);
  const auto& banks = std::get<VariableValue::Record>(table[3].value);
  EXPECT_EQ(banks[0].first, "Chu");
  EXPECT_EQ(std::get<std::string>(banks[0].second.value), "banks");
  EXPECT_EQ(banks[1].first, "ViTriNghia");
  EXPECT_EQ(std::get<double>(banks[1].second.value), 9);
}

TEST_F(VietnameseSideTest, WithoutItsFilesTheProgramStartsAndFindsNothing) {
  run.folder.remove("datatuD.txt");
  run.start();
  EXPECT_EQ(found("banks"), "?");
}

TEST_F(VietnameseSideTest, WithoutPositionsTheListIsLeftAsFarAsItCame) {
  run.folder.remove("dataD.vt");
  run.start();
  EXPECT_EQ(found("banks"), "");
  EXPECT_EQ(found("nothing"), "?");
}

} // namespace
} // namespace talvora
