// Speech and wave playing of the desktop, heard by a device that only counts.
#include "desktop/FliteSpeech.h"
#include "desktop/PcmPlayer.h"
#include "desktop/SilentSpeech.h"
#include "desktop/WaveOutput.h"

#include <flite/flite.h>
#include <gtest/gtest.h>
#include <sndfile.hh>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <limits>
#include <mutex>
#include <numeric>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace talvora {
namespace {

using namespace std::chrono_literals;

constexpr int Rate = 16000;
/// Far beyond what any machine needs; only a hang gets there.
constexpr auto Patience = 60s;

/// What the devices of a test were given.
class Heard {
 public:
  void add(std::span<const std::int16_t> samples, int rate) {
    const std::lock_guard lock(mutex_);
    samples_.insert(samples_.end(), samples.begin(), samples.end());
    rate_ = rate;
    ++writes_;
  }
  void silence() {
    const std::lock_guard lock(mutex_);
    ++silences_;
  }
  [[nodiscard]] Samples samples() const {
    const std::lock_guard lock(mutex_);
    return samples_;
  }
  [[nodiscard]] std::size_t count() const { return samples().size(); }
  [[nodiscard]] int silences() const {
    const std::lock_guard lock(mutex_);
    return silences_;
  }
  /// How often a device was given samples, whether it took any or none.
  [[nodiscard]] int writes() const {
    const std::lock_guard lock(mutex_);
    return writes_;
  }
  [[nodiscard]] int rate() const {
    const std::lock_guard lock(mutex_);
    return rate_;
  }

 private:
  mutable std::mutex mutex_;
  Samples samples_;
  int silences_ = 0;
  int writes_ = 0;
  int rate_ = 0;
};

class CountingDevice final : public PcmDevice {
 public:
  CountingDevice(Heard& heard, std::size_t room) : heard_(heard), room_(room) {}

  std::size_t write(std::span<const std::int16_t> samples, int rate) override {
    const auto taken = std::min(samples.size(), room_);
    heard_.add(samples.first(taken), rate);
    return taken;
  }
  void silence() override { heard_.silence(); }

 private:
  Heard& heard_;
  std::size_t room_;
};

PcmPlayer::MakeDevice counting(Heard& heard, std::size_t room = Rate) {
  return [&heard, room] { return std::make_unique<CountingDevice>(heard, room); };
}

template <class Condition>
bool comesTrue(Condition condition) {
  const auto until = std::chrono::steady_clock::now() + Patience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > until) return false;
    std::this_thread::sleep_for(1ms);
  }
  return true;
}

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

// -- Speech.

constexpr int Clearest = 10;

/// What is heard of a text at a speed, once the engine has no more to say.
Samples spoken(std::string_view text, int voice, int wordsPerMinute, int times = 1) {
  Heard heard;
  FliteSpeech speech(counting(heard));
  EXPECT_TRUE(speech.Select(voice));
  speech.Speed(wordsPerMinute);
  for (int time = 0; time < times; ++time)
    speech.Speak(text);
  EXPECT_TRUE(speech.IsSpeaking());
  EXPECT_TRUE(comesTrue([&] { return !speech.IsSpeaking(); }));
  std::size_t count = 0;
  // The device is fed on a thread of its own and may be a little behind.
  comesTrue([&] {
    const std::size_t before = std::exchange(count, heard.count());
    std::this_thread::sleep_for(100ms);
    return before == heard.count() && before > 0;
  });
  return heard.samples();
}

std::size_t spokenSamples(std::string_view text, int wordsPerMinute, int times = 1) {
  return spoken(text, Clearest, wordsPerMinute, times).size();
}

/// The level in dB of fiftieths of a second in which somebody speaks.
double speechLevel(const Samples& samples) {
  constexpr std::size_t frame = Rate / 50;
  std::vector<double> powers;
  for (std::size_t from = 0; from + frame <= samples.size(); from += frame) {
    double power = 0;
    for (std::size_t at = from; at < from + frame; ++at)
      power += static_cast<double>(samples[at]) * samples[at];
    powers.push_back(power / frame);
  }
  const double loudest = *std::max_element(powers.begin(), powers.end());
  std::erase_if(powers, [loudest](double power) { return power < loudest / 1000; });
  const double mean =
      std::accumulate(powers.begin(), powers.end(), 0.0) / static_cast<double>(powers.size());
  return 10 * std::log10(mean / (32768.0 * 32768.0));
}

