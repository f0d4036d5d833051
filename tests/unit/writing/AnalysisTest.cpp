#include "writing/Analysis.h"
#include "exercises/ItemState.h"
#include "listening/DrillRun.h"
#include "platform/FatalFailure.h"
#include "text/Bytes.h"
#include "writing/PTCau.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::DrillRun;

constexpr Colour Blue = 0xFF0000;
const std::string Where = "here";

TEST(AnalysisStretches, EachMarkOfTheBodyEndsOne) {
  const auto stretches = LapOTuPT("|Title| \tI|go. |Then stop.  |", 8, Where);
  ASSERT_EQ(stretches.size(), 3U);
  EXPECT_EQ(stretches[0], (AnalysedStretch{6, 11, ""}));
  EXPECT_EQ(stretches[1], (AnalysedStretch{12, 16, ""}));
  EXPECT_EQ(stretches[2], (AnalysedStretch{17, 29, ""}));
}

/// Of a failure.
template <class Reading>
std::string messageOf(const Reading& reading) {
  try {
    reading();
  } catch (const FatalFailure& failure) {
    return failure.what();
  }
  return {};
}

TEST(AnalysisStretches, MoreThanTheTableHoldsEndTheProgram) {
  EXPECT_EQ(LapOTuPT(std::string(1000, '|'), 1, Where).size(), 1000U);
  EXPECT_EQ(messageOf([] { return LapOTuPT(std::string(1001, '|'), 1, "/pack/texts"); }),
            "/pack/texts has more than 1000 stretches");
  EXPECT_EQ(GanGiaiPT(std::string(999, '^'), Where).size(), 1000U);
  EXPECT_EQ(messageOf([] { return GanGiaiPT(std::string(1000, '^'), "/pack/told"); }),
            "/pack/told has more than 1000 explanations");
}

TEST(AnalysisEntries, FieldsGetTheirLabelsInTurn) {
  const auto entries = GanGiaiPT("ignored\r| I\r| n\r| p\r| f\r| w\r| I | because\r", Where);
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0],
            std::string("\r&TÙ: I\r&TÜ loäi: n\r&Vï trí: p\r&ChÚc nšng: f\r&Y"
                        "’cÌn viÉt: w\r&Phåi có tÙ I ß vï trí này vì: because\r"_bytes));
}

TEST(AnalysisEntries, AMarkStartsTheNextEntryAndItsFields) {
  const auto entries = GanGiaiPT("\r| a\r^rest of the line\r| b\r", Where);
  EXPECT_EQ(entries, (std::vector<std::string>{std::string("\r&TÙ: a\r"_bytes),
                                               std::string("\r&TÙ: b\r"_bytes)}));
}

TEST(AnalysisEntries, TheLabelsBeginAgainBehindTheSeventh) {
  const auto entries = GanGiaiPT("\r||||||||", Where);
  EXPECT_THAT(entries[0], testing::EndsWith(std::string("ß vï trí này vì:&TÙ:"_bytes)));
}

TEST(AnalysisMark, TakesTheStretchWithoutItsBlanks) {
  EXPECT_EQ(markAt("|T| \tgo home|now |", 8), (WordMark{5, 7}));
  EXPECT_EQ(markAt("|T| \tgo home|now |", 16), (WordMark{13, 3}));
}

TEST(AnalysisMark, APointAndAQuotationMarkStayBlack) {
  EXPECT_EQ(markAt("|T| \tgo.\"|", 7), (WordMark{5, 2}));
  EXPECT_EQ(markAt("|T| \tgo...|", 7), (WordMark{5, 3}));
}

TEST(AnalysisMark, BehindAnOpeningQuotationMarkItReachesFartherToTheRight) {
  EXPECT_EQ(markAt("|T| \t\"Go on|", 8), (WordMark{6, 6}));
}

TEST(AnalysisMark, NothingStandsInAnEmptyStretchOrBehindTheText) {
  EXPECT_EQ(markAt("|T|   |", 5).SelLength, 0);
  EXPECT_EQ(markAt("|", 1).SelLength, 0);
  EXPECT_EQ(markAt("", 9).SelLength, 0);
  EXPECT_EQ(markAt("", -1).SelLength, 0);
}

// -- In an open text.

