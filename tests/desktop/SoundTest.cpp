// The player of samples, the speech engine and the wave player of the desktop, heard by a device
// that only counts.
#include "desktop/Heard.h"
#include "desktop/Modules.h"
#include "desktop/PcmPlayer.h"
#include "desktop/ThreadedSpeech.h"
#include "desktop/WaveOutput.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace talvora {
namespace {

using namespace std::chrono_literals;

constexpr int Rate = HeardRate;

Samples rising(int count) {
  Samples samples;
  for (int place = 0; place < count; ++place)
    samples.push_back(static_cast<std::int16_t>(place));
  return samples;
}

// -- The clock and the player.

TEST(PlayClock, SoundsFollowEachOther) {
  PlayClock clock;
  const PlayClock::Moment start(10s);
  EXPECT_FALSE(clock.isPlaying(start));
  clock.add(start, Rate, Rate);
  clock.add(start + 200ms, Rate / 2, Rate);
  EXPECT_TRUE(clock.isPlaying(start + 1499ms));
  EXPECT_FALSE(clock.isPlaying(start + 1500ms));
  clock.add(start + 5s, Rate, Rate);
  EXPECT_TRUE(clock.isPlaying(start + 5999ms));
  EXPECT_FALSE(clock.isPlaying(start + 6000ms));
  clock.add(start + 10s, Rate, Rate);
  clock.stop(start + 10100ms);
  EXPECT_FALSE(clock.isPlaying(start + 10100ms));
}

TEST(PcmPlayer, TheDeviceGetsEverySampleInOrder) {
  Heard heard;
  PcmPlayer player(counting(heard));
  player.play(rising(3000), Rate);
  player.play(rising(500), Rate);
  ASSERT_TRUE(comesTrue([&] { return heard.count() >= 3500; }));
  Samples expected = rising(3000);
  const Samples second = rising(500);
  expected.insert(expected.end(), second.begin(), second.end());
  EXPECT_EQ(heard.samples(), expected);
  EXPECT_EQ(heard.rate(), Rate);
}

TEST(PcmPlayer, ADeviceThatTakesLittleAtATimeGetsEverySampleToo) {
  Heard heard;
  PcmPlayer player(counting(heard, 7));
  player.play(rising(1000), Rate);
  ASSERT_TRUE(comesTrue([&] { return heard.count() >= 1000; }));
  EXPECT_EQ(heard.samples(), rising(1000));
}

TEST(PcmPlayer, StoppingSilencesTheDeviceAndDropsTheRest) {
  Heard heard;
  PcmPlayer player(counting(heard, 0));
  player.play(Samples(600 * Rate), Rate);
  EXPECT_TRUE(player.isPlaying());
  ASSERT_TRUE(comesTrue([&] { return heard.writes() > 0; }));
  player.stop();
  EXPECT_FALSE(player.isPlaying());
  EXPECT_TRUE(comesTrue([&] { return heard.silences() == 1; }));
  EXPECT_EQ(heard.count(), 0U);
}

TEST(PcmPlayer, WithoutADeviceTheTimingStays) {
  PcmPlayer player({});
  player.play(Samples(600 * Rate), Rate);
  EXPECT_TRUE(player.isPlaying());
  player.stop();
  EXPECT_FALSE(player.isPlaying());
  player.play(rising(Rate / 100), Rate);
  EXPECT_TRUE(comesTrue([&] { return !player.isPlaying(); }));
}

TEST(PcmPlayer, TheDeviceIsMadeWithTheFirstSound) {
  Heard heard;
  std::atomic<int> made = 0;
  const auto makeDevice = [&] {
    ++made;
    return counting(heard)();
  };
  {
    PcmPlayer player(makeDevice);
    player.stop();
  }
  EXPECT_EQ(made, 0);
  PcmPlayer player(makeDevice);
  player.play(rising(10), Rate);
  player.play(rising(10), Rate);
  EXPECT_TRUE(comesTrue([&] { return heard.count() == 20; }));
  EXPECT_EQ(made, 1);
}

TEST(PcmPlayer, WhatWasStoppedWhileTheDeviceWasMadeIsNotHeard) {
  Heard heard;
  std::atomic<bool> stopped = false;
  PcmPlayer player([&] {
    comesTrue([&] { return stopped.load(); });
    return counting(heard)();
  });
  player.play(Samples(600 * Rate), Rate);
  player.stop();
  player.play(rising(10), Rate);
  stopped = true;
  EXPECT_TRUE(comesTrue([&] { return heard.count() >= 10; }));
  EXPECT_EQ(heard.samples(), rising(10));
}

TEST(PcmPlayer, ItEndsWhileItPlays) {
  Heard heard;
  PcmPlayer player(counting(heard, 0));
  player.play(Samples(600 * Rate), Rate);
}

// -- The speech engine.

constexpr int LastVoice = 10;

/// Says a tenth of a second of the number of the voice for each text.
class CountingVoices final : public Voices {
 public:
  explicit CountingVoices(std::vector<std::string>& said) : said_(said) {}

  bool say(const std::string& text, int number, int wordsPerMinute, const Take& take) override {
    said_.push_back(text + " " + std::to_string(wordsPerMinute));
    const Samples samples(Rate / 10, static_cast<std::int16_t>(number));
    return take(samples, Rate);
  }