TEST(FliteSpeech, EveryVoiceHasTheLevelOfTheRecordings) {
  for (int voice = 1; voice <= Clearest; ++voice) {
    const Samples samples = spoken("My sister is washing the dishes in the kitchen.", voice, 175);
    EXPECT_NEAR(speechLevel(samples), -20.0, 2.0) << voice; // Sentences differ so much.
  }
}

TEST(FliteSpeech, VoicesAreNumberedFromOne) {
  FliteSpeech speech({});
  EXPECT_FALSE(speech.Select(0));
  for (int voice = 1; voice <= Clearest; ++voice)
    EXPECT_TRUE(speech.Select(voice)) << voice;
  EXPECT_FALSE(speech.Select(Clearest + 1));
}

TEST(FliteSpeech, TheNumbersShareThreeVoicesAndTheLastHasTheClearest) {
  ASSERT_NE(loadFliteVoice(Clearest), nullptr);
  EXPECT_STREQ(loadFliteVoice(Clearest)->name, "slt");
  for (int voice = 1; voice + 3 <= Clearest; ++voice)
    EXPECT_EQ(loadFliteVoice(voice), loadFliteVoice(voice + 3)) << voice;
  EXPECT_NE(loadFliteVoice(Clearest - 1), loadFliteVoice(Clearest));
}

TEST(SilentSpeech, HasAsManyNumbersAsTheVoices) {
  SilentSpeech speech;
  EXPECT_FALSE(speech.Select(0));
  for (int voice = 1; voice <= Clearest; ++voice)
    EXPECT_TRUE(speech.Select(voice)) << voice;
  EXPECT_FALSE(speech.Select(Clearest + 1));
}

TEST(FliteSpeech, SlowAndFastFollowTheSpeed) {
  const auto slow = static_cast<double>(spokenSamples("go", 50));
  const auto fast = static_cast<double>(spokenSamples("go", 230));
  EXPECT_GT(fast, 0);
  EXPECT_NEAR(slow / fast, 230.0 / 50.0, 0.6);
}

TEST(FliteSpeech, ASecondTextQueuesBehindTheFirst) {
  EXPECT_EQ(spokenSamples("go", 230, 2), 2 * spokenSamples("go", 230));
}

TEST(FliteSpeech, StoppingEndsWhatIsQueued) {
  FliteSpeech speech({});
  speech.Speed(50);
  for (int time = 0; time < 100; ++time)
    speech.Speak("a sentence that takes its time");
  EXPECT_TRUE(speech.IsSpeaking());
  speech.StopSpeaking();
  EXPECT_FALSE(speech.IsSpeaking());
  speech.StopSpeaking();
}

TEST(FliteSpeech, ABlankTextIsNotSpoken) {
  FliteSpeech speech({});
  speech.Speak("");
  speech.Speak("  ");
  EXPECT_FALSE(speech.IsSpeaking());
}

TEST(FliteSpeech, AVoiceIsLoadedWithItsFirstWord) {
  std::atomic<int> loaded = 0;
  FliteSpeech speech({}, [&](int voice) {
    loaded = voice;
    return nullptr;
  });
  EXPECT_TRUE(speech.Select(1));
  EXPECT_TRUE(speech.Select(Clearest));
  EXPECT_EQ(loaded, 0);
  speech.Speak("go");
  EXPECT_TRUE(comesTrue([&] { return loaded == Clearest; }));
}

