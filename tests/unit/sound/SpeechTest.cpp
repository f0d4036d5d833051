// Speech: voices, speed, the word at hand, and waiting for a sentence.
#include "SoundRun.h"

#include <limits>

namespace talvora {
namespace {

using test::Numbers;
using test::SoundRun;
using test::Texts;

class SpeechTest : public SoundRun {
 protected:
  SpeechTest() { setSettings(1, 5); }

  void speakWord(std::string_view word) {
    run.state.atHand.take(word);
    speech.DocTu(utteranceAtHand(run.state));
  }
};

int countVoices(int voices) {
  ScriptedOptions options;
  options.voices = voices;
  test::ShellRun run(options);
  RecordedVoice voice(run.state.places, run.machine.wave, run.shell.messages);
  Speech speech(run.machine.platform, run.shell.steering, voice);
  speech.DemGiong();
  return speech.SoGiong;
}

// -- Set-up.

TEST(SpeechVoices, AreCountedUpToAHundredAndNoneCountsAsOne) {
  EXPECT_EQ(countVoices(3), 3);
  EXPECT_EQ(countVoices(1), 1);
  EXPECT_EQ(countVoices(0), 1);
  EXPECT_EQ(countVoices(99), 99);
  EXPECT_EQ(countVoices(100), 100);
  EXPECT_EQ(countVoices(150), 100);
}

TEST_F(SpeechTest, SetUpReadsTheSettingsAndChoosesTheLastVoiceWithoutASound) {
  stores.writeSetting(setting::SoundOn, 1);
  stores.writeSetting(setting::SpeedLevel, 7);
  speech.setUp(stores);
  EXPECT_EQ(speech.AmThanhBat, 1);
  EXPECT_EQ(speech.TocDoDoc, 7);
  EXPECT_EQ(speech.GiongDoc, 3);
  EXPECT_EQ(logged<std::int64_t>("select", "value"), Numbers{3});
  EXPECT_EQ(logged<std::int64_t>("speed", "value"), Numbers{170});
  EXPECT_EQ(spoken(), Texts{});
}

TEST_F(SpeechTest, LevelsRunFrom50To230WordsAMinute) {
  for (const auto& [level, speed] : {std::pair{1, 50}, {10, 230}}) {
    stores.writeSetting(setting::SpeedLevel, level);
    speech.setUp(stores);
    EXPECT_EQ(logged<std::int64_t>("speed", "value"), Numbers{speed});
    forgetLog();
  }
}

TEST_F(SpeechTest, ABrokenSpeedRecordIsSurvived) {
  for (const std::int32_t level :
       {std::numeric_limits<std::int32_t>::max(), std::numeric_limits<std::int32_t>::min()}) {
    stores.writeSetting(setting::SpeedLevel, level);
    speech.setUp(stores);
    EXPECT_EQ(speech.TocDoDoc > 0, level > 0);
  }
}

// -- The word at hand.

TEST_F(SpeechTest, AShortWordIsSpokenTwiceInSmallLetters) {
  speakWord("Elephant");
  EXPECT_EQ(spoken(), (Texts{"elephant", "elephant"}));
}

TEST_F(SpeechTest, FourteenCharactersAreSpokenTwiceAndFifteenOnce) {
  speakWord("fourteen chars");
  EXPECT_EQ(spoken(), (Texts{"fourteen chars", "fourteen chars"}));
  forgetLog();
  speakWord("fifteen letters");
  EXPECT_EQ(spoken(), Texts{"fifteen letters"});
}

TEST_F(SpeechTest, WhatSoundsBeforeIsStoppedFirst) {
  speakWord("one sentence that goes on");
  speakWord("another sentence that goes on");
  std::vector<std::string> deeds;
  for (const LogEntry& entry : run.machine.log.entries())
    deeds.push_back(entry.what);
  EXPECT_EQ(deeds, (Texts{"stopspeaking", "speak", "stopspeaking", "speak"}));
}

TEST_F(SpeechTest, DigitsAndPunctuationAreSpeakable) {
  speakWord("Room 12: it's (only) 9/10; yes? No! A-b, c.");
  EXPECT_EQ(spoken(), Texts{"room 12: it's (only) 9/10; yes? no! a-b, c."});
}

TEST_F(SpeechTest, AnyOtherCharacterMakesTheTextUnspeakable) {
  for (const char* text : {"t\xFA", "a_b", "a@b", "\"quoted\"", "a\tb", "one & two", "it\x92s"}) {
    speakWord(text);
    EXPECT_EQ(spoken(), Texts{}) << text;
  }
}

TEST_F(SpeechTest, AnEmptyWordIsNotSpoken) {
  speakWord("");
  EXPECT_EQ(spoken(), Texts{});
}

TEST_F(SpeechTest, WithTheSoundOffNothingIsSpokenOrPlayed) {
  openRecording({500, 900});
  setSettings(0, 5);
  run.state.atHand.showInstead("a translation");
  run.state.text.CauChon = 2;
  speakWord("word");
  EXPECT_EQ(spoken(), Texts{});
  EXPECT_EQ(waveCommands(), Texts{});
}

TEST_F(SpeechTest, ARecordedSentenceIsPlayedInsteadOfSpoken) {
  openRecording({500, 900, 1700});
  run.state.atHand.showInstead("a translation");
  run.state.text.CauChon = 3;
  speakWord("A sentence of the text.");
  EXPECT_EQ(spoken(), Texts{});
  EXPECT_EQ(waveCommands(), (Texts{"Stop", "Play 500 900"}));
}

TEST_F(SpeechTest, TheTitleAWordAndATextWithoutRecordingAreSpoken) {
  openRecording({500, 900, 1700});
  run.state.atHand.showInstead("a translation");
  run.state.text.CauChon = 1;
  speakWord("The title of the text");
  run.state.atHand.showInstead("");
  run.state.text.CauChon = 2;
  speakWord("A word of the text alone");
  run.state.atHand.showInstead("a translation");
  voice.AmThanhThuc = false;
  speakWord("Nothing is recorded of this");
  EXPECT_EQ(spoken().size(), 3U);
  EXPECT_EQ(waveCommands(), Texts{});
}

TEST_F(SpeechTest, StoppingStopsARecordingOnlyWhileItPlays) {
  openRecording({500, 900});
  speech.DungDoc();
  EXPECT_EQ(waveCommands(), Texts{});
  voice.PhatCau(1);
  forgetLog();
  speech.DungDoc();
  EXPECT_EQ(waveCommands(), Texts{"Stop"});
  EXPECT_TRUE(voice.DaDung());
  EXPECT_EQ(run.machine.log.count("stopspeaking"), 1);
}

// -- Waiting for a sentence.

class WaitTest : public SpeechTest {
 protected:
  /// Waits for a sentence of 10 characters, which takes 600 ms.
  void wait() {
    run.state.atHand.take("A Sentence");
    before = run.machine.time.nowMs();
    speech.ChoDoc(run.state.word.TuHienTai, position, quit);
  }
  [[nodiscard]] std::int64_t waited() const { return run.machine.time.nowMs() - before; }
  void press(int keyCode, int after) { run.machine.input.hold(keyCode, after, 15); }

