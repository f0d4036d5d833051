// Clock, sound, boxes, desk and event loop of the scripted machine.
#include "platform/scripted/ScriptedMachine.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

std::string textOf(const LogEntry& entry, std::string_view field) {
  const LogValue* const value = entry.find(field);
  return value == nullptr ? "(none)" : std::get<std::string>(*value);
}

TEST(ScriptedClock, SleepLetsVirtualTimePassAndLogsItsBeginning) {
  ScriptedMachine machine;
  static_cast<void>(machine.clock.Sleep(600));
  static_cast<void>(machine.clock.Sleep(20));
  EXPECT_EQ(machine.clock.nowMs(), 620);
  const LogEntry second{600, "sleep", {{"ms", logNumber(20)}}};
  EXPECT_EQ(machine.log.entries().back(), second);
}

TEST(ScriptedClock, TimeNeverGoesBack) {
  ScriptedMachine machine;
  static_cast<void>(machine.clock.Sleep(5));
  static_cast<void>(machine.clock.Sleep(-3));
  EXPECT_EQ(machine.clock.nowMs(), 5);
}

TEST(ScriptedLog, WhatWasTakenIsForgotten) {
  ScriptedMachine machine;
  machine.clipboard.clear();
  EXPECT_EQ(machine.log.take().size(), 1U);
  EXPECT_TRUE(machine.log.take().empty());
}

TEST(ScriptedSpeech, ASecondTextQueuesBehindTheFirst) {
  ScriptedOptions options;
  options.speechMsPerChar = 10;
  ScriptedMachine machine(options);
  machine.speech.Speak("abc");
  machine.speech.Speak("de");
  static_cast<void>(machine.clock.Sleep(49));
  EXPECT_TRUE(machine.speech.IsSpeaking());
  static_cast<void>(machine.clock.Sleep(1));
  EXPECT_FALSE(machine.speech.IsSpeaking());
}

TEST(ScriptedSpeech, StoppingEmptiesTheQueue) {
  ScriptedMachine machine;
  machine.speech.Speak("a long sentence");
  machine.speech.Speak("another");
  machine.speech.StopSpeaking();
  EXPECT_FALSE(machine.speech.IsSpeaking());
  machine.speech.Speak("a");
  static_cast<void>(machine.clock.Sleep(60));
  EXPECT_FALSE(machine.speech.IsSpeaking());
}

TEST(ScriptedSpeech, AVoiceThatDoesNotExistFailsAndIsLogged) {
  ScriptedOptions options;
  options.voices = 2;
  ScriptedMachine machine(options);
  EXPECT_TRUE(machine.speech.Select(1));
  EXPECT_TRUE(machine.speech.Select(2));
  EXPECT_FALSE(machine.speech.Select(3));
  EXPECT_FALSE(machine.speech.Select(0));
  const auto entries = machine.log.take();
  EXPECT_EQ(entries[1].find("failed"), nullptr);
  ASSERT_NE(entries[2].find("failed"), nullptr);
  EXPECT_EQ(*entries[2].find("failed"), LogValue(true));
}

TEST(ScriptedWave, AStretchTakesItsLength) {
  ScriptedMachine machine;
  machine.wave.Open("sound/1.wav");
  EXPECT_EQ(machine.wave.Mode(), WavePlayer::Stopped);
  machine.wave.Play(100, 350);
  static_cast<void>(machine.clock.Sleep(249));
  EXPECT_EQ(machine.wave.Mode(), WavePlayer::Playing);
  static_cast<void>(machine.clock.Sleep(1));
  EXPECT_EQ(machine.wave.Mode(), WavePlayer::Stopped);
}

TEST(ScriptedWave, AStretchThatEndsAheadOfItsBeginningPlaysNothing) {
  ScriptedMachine machine;
  machine.wave.Open("sound/1.wav");
  machine.wave.Play(500, 100);
  EXPECT_EQ(machine.wave.Mode(), WavePlayer::Stopped);
}

TEST(ScriptedWave, StopAndCloseEndTheStretch) {
  ScriptedMachine machine;
  machine.wave.Open("sound/1.wav");
  machine.wave.Play(0, 1000);
  machine.wave.Stop();
  EXPECT_EQ(machine.wave.Mode(), WavePlayer::Stopped);
  machine.wave.Play(0, 1000);
  machine.wave.Close();
  EXPECT_EQ(machine.wave.Mode(), WavePlayer::Stopped);
  machine.wave.Play(0, 1000);
  EXPECT_EQ(machine.wave.Mode(), WavePlayer::Stopped) << "nothing is open";
}

