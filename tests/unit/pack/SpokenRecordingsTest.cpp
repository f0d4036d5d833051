// What is heard in a recording that the voices made.
#include "pack/RecordedPack.h"
#include "pack/SpeechLevel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

namespace talvora::pack {
namespace {

bool isSilent(std::string_view wave, std::int32_t fromMs, std::int32_t toMs) {
  const auto part = wave.substr(waveHeader + static_cast<std::size_t>(fromMs) * waveBytesPerMs,
                                static_cast<std::size_t>(toMs - fromMs) * waveBytesPerMs);
  return std::all_of(part.begin(), part.end(), [](char byte) { return byte == '\0'; });
}

TEST(Recordings, ASentenceEndsWithAPauseAndTheNextBeginsAtItsMark) {
  RecordedPack pack;
  pack.build(twoScripts());
  const std::string wave = pack.bytes("sound/1.wav");
  const Marks marks = pack.blocks()[0];
  ASSERT_EQ(marks.size(), 2U);
  EXPECT_LT(marks[0], marks[1]);
  EXPECT_TRUE(isSilent(wave, marks[0] - 300, marks[0]));
  EXPECT_FALSE(isSilent(wave, 0, marks[0] - 300));
  EXPECT_FALSE(isSilent(wave, marks[0], marks[1]));
}

TEST(Recordings, ACorrectedPronunciationSpeaksAgainWhatHasTheWord) {
  RecordedPack pack;
  pack.build(twoScripts());
  const auto before = pack.blocks();
  pack.pronunciations =
      Pronunciations({{SpokenWhere::Everywhere, "rains", "r ey1 n d r aa1 p s ax0 n t r iy1 z"},
                      {SpokenWhere::Alone, "works", "w ah1 k s"}});
  EXPECT_EQ(pack.build(twoScripts()),
            (std::vector<std::string>{"DataS", "sound/4.stamp", "sound/4.wav"}));
  EXPECT_GT(pack.blocks()[3].back(), before[3].back());
  Voice::learn({});
}

TEST(Recordings, SoundTheSameInEveryBuild) {
  RecordedPack one;
  one.build(twoScripts());
  ReadingSource only = twoScripts();
  only.texts.erase(400);
  RecordedPack other;
  other.build(only);
  EXPECT_EQ(one.bytes("sound/4.wav"), other.bytes("sound/4.wav"))
      << "whatever was spoken ahead of it";
}

TEST(Speakers, HaveOneLevelAndTheRateOfTheirUnit) {
  EXPECT_DOUBLE_EQ(syllablesASecond(1), 3.0);
  EXPECT_DOUBLE_EQ(syllablesASecond(9), 4.8);
  ReadingSource readings = oneScript();
  readings.texts[400].paragraphs[0][0].speaker = "slt";
  readings.texts[408] = readings.texts[400];
  RecordedPack pack;
  pack.build(readings);
  const std::string first = pack.bytes("sound/1.wav");
  EXPECT_GT(first.size(), pack.bytes("sound/9.wav").size()) << "the first unit is slower";
  Samples samples((first.size() - waveHeader) / 2);
  for (std::size_t at = 0; at < samples.size(); ++at) {
    const auto byte = [&](std::size_t which) {
      return static_cast<unsigned char>(first[waveHeader + 2 * at + which]);
    };
    samples[at] = static_cast<std::int16_t>(byte(0) | byte(1) << 8);
  }
  EXPECT_NEAR(speechLevel(samples, 16000), RecordedLevel, 1.0);
}

} // namespace
} // namespace talvora::pack
