// The voices of flite, through the speech engine of the desktop.
#include "desktop/FliteModule.h"
#include "desktop/Heard.h"
#include "desktop/Sound.h"
#include "desktop/ThreadedSpeech.h"

#include <flite/flite.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numeric>
#include <thread>
#include <vector>

namespace talvora {
namespace {

using namespace std::chrono_literals;

constexpr int Rate = HeardRate;
constexpr int Clearest = 10;

std::unique_ptr<Voices> fliteVoices(std::vector<LexiconEntry> lexicon) {
  return std::make_unique<FliteVoices>(loadFliteVoice, std::move(lexicon));
}

/// What is heard of a text at a speed, once the engine has no more to say.
Samples spoken(std::string_view text, int voice, int wordsPerMinute, int times = 1) {
  Heard heard;
  ThreadedSpeech speech(counting(heard), fliteVoices);
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

TEST(FliteVoices, EveryVoiceHasTheLevelOfTheRecordings) {
  for (int voice = 1; voice <= Clearest; ++voice) {
    const Samples samples = spoken("My sister is washing the dishes in the kitchen.", voice, 175);
    EXPECT_NEAR(speechLevel(samples), -20.0, 2.0) << voice; // Sentences differ so much.
  }
}

TEST(FliteVoices, TheNumbersShareThreeVoicesAndTheLastHasTheClearest) {
  const auto load = [](int number) { return loadFliteVoice(fliteVoiceName(number)); };
  ASSERT_NE(load(Clearest), nullptr);
  EXPECT_STREQ(load(Clearest)->name, "slt");
  for (int voice = 1; voice + 3 <= Clearest; ++voice)
    EXPECT_EQ(load(voice), load(voice + 3)) << voice;
  EXPECT_NE(load(Clearest - 1), load(Clearest));
}

TEST(FliteVoices, SlowAndFastFollowTheSpeed) {
  const auto slow = static_cast<double>(spokenSamples("go", 50));
  const auto fast = static_cast<double>(spokenSamples("go", 230));
  EXPECT_GT(fast, 0);
  EXPECT_NEAR(slow / fast, 230.0 / 50.0, 0.6);
}

TEST(FliteVoices, ASecondTextQueuesBehindTheFirst) {
  EXPECT_EQ(spokenSamples("go", 230, 2), 2 * spokenSamples("go", 230));
}

TEST(FliteVoices, TheLibraryOfTheVoicesIsFoundAndSpeaks) {
  const std::unique_ptr<Voices> voices = loadVoices({});
  ASSERT_NE(voices, nullptr);
  std::size_t count = 0;
  EXPECT_TRUE(voices->say("go", Clearest, 175, [&](std::span<const std::int16_t> samples, int) {
    count += samples.size();
    return true;
  }));
  EXPECT_GT(count, std::size_t{Rate / 10});
}

TEST(FliteVoices, NothingMoreIsSaidWhenNoMoreIsWanted) {
  FliteVoices voices(loadFliteVoice, {});
  int parts = 0;
  voices.say("a sentence that nobody hears to its end", Clearest, 175,
             [&](std::span<const std::int16_t>, int) {
               ++parts;
               return false;
             });
  EXPECT_EQ(parts, 1);
}

} // namespace
} // namespace talvora
