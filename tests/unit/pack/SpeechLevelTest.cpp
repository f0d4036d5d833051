// One loudness for every sentence.
#include "pack/SpeechLevel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace talvora::pack {
namespace {

constexpr int rate = 16000;

Samples tone(double hz, double amplitude, double offset = 0) {
  Samples samples(rate);
  for (std::size_t at = 0; at < samples.size(); ++at) {
    const double phase = 2 * std::numbers::pi * hz * static_cast<double>(at) / rate;
    samples[at] = static_cast<std::int16_t>(std::lround(amplitude * std::sin(phase) + offset));
  }
  return samples;
}

TEST(SpeechLevel, IsThatOfASineWave) {
  // Half of full scale is -6 dB, and a sine wave lies 3 dB below its peak.
  EXPECT_NEAR(speechLevel(tone(440, 16384), rate), -9.03, 0.05);
}

TEST(SpeechLevel, PassesOverPauses) {
  Samples samples = tone(440, 16384);
  samples.resize(3 * samples.size());
  EXPECT_NEAR(speechLevel(samples, rate), -9.03, 0.05);
  EXPECT_EQ(speechLevel(Samples(rate), rate), -120.0);
  EXPECT_EQ(speechLevel({}, rate), -120.0);
}

TEST(SpeechLevel, IsReachedFromAboveAndBelow) {
  for (const double amplitude : {300.0, 20000.0}) {
    Samples samples = tone(440, amplitude);
    bringToLevel(samples, rate, RecordedLevel);
    EXPECT_NEAR(speechLevel(samples, rate), RecordedLevel, 0.1);
  }
}

TEST(SpeechLevel, StaysLowerWherePeaksWouldBeCutOff) {
  Samples samples = tone(440, 1000);
  bringToLevel(samples, rate, 0.0);
  EXPECT_LE(*std::max_element(samples.begin(), samples.end()), 29205); // -1 dB
  EXPECT_NEAR(speechLevel(samples, rate), -4.0, 0.1);
}

TEST(SpeechLevel, TheHighPassTakesOutAnOffsetAndRumbleAndLeavesSpeech) {
  Samples offset(rate, 300);
  highPass(offset, rate);
  EXPECT_LE(std::abs(static_cast<int>(offset.back())), 1);
  Samples rumble = tone(10, 8000);
  const double before = speechLevel(rumble, rate);
  highPass(rumble, rate);
  EXPECT_LT(speechLevel(rumble, rate), before - 20);
  Samples speech = tone(300, 8000, 200);
  highPass(speech, rate);
  EXPECT_NEAR(speechLevel(speech, rate), speechLevel(tone(300, 8000), rate), 0.2);
}

} // namespace
} // namespace talvora::pack