 private:
  std::vector<std::string>& said_; ///< read when the engine is gone
};

ThreadedSpeech::MakeVoices none() {
  return [](const std::vector<LexiconEntry>&) { return nullptr; };
}

TEST(ThreadedSpeech, VoicesAreNumberedFromOne) {
  ThreadedSpeech speech({}, none());
  EXPECT_FALSE(speech.Select(0));
  for (int voice = 1; voice <= LastVoice; ++voice)
    EXPECT_TRUE(speech.Select(voice)) << voice;
  EXPECT_FALSE(speech.Select(LastVoice + 1));
}

TEST(ThreadedSpeech, StoppingEndsWhatIsQueued) {
  ThreadedSpeech speech({}, none());
  speech.Speed(50);
  for (int time = 0; time < 100; ++time)
    speech.Speak("a sentence that takes its time");
  EXPECT_TRUE(speech.IsSpeaking());
  speech.StopSpeaking();
  EXPECT_FALSE(speech.IsSpeaking());
  speech.StopSpeaking();
}

TEST(ThreadedSpeech, ABlankTextIsNotSpoken) {
  ThreadedSpeech speech({}, none());
  speech.Speak("");
  speech.Speak("  ");
  EXPECT_FALSE(speech.IsSpeaking());
}

TEST(ThreadedSpeech, ATextHasTheVoiceAndTheSpeedThatWereInUseWhenItCame) {
  Heard heard;
  std::vector<std::string> said;
  {
    ThreadedSpeech speech(counting(heard), [&](const std::vector<LexiconEntry>&) {
      return std::make_unique<CountingVoices>(said);
    });
    speech.Select(2);
    speech.Speed(50);
    speech.Speak("go");
    speech.Select(LastVoice);
    speech.Speed(230);
    speech.Speak("come");
    EXPECT_TRUE(comesTrue([&] { return heard.count() >= Rate / 5; }));
  }
  EXPECT_EQ(said, (std::vector<std::string>{"go 50", "come 230"}));
  EXPECT_EQ(heard.samples().front(), 2);
  EXPECT_EQ(heard.samples().back(), LastVoice);
}

TEST(ThreadedSpeech, TheVoicesAreMadeWithTheFirstWordAndOnce) {
  std::atomic<int> read = 0;
  std::atomic<int> made = 0;
  std::atomic<int> lexicon = 0;
  Heard heard;
  std::vector<std::string> said;
  ThreadedSpeech speech(
      counting(heard),
      [&](const std::vector<LexiconEntry>& entries) {
        lexicon = static_cast<int>(entries.size());
        ++made;
        return std::make_unique<CountingVoices>(said);
      },
      [&] {
        ++read;
        return Pronunciations({{SpokenWhere::Everywhere, "colonel", "k er1 n ax0 l"}});
      });
  EXPECT_TRUE(speech.Select(1));
  speech.StopSpeaking();
  EXPECT_EQ(read, 0);
  EXPECT_EQ(made, 0);
  speech.Speak("go");
  speech.Speak("come");
  EXPECT_TRUE(comesTrue([&] { return heard.count() >= Rate / 5; }));
  EXPECT_EQ(read, 1);
  EXPECT_EQ(made, 1);
  EXPECT_EQ(lexicon, 1);
}

/// Has no voice of any number.
class NoVoices final : public Voices {
 public:
  bool say(const std::string&, int, int, const Take&) override { return false; }
};

TEST(ThreadedSpeech, WithoutAVoiceATextTakesItsTimeSilently) {
  const std::vector<ThreadedSpeech::MakeVoices> missing = {
      none(), [](const std::vector<LexiconEntry>&) { return std::make_unique<NoVoices>(); }};
  for (const auto& makeVoices : missing) {
    Heard heard;
    {
      ThreadedSpeech speech(counting(heard), makeVoices);
      speech.Speed(230);
      speech.Speak("a word or two");
      speech.Speak("and more");
      EXPECT_TRUE(speech.IsSpeaking());
      EXPECT_TRUE(comesTrue([&] { return !speech.IsSpeaking(); }));
    }
    const Samples samples = heard.samples();
    EXPECT_GT(samples.size(), std::size_t{Rate / 2});
    EXPECT_TRUE(std::all_of(samples.begin(), samples.end(), [](auto each) { return each == 0; }));
  }
}

TEST(ThreadedSpeech, ItEndsWhileItSpeaks) {
  ThreadedSpeech speech({}, none());
  speech.Speak("a sentence that nobody will hear to its end");
}

// -- The wave player.

TEST(WaveOutput, WithNothingToReadFilesAStretchTakesItsTimeSilently) {
  Heard heard;
  WaveOutput wave(counting(heard), [](const std::string&) { return nullptr; });
  wave.Play(0, 100);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Open("1.wav");
  wave.Play(500, 400);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Play(400, 500);
  EXPECT_EQ(wave.Mode(), WavePlayer::Playing);
  EXPECT_TRUE(comesTrue([&] { return wave.Mode() == WavePlayer::Stopped; }));
  const Samples samples = heard.samples();
  EXPECT_TRUE(std::all_of(samples.begin(), samples.end(), [](auto each) { return each == 0; }));
}

// -- Modules.

TEST(Modules, WhatCannotBeLoadedIsSaidOnStandardError) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(functionOfModule("talvora-nothing", "talvoraMakeNothing", "dancing"), nullptr);
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_NE(said.find("there will be no dancing: talvora-nothing.so"), std::string::npos) << said;
}

} // namespace
} // namespace talvora