  int position = 5;
  int quit = 0;
  std::int64_t before = 0;
};

TEST_F(WaitTest, ASentenceIsWaitedForInRoundsOfTwoSleeps) {
  wait();
  EXPECT_EQ(spoken(), Texts{"a sentence"});
  EXPECT_EQ(waited(), 600);
  EXPECT_EQ(position, 5);
  EXPECT_EQ(quit, 0);
}

TEST_F(WaitTest, TheSentenceIsSpokenWithTheSoundOffToo) {
  setSettings(0, 5);
  wait();
  EXPECT_EQ(spoken(), Texts{"a sentence"});
}

TEST_F(WaitTest, EscQuits) {
  press(key::Esc, 195);
  wait();
  EXPECT_EQ(quit, 1);
  EXPECT_EQ(waited(), 200);
  EXPECT_EQ(position, 5);
  EXPECT_FALSE(run.machine.speech.IsSpeaking());
}

TEST_F(WaitTest, RightAndDownGoOnToTheNextSentence) {
  for (const int arrow : {key::Right, key::Down}) {
    speech.LuiCau = true;
    press(arrow, 85);
    wait();
    EXPECT_EQ(waited(), 140) << arrow;
    EXPECT_EQ(position, 5);
    EXPECT_FALSE(speech.LuiCau);
    EXPECT_FALSE(run.machine.speech.IsSpeaking());
    EXPECT_EQ(quit, 0);
  }
}

TEST_F(WaitTest, LeftGoesBackASentenceAndWaitsOn) {
  press(key::Left, 85);
  wait();
  EXPECT_EQ(position, 4);
  EXPECT_TRUE(speech.LuiCau);
  EXPECT_EQ(waited(), 610);
}

TEST_F(WaitTest, LeftStaysAtTheFirstSentence) {
  position = 1;
  press(key::Left, 85);
  wait();
  EXPECT_EQ(position, 1);
  EXPECT_TRUE(speech.LuiCau);
}

TEST_F(WaitTest, LeftLeavesAPositionOfNoSentenceAlone) {
  position = 0;
  press(key::Left, 85);
  wait();
  EXPECT_EQ(position, 0);
  EXPECT_TRUE(speech.LuiCau);
}

TEST_F(WaitTest, UpGoesBackTwoSentences) {
  press(key::Up, 85);
  wait();
  EXPECT_EQ(position, 3);
  EXPECT_EQ(waited(), 140);
  EXPECT_FALSE(run.machine.speech.IsSpeaking());
  position = 2;
  press(key::Up, 85);
  wait();
  EXPECT_EQ(position, 1);
}

TEST_F(WaitTest, UpBehindAStepBackGoesAheadOfTheSavedSentence) {
  speech.LuiCau = true;
  speech.savedSentence = 9;
  press(key::Up, 85);
  wait();
  EXPECT_EQ(position, 8);
  EXPECT_FALSE(speech.LuiCau);
}

TEST_F(WaitTest, KeysOfTheWaitingAreForgottenBehindIt) {
  run.machine.input.keyDown(key::Right);
  run.machine.input.keyUp(key::Right);
  run.machine.input.keyDown(key::Esc);
  run.machine.input.keyUp(key::Esc);
  wait();
  EXPECT_EQ(waited(), 60);
  EXPECT_EQ(quit, 0);
  EXPECT_FALSE(run.machine.input.GetAsyncKeyState(key::Esc));
}

TEST_F(WaitTest, ARecordedSentenceIsPlayedAndWaitedFor) {
  openRecording({501, 900, 1700});
  position = 3;
  wait();
  EXPECT_EQ(spoken(), Texts{});
  EXPECT_EQ(waveCommands(), (Texts{"Stop", "Play 1 501"}));
  EXPECT_EQ(waited(), 500);
}

TEST_F(WaitTest, AheadOfTheFirstRecordedSentenceNothingIsPlayed) {
  openRecording({501, 900, 1700});
  position = 1;
  wait();
  EXPECT_EQ(spoken(), Texts{});
  EXPECT_EQ(waveCommands(), Texts{});
  EXPECT_EQ(waited(), 20);
}

} // namespace
} // namespace talvora
