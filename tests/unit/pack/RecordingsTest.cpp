// Recordings of the listening scripts: exact marks, and nothing is made twice.
#include "pack/Recordings.h"

#include "pack/RecordedPack.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

TEST(Recordings, EveryRecordingHasABlockAndScriptsYetUnwrittenAnEmptyOne) {
  RecordedPack pack;
  pack.build(twoScripts());
  const auto blocks = pack.blocks();
  ASSERT_EQ(blocks.size(), 9U);
  for (std::size_t block = 0; block < blocks.size(); ++block)
    EXPECT_EQ(blocks[block].size(), block == 0 ? 2U : block == 3 ? 1U : 0U);
}

TEST(Recordings, TheLastMarkIsTheExactLengthOfTheWave) {
  RecordedPack pack;
  pack.build(twoScripts());
  for (const std::size_t number : {1U, 4U}) {
    const std::string wave = pack.bytes("sound/" + std::to_string(number) + ".wav");
    EXPECT_EQ(wave.substr(0, 4), "RIFF");
    // One channel, 16,000 samples a second, 16 bits.
    EXPECT_EQ(wave.substr(22, 6), std::string("\x01\x00\x80\x3E\x00\x00", 6));
    EXPECT_EQ(wave.substr(34, 2), std::string("\x10\x00", 2));
    const auto last = static_cast<std::size_t>(pack.blocks()[number - 1].back());
    EXPECT_EQ(wave.size(), waveHeader + last * waveBytesPerMs);
  }
}

TEST(Recordings, ASentenceWithNothingToSayStillHasItsMark) {
  ReadingSource readings;
  readings.texts[400] = textOf({"...", "?!", "Go."});
  RecordedPack pack;
  pack.build(readings);
  const Marks marks = pack.blocks()[0];
  ASSERT_EQ(marks.size(), 3U);
  EXPECT_GT(marks[0], 1);
  EXPECT_LT(marks[0], marks[1]);
  EXPECT_LT(marks[1], marks[2]);
}

TEST(Recordings, ASecondBuildKeepsThemAndTheirMarks) {
  RecordedPack pack;
  EXPECT_EQ(pack.build(twoScripts()),
            (std::vector<std::string>{"DataS", "sound/1.stamp", "sound/1.wav", "sound/4.stamp",
                                      "sound/4.wav"}));
  EXPECT_EQ(pack.steps().size(), 4U) << "a step for each speaker of a script";
  const auto marks = pack.blocks();
  EXPECT_EQ(pack.build(twoScripts()), std::vector<std::string>{"DataS"});
  EXPECT_TRUE(pack.steps().empty());
  EXPECT_EQ(pack.blocks(), marks);
}

TEST(Recordings, OnlyAChangedScriptIsSpokenAgain) {
  RecordedPack pack;
  ReadingSource readings = twoScripts();
  pack.build(readings);
  readings.texts[400].paragraphs[0][1].english = "She works there.";
  readings.texts[403].title = "Another title";
  EXPECT_EQ(pack.build(readings),
            (std::vector<std::string>{"DataS", "sound/1.stamp", "sound/1.wav"}));
}

TEST(Recordings, WithoutItsWaveOrAWholeStampARecordingIsMadeAgain) {
  RecordedPack pack;
  pack.build(twoScripts());
  std::filesystem::remove(pack.path() / "sound/1.wav");
  const std::string stamp = pack.bytes("sound/4.stamp");
  ASSERT_FALSE(store({"sound/4.stamp", stamp.substr(0, stamp.find('\n'))}, pack.path()));
  EXPECT_EQ(pack.build(twoScripts()).size(), 5U);
}

TEST(Recordings, WithoutAPackNoneIsMade) {
  const auto files = compileRecordings(twoScripts(), {}, {}, std::nullopt, [](std::string_view) {});
  ASSERT_EQ(files.size(), 1U);
  EXPECT_EQ(files[0].name, "DataS");
  EXPECT_EQ(files[0].bytes.size(), 9U * 4);
}

TEST(Recordings, ThatOfAScriptThatIsGoneIsRemoved) {
  RecordedPack pack;
  ReadingSource readings = twoScripts();
  pack.build(readings);
  readings.texts.erase(403);
  pack.build(readings);
  removeUnmarkedRecordings(pack.path(), pack.bytes("DataS"));
  EXPECT_EQ(pack.bytes("sound/4.wav"), "(missing)");
  EXPECT_EQ(pack.bytes("sound/4.stamp"), "(missing)");
  EXPECT_NE(pack.bytes("sound/1.wav"), "(missing)");
}

} // namespace
} // namespace talvora::pack
