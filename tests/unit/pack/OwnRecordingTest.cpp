// A teacher's own recordings, and the speakers that a script names.
#include "pack/OwnRecording.h"

#include "pack/Lexicon.h"
#include "pack/ReadingSource.h"
#include "pack/Recordings.h"
#include "pack/SourceFile.h"
#include "pack/SpeechLevel.h"
#include "pack/Told.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using test::TestFolder;
using testing::ElementsAre;
using testing::HasSubstr;

/// A wave file of so many milliseconds.
std::string waveOf(int ms) {
  return waveFileOf(Samples(static_cast<std::size_t>(ms) * 16, 100), 16000);
}

TEST(OwnRecording, IsReadWithItsMarks) {
  TestFolder folder;
  folder.write("2.wav", waveOf(1500));
  folder.write("2.txt", "// ends of sentences\n700\n1500\n");
  Problems problems;
  const auto own = readOwnRecordings(folder.path(), {{2, 2}}, problems);
  EXPECT_THAT(told(problems), ElementsAre());
  ASSERT_EQ(own.count(2), 1U);
  EXPECT_EQ(own.at(2).wave, waveOf(1500));
  EXPECT_THAT(own.at(2).marks, ElementsAre(700, 1500));
}

TEST(OwnRecording, TellsWhatCannotBeUsed) {
  const auto problemsOf = [](const std::string& wave, const std::string& marks) {
    TestFolder folder;
    folder.write("1.wav", wave);
    folder.write("1.txt", marks);
    Problems problems;
    static_cast<void>(readOwnRecordings(folder.path(), {{1, 2}}, problems));
    return told(problems);
  };
  EXPECT_THAT(problemsOf("no sound", "1\n700\n600\n"),
              ElementsAre(HasSubstr("1.txt:1:1: a mark is"), HasSubstr("1.txt:3:1: a mark is"),
                          HasSubstr("1.wav: is no wave file")));
  EXPECT_THAT(problemsOf(waveOf(900), "700\n"),
              ElementsAre(HasSubstr("has 1 marks, and the script")));
  EXPECT_THAT(problemsOf(waveOf(900), "700\n901\n"),
              ElementsAre(HasSubstr("behind the recording's end at 900 ms")));
  TestFolder folder;
  folder.write("3.wav", waveOf(900));
  Problems problems;
  static_cast<void>(readOwnRecordings(folder.path(), {{1, 2}}, problems));
  EXPECT_THAT(told(problems), ElementsAre(HasSubstr("3.wav: a recording is 1.wav to 9.wav")));
}

ReadingSource oneScript() {
  ReadingSource readings;
  readings.texts[400] = {"T", {{{"Good morning.", "x"}, {"It rains.", "x"}}}};
  return readings;
}

void noProgress(std::string_view) {}

TEST(OwnRecording, TakesThePlaceOfTheSynthesisedOneAndIsKept) {
  TestFolder pack;
  std::filesystem::create_directories(std::filesystem::path(pack.path()) / "sound");
  const std::map<int, OwnRecording> own = {{1, {waveOf(1500), {700, 1500}}}};
  const auto files = compileRecordings(oneScript(), own, {}, pack.path(), noProgress);
  ASSERT_EQ(files.size(), 3U);
  EXPECT_EQ(files[0].bytes, waveOf(1500));
  for (const PackFile& file : files)
    ASSERT_FALSE(store(file, pack.path()));
  EXPECT_EQ(compileRecordings(oneScript(), own, {}, pack.path(), noProgress).size(), 1U);
  const std::map<int, OwnRecording> moved = {{1, {waveOf(1500), {800, 1500}}}};
  EXPECT_EQ(compileRecordings(oneScript(), moved, {}, pack.path(), noProgress).size(), 3U);
  EXPECT_EQ(compileRecordings(oneScript(), {}, {}, pack.path(), noProgress).size(), 3U)
      << "without it the voices speak again";
}

TEST(Speakers, TakeTurnsWhereTheScriptNamesNone) {
  const auto script = scriptsOf(oneScript()).front();
  EXPECT_EQ(script.lines[0].speaker, Speaker::Rms);
  EXPECT_EQ(script.lines[1].speaker, Speaker::Slt);
}

TEST(Speakers, AreNamedInTheLineAheadOfASentence) {
  Problems problems;
  const std::string source = "title: T\n\n// voice: slt\nGood morning.\n= x\nIt rains.\n= x\n";
  ReadingSource readings;
  readings.texts[400] = parseReadingText(source, "t", problems);
  EXPECT_THAT(told(problems), ElementsAre());
  EXPECT_EQ(scriptsOf(readings).front().lines[0].speaker, Speaker::Slt);
  EXPECT_EQ(scriptsOf(readings).front().lines[1].speaker, Speaker::Slt);
  EXPECT_EQ(writeReadingText(readings.texts[400]), source);
  static_cast<void>(parseReadingText("title: T\n\n// voice: tom\nA.\n= x\n", "t", problems));
  EXPECT_THAT(told(problems), ElementsAre(HasSubstr("t:3:11: a voice is")));
}

TEST(Speakers, HaveOneLevelAndTheRateOfTheirUnit) {
  if (!hasLexicon()) GTEST_SKIP() << "built without speech";
  EXPECT_DOUBLE_EQ(syllablesASecond(1), 3.0);
  EXPECT_DOUBLE_EQ(syllablesASecond(9), 4.8);
  ReadingSource readings = oneScript();
  readings.texts[400].paragraphs[0][0].speaker = "slt";
  readings.texts[408] = readings.texts[400];
  TestFolder pack;
  std::map<std::string, std::string> waves;
  for (const PackFile& file : compileRecordings(readings, {}, {}, pack.path(), noProgress))
    waves[file.name] = file.bytes;
  EXPECT_GT(waves["sound/1.wav"].size(), waves["sound/9.wav"].size()) << "the first unit is slower";
  const std::string bytes = waves["sound/1.wav"].substr(44);
  Samples samples(bytes.size() / 2);
  for (std::size_t at = 0; at < samples.size(); ++at) {
    samples[at] = static_cast<std::int16_t>(static_cast<unsigned char>(bytes[2 * at]) |
                                            static_cast<unsigned char>(bytes[2 * at + 1]) << 8);
  }
  EXPECT_NEAR(speechLevel(samples, 16000), RecordedLevel, 1.0);
}

} // namespace
} // namespace talvora::pack