TEST(FliteSpeech, AVoiceThatIsNotThereTakesItsTimeSilently) {
  Heard heard;
  {
    FliteSpeech speech(counting(heard), [](int) { return nullptr; });
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

TEST(FliteSpeech, ItEndsWhileItSpeaks) {
  FliteSpeech speech({});
  speech.Speak("a sentence that nobody will hear to its end");
}

// -- Waves.

/// A wave file in which sample n of the first channel has the value n, and the second is silent.
class WaveFile {
 public:
  WaveFile(int frames, int rate, int channels)
      : path_(std::filesystem::temp_directory_path() /
              ("talvora-sound-" + std::to_string(getpid()) + ".wav")) {
    SndfileHandle file(path_.string(), SFM_WRITE, SF_FORMAT_WAV | SF_FORMAT_PCM_16, channels, rate);
    Samples samples(static_cast<std::size_t>(frames * channels));
    for (int frame = 0; frame < frames; ++frame) {
      samples[static_cast<std::size_t>(frame * channels)] = static_cast<std::int16_t>(frame);
    }
    file.writef(samples.data(), frames);
  }
  WaveFile(const WaveFile&) = delete;
  WaveFile& operator=(const WaveFile&) = delete;
  ~WaveFile() { std::filesystem::remove(path_); }

  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

/// A FLAC file of so many frames, each of the value 1, whose header claims the most that it can.
class BoastingFile {
 public:
  explicit BoastingFile(int frames)
      : path_(std::filesystem::temp_directory_path() /
              ("talvora-sound-" + std::to_string(getpid()) + ".flac")) {
    {
      SndfileHandle file(path_.string(), SFM_WRITE, SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 1, Rate);
      const Samples samples(static_cast<std::size_t>(frames), 1);
      file.writef(samples.data(), frames);
    }
    // The number of frames takes the lower half of the byte 21 and the four that follow.
    std::fstream file(path_, std::ios::in | std::ios::out | std::ios::binary);
    file.seekg(ClaimAt);
    const int half = file.get();
    file.seekp(ClaimAt);
    file.put(static_cast<char>(half | 0x0F));
    file << "\xFF\xFF\xFF\xFF";
  }
  BoastingFile(const BoastingFile&) = delete;
  BoastingFile& operator=(const BoastingFile&) = delete;
  ~BoastingFile() { std::filesystem::remove(path_); }

  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  static constexpr int ClaimAt = 21;

  std::filesystem::path path_;
};

TEST(WaveOutput, AHeaderThatClaimsMoreThanThereIsCostsNothing) {
  const BoastingFile file(20000);
  ASSERT_EQ(SndfileHandle(file.path()).frames(), (std::int64_t{1} << 36) - 1);
  Heard heard;
  WaveOutput wave(counting(heard));
  wave.Open(file.path());
  wave.Play(0, std::numeric_limits<int>::max());
  EXPECT_TRUE(comesTrue([&] { return heard.count() >= 20000; }));
  EXPECT_EQ(heard.samples(), Samples(20000, 1));
}

TEST(WaveOutput, AStretchIsPlayedFromMarkToMark) {
  const WaveFile file(2000, 1000, 1);
  Heard heard;
  WaveOutput wave(counting(heard));
  wave.Open(file.path());
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Play(100, 350);
  ASSERT_TRUE(comesTrue([&] { return heard.count() >= 250; }));
  ASSERT_TRUE(comesTrue([&] { return wave.Mode() == WavePlayer::Stopped; }));
  const Samples samples = heard.samples();
  ASSERT_EQ(samples.size(), 250U);
  EXPECT_EQ(samples.front(), 100);
  EXPECT_EQ(samples.back(), 349);
  EXPECT_EQ(heard.rate(), 1000);
}

TEST(WaveOutput, AStretchEndsWithTheFile) {
  const WaveFile file(300, 1000, 1);
  Heard heard;
  WaveOutput wave(counting(heard));
  wave.Open(file.path());
  wave.Play(200, 5000);
  ASSERT_TRUE(comesTrue([&] { return heard.count() >= 100; }));
  ASSERT_TRUE(comesTrue([&] { return wave.Mode() == WavePlayer::Stopped; }));
  EXPECT_EQ(heard.count(), 100U);
}

TEST(WaveOutput, ChannelsAreMixedToOne) {
  const WaveFile file(1000, 1000, 2);
  Heard heard;
  WaveOutput wave(counting(heard));
  wave.Open(file.path());
  wave.Play(100, 110);
  ASSERT_TRUE(comesTrue([&] { return heard.count() >= 10; }));
  EXPECT_EQ(heard.samples(), (Samples{50, 50, 51, 51, 52, 52, 53, 53, 54, 54}));
}

TEST(WaveOutput, AStretchWithoutLengthPlaysNothing) {
  const WaveFile file(2000, 1000, 1);
  WaveOutput wave({});
  wave.Open(file.path());
  wave.Play(500, 500);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Play(500, 0);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
}

TEST(WaveOutput, StoppingAndClosingEndTheStretch) {
  const WaveFile file(30000, 100, 1);
  WaveOutput wave({});
  wave.Open(file.path());
  wave.Play(1, 300000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Playing);
  wave.Stop();
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Play(1, 300000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Playing);
  wave.Close();
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Play(1, 300000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
}

TEST(WaveOutput, AFileThatIsMissingOrNoWavePlaysNothing) {
  WaveOutput wave({});
  wave.Play(1, 1000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Open("/nowhere/1.wav");
  wave.Play(1, 1000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
}

} // namespace
} // namespace talvora
