// The recorded voice: opening, marks, stretches, and the report of a missing recording.
#include "SoundRun.h"

#include "platform/FatalFailure.h"
#include "text/Bytes.h"

#include <gmock/gmock.h>

namespace talvora {
namespace {

using namespace literals;
using test::Numbers;
using test::SoundRun;
using test::Texts;

class RecordedVoiceTest : public SoundRun {
 protected:
  [[nodiscard]] std::string missing(const std::string& name) const {
    return std::string("ThiÉu File âm thanh  "_bytes) + name +
           std::string("  trong thŸ müc "_bytes) + folder.path() + "\\sound";
  }
  [[nodiscard]] Texts messages() const { return logged<std::string>("message", "text"); }

  /// The message of the failure that an action ends in; empty when it does not.
  template <class Action>
  static std::string failureOf(Action action) {
    try {
      action();
    } catch (const FatalFailure& failure) {
      return failure.what();
    }
    return {};
  }
};

// -- Opening.

TEST_F(RecordedVoiceTest, ARecordingIsOpenedByItsTrimmedName) {
  folder.writeIntegers("DataS", {1, 700, 1, 800});
  folder.write("sound/2.wav", "");
  voice.MoAm(" 2 ");
  EXPECT_TRUE(voice.AmThanhThuc);
  EXPECT_EQ(voice.TenAm, "2.wav");
  EXPECT_EQ(waveCommands(), (Texts{"Close", "Open"}));
  EXPECT_EQ(logged<std::string>("mm", "file").back(), folder.pathOf("sound/2.wav"));
  EXPECT_EQ(voice.SoMoc, 1);
  EXPECT_EQ(voice.BangMoc[1], 800);
  EXPECT_EQ(messages(), Texts{});
}

TEST_F(RecordedVoiceTest, ClosingGivesTheTextBackToTheEngine) {
  openRecording({500});
  voice.DongAm();
  EXPECT_FALSE(voice.AmThanhThuc);
  EXPECT_EQ(waveCommands(), Texts{"Close"});
}

// -- Marks.

TEST_F(RecordedVoiceTest, ABlockIsFoundByItsNumber) {
  folder.writeIntegers("DataS", {1, 100, 200, 1, 300, 1, 400, 500, 600});
  voice.NapMoc(1);
  EXPECT_EQ(voice.SoMoc, 2);
  EXPECT_EQ(voice.BangMoc[0], 1);
  EXPECT_EQ(voice.BangMoc[2], 200);
  voice.NapMoc(3);
  EXPECT_EQ(voice.SoMoc, 3);
  EXPECT_EQ(voice.BangMoc[0], 1);
  EXPECT_EQ(voice.BangMoc[1], 400);
  EXPECT_EQ(voice.BangMoc[3], 600);
}

TEST_F(RecordedVoiceTest, MarksOfALongerRecordingDoNotStayBehind) {
  folder.writeIntegers("DataS", {1, 100, 200, 300, 1, 400});
  voice.NapMoc(1);
  voice.NapMoc(2);
  EXPECT_EQ(voice.SoMoc, 1);
  EXPECT_EQ(voice.BangMoc[1], 400);
  EXPECT_EQ(voice.BangMoc[2], 0);
}

TEST_F(RecordedVoiceTest, RecordsBelowOneAreNoMarks) {
  folder.writeIntegers("DataS", {1, 0, 100, -7, 200});
  voice.NapMoc(1);
  EXPECT_EQ(voice.SoMoc, 2);
  EXPECT_EQ(voice.BangMoc[2], 200);
}

TEST_F(RecordedVoiceTest, ANumberAboveTheBlocksHasNoMarksAndPlaysNothing) {
  folder.writeIntegers("DataS", {1, 100, 200});
  voice.NapMoc(2);
  EXPECT_EQ(voice.SoMoc, 0);
  voice.PhatCau(1);
  voice.PhatCau(1000);
  EXPECT_EQ(waveCommands(), (Texts{"Stop", "Stop"}));
}

TEST_F(RecordedVoiceTest, AnEmptyTableHasNoMarks) {
  folder.write("DataS", "");
  voice.NapMoc(1);
  EXPECT_EQ(voice.SoMoc, 0);
}

TEST_F(RecordedVoiceTest, BytesThatMakeNoWholeRecordAreLeftOut) {
  folder.write("DataS", std::string("\x01\0\0\0\x64\0\0\0\x65\0\0", 11));
  voice.NapMoc(1);
  EXPECT_EQ(voice.SoMoc, 1);
  EXPECT_EQ(voice.BangMoc[1], 100);
}

TEST_F(RecordedVoiceTest, ThreeHundredMarksFitAndOneMoreIsFatal) {
  std::vector<std::int32_t> records{1, 50, 1};
  for (int mark = 1; mark <= 300; ++mark)
    records.push_back(mark * 10);
  folder.writeIntegers("DataS", records);
  voice.NapMoc(2);
  EXPECT_EQ(voice.SoMoc, 300);
  EXPECT_EQ(voice.BangMoc[300], 3000);

  records.push_back(3010);
  folder.writeIntegers("DataS", records);
  const std::string failure = failureOf([this] { voice.NapMoc(2); });
  EXPECT_THAT(failure, testing::HasSubstr(folder.pathOf("DataS")));
  EXPECT_THAT(failure, testing::HasSubstr("record 304"));
  EXPECT_NO_THROW(voice.NapMoc(1));
}

TEST_F(RecordedVoiceTest, AMissingTableOfMarksIsFatalAndNamed) {
  folder.remove("DataS");
  folder.write("sound/1.wav", "");
  EXPECT_THAT(failureOf([this] { voice.MoAm(1); }), testing::HasSubstr(folder.pathOf("DataS")));
}

// -- Playing.

TEST_F(RecordedVoiceTest, TheFirstSentencePlaysFromMark1ToTheFirstStoredMark) {
  openRecording({900, 1500});
  voice.PhatCau(1);
  EXPECT_EQ(waveCommands(), (Texts{"Stop", "Play 1 900"}));
  EXPECT_TRUE(voice.DangPhat());
  EXPECT_FALSE(voice.DaDung());
  run.machine.time.pass(899);
  EXPECT_FALSE(voice.DangPhat());
  EXPECT_TRUE(voice.DaDung());
}

TEST_F(RecordedVoiceTest, ALaterSentencePlaysFromTheMarkBefore) {
  openRecording({900, 1500});
  voice.PhatCau(2);
  EXPECT_EQ(waveCommands(), (Texts{"Stop", "Play 900 1500"}));
}

TEST_F(RecordedVoiceTest, ASentenceBehindTheLastTakesWhatTheTableHoldsAndTakesNoTime) {
  openRecording({900, 1500});
  voice.PhatCau(3);
  EXPECT_EQ(waveCommands(), (Texts{"Stop", "Play 1500 0"}));
  EXPECT_TRUE(voice.DaDung());
  voice.PhatCau(300);
  EXPECT_TRUE(voice.DaDung());
}

TEST_F(RecordedVoiceTest, ASentenceOutsideTheTableIsFatal) {
  openRecording({900, 1500});
  for (const int k : {0, -1, 301}) {
    EXPECT_THAT(failureOf([this, k] { voice.PhatCau(k); }), testing::HasSubstr("DataS")) << k;
  }
}

// -- A missing recording.

TEST_F(RecordedVoiceTest, AMissingRecordingIsReportedForTenSeconds) {
  voice.MoAm(4);
  EXPECT_FALSE(voice.AmThanhThuc);
  EXPECT_EQ(messages(), Texts{missing("4.wav")});
  EXPECT_EQ(logged<std::int64_t>("message", "ms"), Numbers{10000});
  EXPECT_EQ(waveCommands(), Texts{});
  EXPECT_EQ(voice.SoThieuAm, 1);
  EXPECT_EQ(voice.DsThieuAm, (Texts{"", "4.wav"}));
}

TEST_F(RecordedVoiceTest, TheSameMissingRecordingTwiceInARowIsReportedOnce) {
  voice.MoAm(4);
  voice.MoAm(4);
  EXPECT_EQ(messages(), Texts{missing("4.wav")});
  EXPECT_EQ(voice.SoThieuAm, 1);
}

TEST_F(RecordedVoiceTest, TwoMissingRecordingsInTurnAreReportedEveryTime) {
  for (const int number : {4, 5, 4, 5})
    voice.MoAm(number);
  EXPECT_EQ(messages(),
            (Texts{missing("4.wav"), missing("5.wav"), missing("4.wav"), missing("5.wav")}));
  EXPECT_EQ(voice.SoThieuAm, 4);
  EXPECT_EQ(voice.DsThieuAm, (Texts{"", "4.wav", "5.wav", "4.wav", "5.wav"}));
}

TEST_F(RecordedVoiceTest, AfterAMissingRecordingTheEngineSpeaks) {
  openRecording({500});
  voice.MoAm(9);
  EXPECT_FALSE(voice.AmThanhThuc);
}

} // namespace
} // namespace talvora