class AnalysedText : public testing::Test {
 protected:
  AnalysedText() : analysis(run.state(), run.stores, run.base.shell, item), R2(run.controls().R2) {
    analysis.calls.GiaiThich = [this](int p, Surface&) { explained.push_back(p); };
    analysis.calls.ThayTenBai = [this](std::string& text) { resolved = text; };
  }

  void open(const std::string& stored, const std::string& record) {
    run.writeTexts({{4, {stored, "_X."}}});
    run.folder.writeIntegers("dataPt.vt", {0});
    run.folder.writeStream("dataPt.v", record);
    run.open(5);
    ReadingText text(run.stores, run.state().text);
    text.DocBai(4);
    R2.Text(run.state().text.CauHoi);
    run.base.show(R2);
    analysis.NapPhanTich(1);
  }
  std::string explanationOf(const std::string& word) {
    const int p = static_cast<int>(R2.Text().find(word)) + 1;
    return item.OTrong.at(item.OTrong.find(p)).Chu;
  }
  void clickWord(const std::string& word, int inside = 0) {
    R2.SelStart(static_cast<int>(R2.Text().find(word)) + inside);
    analysis.GiaiTuPT(R2);
  }

  DrillRun run;
  ItemState item;
  PTCau analysis;
  Surface& R2;
  std::vector<int> explained;
  std::string resolved;
};

TEST_F(AnalysedText, EachStretchGetsItsEntry) {
  open("My day\r_\tI|get up. _Then|I eat.\r", "\r| I\r^\r| get up\r^\r| Then\r^\r| I eat\r@");
  EXPECT_EQ(item.OTrong.count(), 4);
  EXPECT_EQ(explanationOf("I get"), std::string("\r&TÙ: I\r"_bytes));
  EXPECT_EQ(explanationOf("up."), std::string("\r&TÙ: get up\r"_bytes));
  EXPECT_EQ(explanationOf("eat"), std::string("\r&TÙ: I eat\r"_bytes));
}

TEST_F(AnalysedText, SaysThatItLoadsAndTakesThatDown) {
  run.base.machine.log.take();
  open("My day\r_\tI go.\r", "\r| I go\r@");
  EXPECT_EQ(run.messages(), std::vector<std::string>{"Loading Data..."});
  EXPECT_FALSE(run.controls().RHD.Visible());
}

TEST_F(AnalysedText, AQuestionMarkFirstOnALineRefersToALesson) {
  open("My day\r_\tI go.\r", "\r| Why? I\r?12\r@");
  EXPECT_EQ(resolved, "\r| Why? I\r`12\r");
}

TEST_F(AnalysedText, AClickMarksTheStretchAndExplainsIt) {
  open("My day\r_\tI|get up. _Then|I eat.\r", "\r| I\r^\r| get up\r@");
  clickWord("up.", 1);
  const int start = static_cast<int>(R2.Text().find("get"));
  EXPECT_EQ(item.ChuCu, "get up");
  EXPECT_EQ(item.ViTriChuCu, start);
  EXPECT_TRUE(item.DaCham);
  EXPECT_EQ(explained, std::vector<int>{start + 6});
  R2.SelStart(start);
  R2.SelLength(6);
  EXPECT_EQ(R2.SelColor(), Blue);
  R2.SelStart(start + 6);
  R2.SelLength(1);
  EXPECT_NE(R2.SelColor(), Blue);
}

TEST_F(AnalysedText, BlanksLineEndsAndTheTitleDoNothing) {
  open("My day\r_\tI|get up. _Then|I eat.\r", "\r| I\r@");
  clickWord("My day", 3);
  clickWord("get up", 3);
  R2.SelStart(R2.TextLength() - 1);
  analysis.GiaiTuPT(R2);
  EXPECT_TRUE(explained.empty());
  EXPECT_EQ(item.ChuCu, "");
}

TEST_F(AnalysedText, FewerEntriesThanStretchesLeaveTheRestEmpty) {
  open("My day\r_\tI|get up. _Then|I eat.\r", "\r| I\r@");
  EXPECT_EQ(item.OTrong.count(), 4);
  EXPECT_EQ(explanationOf("eat"), "");
}

TEST_F(AnalysedText, ARecordWithoutItsEndStopsAtTheFilesEnd) {
  open("My day\r_\tI go.\r", "\r| I go");
  EXPECT_EQ(explanationOf("go"), std::string("\r&TÙ: I go"_bytes));
}

} // namespace
} // namespace talvora
