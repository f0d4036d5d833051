// Recordings of the listening scripts: exact marks, and nothing is made twice.
#include "pack/Recordings.h"

#include "formats/Integers.h"
#include "pack/Lexicon.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace talvora::pack {
namespace {

constexpr std::size_t waveHeader = 44;
constexpr std::size_t bytesPerMs = 32;

ReadingText textOf(const std::vector<std::string>& sentences) {
  ReadingText text{"Title", {{}}};
  for (const std::string& sentence : sentences)
    text.paragraphs[0].push_back({sentence, "..."});
  return text;
}

ReadingSource twoScripts() {
  ReadingSource readings;
  readings.texts[5] = textOf({"Nobody records this."});
  readings.texts[400] = textOf({"Good morning.", "She works here."});
  readings.texts[403] = textOf({"It rains."});
  return readings;
}

/// A pack folder into which builds go.
class Pack {
 public:
  /// Builds and gives the names of the files that were written.
  std::vector<std::string> build(const ReadingSource& readings) {
    std::vector<std::string> names;
    steps.clear();
    std::filesystem::create_directories(path() / "sound");
    for (const PackFile& file :
         compileRecordings(readings, own, pronunciations, path(),
                           [this](std::string_view step) { steps.emplace_back(step); })) {
      EXPECT_FALSE(store(file, path()));
      names.push_back(file.name);
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  Pronunciations pronunciations;

  [[nodiscard]] std::filesystem::path path() const { return folder_.path(); }
  [[nodiscard]] std::string bytes(const std::string& name) const {
    return readWhole(path() / name).value_or("(missing)");
  }
  /// DataS as lists of marks.
  [[nodiscard]] std::vector<Marks> blocks() const {
    const std::string table = bytes("DataS");
    std::vector<Marks> blocks;
    for (std::size_t record = 1; record <= table.size() / 4; ++record) {
      const auto value = integerAt(table, record);
      if (value == 1) {
        blocks.emplace_back();
      } else {
        blocks.back().push_back(value);
      }
    }
    return blocks;
  }

  std::vector<std::string> steps;
  std::map<int, OwnRecording> own;

 private:
  test::TestFolder folder_;
};

bool isSilent(std::string_view wave, std::int32_t fromMs, std::int32_t toMs) {
  const auto part = wave.substr(waveHeader + static_cast<std::size_t>(fromMs) * bytesPerMs,
                                static_cast<std::size_t>(toMs - fromMs) * bytesPerMs);
  return std::all_of(part.begin(), part.end(), [](char byte) { return byte == '\0'; });
}

TEST(Recordings, EveryRecordingHasABlockAndScriptsYetUnwrittenAnEmptyOne) {
  Pack pack;
  pack.build(twoScripts());
  const auto blocks = pack.blocks();
  ASSERT_EQ(blocks.size(), 9U);
  for (std::size_t block = 0; block < blocks.size(); ++block)
    EXPECT_EQ(blocks[block].size(), block == 0 ? 2U : block == 3 ? 1U : 0U);
}

TEST(Recordings, TheLastMarkIsTheExactLengthOfTheWave) {
  Pack pack;
  pack.build(twoScripts());
  for (const std::size_t number : {1U, 4U}) {
    const std::string wave = pack.bytes("sound/" + std::to_string(number) + ".wav");
    EXPECT_EQ(wave.substr(0, 4), "RIFF");
    // One channel, 16,000 samples a second, 16 bits.
    EXPECT_EQ(wave.substr(22, 6), std::string("\x01\x00\x80\x3E\x00\x00", 6));
    EXPECT_EQ(wave.substr(34, 2), std::string("\x10\x00", 2));
    const auto last = static_cast<std::size_t>(pack.blocks()[number - 1].back());
    EXPECT_EQ(wave.size(), waveHeader + last * bytesPerMs);
  }
}

TEST(Recordings, ASentenceEndsWithAPauseAndTheNextBeginsAtItsMark) {
  if (!hasLexicon()) GTEST_SKIP() << "built without speech";
  Pack pack;
  pack.build(twoScripts());
  const std::string wave = pack.bytes("sound/1.wav");
  const Marks marks = pack.blocks()[0];
  ASSERT_EQ(marks.size(), 2U);
  EXPECT_LT(marks[0], marks[1]);
  EXPECT_TRUE(isSilent(wave, marks[0] - 300, marks[0]));
  EXPECT_FALSE(isSilent(wave, 0, marks[0] - 300));
  EXPECT_FALSE(isSilent(wave, marks[0], marks[1]));
}

TEST(Recordings, ASentenceWithNothingToSayStillHasItsMark) {
  ReadingSource readings;
  readings.texts[400] = textOf({"...", "?!", "Go."});
  Pack pack;
  pack.build(readings);
  const Marks marks = pack.blocks()[0];
  ASSERT_EQ(marks.size(), 3U);
  EXPECT_GT(marks[0], 1);
  EXPECT_LT(marks[0], marks[1]);
  EXPECT_LT(marks[1], marks[2]);
}

TEST(Recordings, ASecondBuildKeepsThemAndTheirMarks) {
  Pack pack;
  EXPECT_EQ(pack.build(twoScripts()),
            (std::vector<std::string>{"DataS", "sound/1.stamp", "sound/1.wav", "sound/4.stamp",
                                      "sound/4.wav"}));
  EXPECT_EQ(pack.steps.size(), 4U) << "a step for each speaker of a script";
  const auto marks = pack.blocks();
  EXPECT_EQ(pack.build(twoScripts()), std::vector<std::string>{"DataS"});
  EXPECT_TRUE(pack.steps.empty());
  EXPECT_EQ(pack.blocks(), marks);
}

TEST(Recordings, OnlyAChangedScriptIsSpokenAgain) {
  Pack pack;
  ReadingSource readings = twoScripts();
  pack.build(readings);
  readings.texts[400].paragraphs[0][1].english = "She works there.";
  readings.texts[403].title = "Another title";
  EXPECT_EQ(pack.build(readings),
            (std::vector<std::string>{"DataS", "sound/1.stamp", "sound/1.wav"}));
}

TEST(Recordings, ACorrectedPronunciationSpeaksAgainWhatHasTheWord) {
  if (!hasLexicon()) GTEST_SKIP() << "built without speech";
  Pack pack;
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

TEST(Recordings, WithoutItsWaveOrAWholeStampARecordingIsMadeAgain) {
  Pack pack;
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
  Pack pack;
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
