// A teacher's own recordings, and the speakers that a script names.
#include "pack/OwnRecording.h"

#include "pack/ReadingSource.h"
#include "pack/RecordedPack.h"
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

TEST(OwnRecording, TakesThePlaceOfTheSynthesisedOneAndIsKept) {
  RecordedPack pack;
  pack.own = {{1, {waveOf(1500), {700, 1500}}}};
  EXPECT_EQ(pack.build(oneScript()).size(), 3U);
  EXPECT_EQ(pack.bytes("sound/1.wav"), waveOf(1500));
  EXPECT_EQ(pack.build(oneScript()).size(), 1U);
  pack.own.at(1).marks = {800, 1500};
  EXPECT_EQ(pack.build(oneScript()).size(), 3U);
  pack.own.clear();
  EXPECT_EQ(pack.build(oneScript()).size(), 3U) << "without it the voices speak again";
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

} // namespace
} // namespace talvora::pack