TEST(ScriptedWave, EveryCommandIsLoggedWithItsFile) {
  ScriptedMachine machine;
  machine.wave.Open("sound/7.wav");
  machine.wave.Play(10, 20);
  machine.wave.Close();
  const auto entries = machine.log.take();
  ASSERT_EQ(entries.size(), 3U);
  EXPECT_EQ(textOf(entries[0], "command"), "Open");
  EXPECT_EQ(textOf(entries[1], "command"), "Play");
  EXPECT_EQ(textOf(entries[1], "file"), "sound/7.wav");
  EXPECT_EQ(*entries[1].find("from"), logNumber(10));
  EXPECT_EQ(*entries[1].find("to"), logNumber(20));
  EXPECT_EQ(textOf(entries[2], "command"), "Close");
}

TEST(ScriptedBoxes, QueuedAnswersAreGivenInOrderThenTheDefault) {
  ScriptedMachine machine;
  machine.boxes.answer(BoxAnswer::No);
  machine.boxes.answer(BoxAnswer::Yes);
  EXPECT_EQ(machine.boxes.ask("one?", "title", BoxAnswer::Yes), BoxAnswer::No);
  EXPECT_EQ(machine.boxes.ask("two?", "title", BoxAnswer::No), BoxAnswer::Yes);
  EXPECT_EQ(machine.boxes.ask("three?", "title", BoxAnswer::No), BoxAnswer::No);
  const auto entries = machine.log.take();
  EXPECT_EQ(textOf(entries[0], "default"), "yes");
  EXPECT_EQ(textOf(entries[0], "answer"), "no");
  EXPECT_EQ(textOf(entries[2], "buttons"), "yes-no");
}

TEST(ScriptedBoxes, AMessageBoxTakesNoQueuedAnswer) {
  ScriptedMachine machine;
  machine.boxes.answer(BoxAnswer::No);
  machine.boxes.tell("hello");
  EXPECT_EQ(textOf(machine.log.entries()[0], "buttons"), "ok");
  EXPECT_EQ(machine.boxes.ask("?", "", BoxAnswer::Yes), BoxAnswer::No);
}

TEST(ScriptedInstallation, TheEngineIsThereExactlyWhenItHasAVoice) {
  ScriptedOptions options;
  options.voices = 0;
  const ScriptedMachine without(options);
  EXPECT_FALSE(without.installation.speechEngineInstalled());
  EXPECT_FALSE(without.installation.englishVoiceInstalled());
  const ScriptedMachine with;
  EXPECT_TRUE(with.installation.speechEngineInstalled());
  EXPECT_TRUE(with.installation.englishVoiceInstalled());
}

TEST(ScriptedEvents, InterruptAtOnceUnlessFramesAreAllowed) {
  ScriptedMachine machine;
  EXPECT_EQ(machine.events.letEventsRun(), Flow::Interrupt);
  machine.narrator.frameShown(1, 14);
  machine.events.allowFrames(2);
  machine.narrator.frameShown(1, 14);
  EXPECT_EQ(machine.events.letEventsRunUntilNextFrame(), Flow::Continue);
  machine.narrator.frameShown(1, 8);
  EXPECT_EQ(machine.events.letEventsRun(), Flow::Interrupt);
  machine.events.allowFrames(5);
  machine.events.interrupt();
  EXPECT_EQ(machine.events.letEventsRun(), Flow::Interrupt);
}

TEST(ScriptedNarrator, PicturesBearTheNameOfTheirButton) {
  ScriptedMachine machine;
  machine.narrator.frameShown(12, 9);
  EXPECT_EQ(textOf(machine.log.entries()[0], "button"), "but12");
}

TEST(ScriptedMachine, ThePlatformIsTheMachineItself) {
  ScriptedMachine machine;
  EXPECT_EQ(machine.platform.clock.Sleep(5), Flow::Continue);
  machine.platform.input.SetCursorPos({3, 4});
  EXPECT_EQ(machine.time.nowMs(), 5);
  EXPECT_EQ(machine.input.cursorPos(), (PixelPoint{3, 4}));
  EXPECT_EQ(&machine.platform.random, &machine.random);
}

TEST(ScriptedMachine, TheSeedDecidesTheRandomNumbers) {
  ScriptedOptions options;
  options.seed = 5;
  ScriptedMachine one(options);
  ScriptedMachine same(options);
  options.seed = 6;
  ScriptedMachine other(options);
  const double first = one.random.Rnd();
  EXPECT_EQ(first, same.random.Rnd());
  EXPECT_NE(first, other.random.Rnd());
}

} // namespace
} // namespace talvora
