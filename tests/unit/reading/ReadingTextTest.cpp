#include "platform/FatalFailure.h"
#include "support/ProgramRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ProgramRun;

const std::string Mark = "\xA0";

class OpenText : public testing::Test {
 protected:
  void open(const std::string& text, const std::string& translation) {
    run.writeTexts({{1, text, translation}});
    run.start();
    run.clickButton(1);
    run.controls().RDOS.Visible(false);
    run.controls().R1.SelStart(0);
    run.key(key::Enter);
  }

  std::vector<std::string> translations() {
    std::vector<std::string> texts;
    const auto value = (*run.program.variables().find("DichCau"))();
    for (const auto& each : std::get<VariableValue::Table>(value.value)) {
      texts.push_back(std::get<std::string>(each.value));
    }
    return texts;
  }

  int mark(int k) {
    const auto value = (*run.program.variables().find("ViTriCauVan"))();
    const auto& table = std::get<VariableValue::Table>(value.value);
    return static_cast<int>(std::get<double>(table[static_cast<std::size_t>(k - 1)].value));
  }

  ProgramRun run;
};

TEST_F(OpenText, ShowsSentenceMarksAsCharacter160) {
  open("Title\r_\tOne here. _Two|there.\r", "_Mot._Hai.");
  EXPECT_EQ(run.controls().R2.Text(),
            Mark + "Title\r" + Mark + "\tOne here. " + Mark + "Two there.\r" + Mark);
  EXPECT_EQ(run.number("SoCauVanBan"), 4);
  EXPECT_EQ(mark(1), 1);
  EXPECT_EQ(mark(2), 8);
  EXPECT_EQ(mark(3), 20);
  EXPECT_EQ(mark(4), 32);
  EXPECT_EQ(run.text("CauHoi"), run.controls().R2.Text());
}

TEST_F(OpenText, KeepsAMarkedCopy) {
  open("Title\r_\tOne.\r", "_Mot.");
  EXPECT_EQ(run.text("VanBanGoc"), "|Title| \tOne.  |");
}

TEST_F(OpenText, SetsTheTitleOff) {
  open("Title\r_\tOne.\r", "_Mot.");
  Surface& R2 = run.controls().R2;
  EXPECT_EQ(run.number("ViTriTieuDe"), 8);
  R2.SelStart(0);
  R2.SelLength(6);
  EXPECT_EQ(R2.SelAlignment(), Alignment::Centred);
  EXPECT_TRUE(R2.SelUnderline());
  EXPECT_EQ(R2.SelFontSize(), 23);
  R2.SelStart(9);
  R2.SelLength(1);
  EXPECT_FALSE(R2.SelUnderline());
  EXPECT_EQ(R2.SelFontSize(), 20);
  EXPECT_EQ(R2.SelColor(), 0x750000U);
  EXPECT_EQ(R2.SelAlignment(), Alignment::Left);
}

TEST_F(OpenText, ReadsTranslationsWithTheTitlesElementEmpty) {
  open("Title\r_\tOne. _Two.\r", "_Mot\rdong.`Hai.");
  EXPECT_EQ(translations(), (std::vector<std::string>{"", "Mot dong.", "Hai."}));
}

TEST_F(OpenText, TwoMarksInOneByteGiveAnEmptySentence) {
  open("T\r_\tOne. \xBCTwo.\r", "_Mot.__Hai.");
  EXPECT_EQ(run.number("SoCauVanBan"), 5);
  EXPECT_EQ(mark(4) - mark(3), 1);
}

TEST_F(OpenText, OpensBehindTheCurtain) {
  open("Title\r_\tOne.\r", "_Mot.");
  EXPECT_EQ(run.machine.log.count("curtain"), 1);
  EXPECT_TRUE(run.controls().Frame2.Visible());
  EXPECT_EQ(run.focus(), "R2");
}

TEST_F(OpenText, TooManySentencesEndTheProgramAndNameTheText) {
  std::string text = "Title\r";
  for (int sentence = 0; sentence < 201; ++sentence)
    text += "_x.";
  try {
    open(text, "");
    FAIL() << "no failure";
  } catch (const FatalFailure& failure) {
    EXPECT_THAT(failure.what(), testing::StartsWith(run.folder.path() + "/data.av: text 1 "));
  }
}

TEST_F(OpenText, MoreMarksThanTheFileTableHoldsEndTheProgramToo) {
  const auto failureOf = [this](int marks) -> std::string {
    try {
      open("Title\r" + std::string(static_cast<std::size_t>(marks), '_'), "");
    } catch (const FatalFailure& failure) {
      return failure.what();
    }
    return "none";
  };
  EXPECT_THAT(failureOf(2000), testing::HasSubstr("more than 2000"));
}

TEST_F(OpenText, ATextWithoutItsEndStopsAtTheFilesEnd) {
  run.writeTexts({{408, "Last\r_\tNo end", ""}});
  // The stream is cut inside the last text.
  const std::string stream = run.folder.read("data.av");
  const auto end = stream.find(test::encoded("No end"));
  ASSERT_NE(end, std::string::npos);
  run.folder.write("data.av", stream.substr(0, end + 3));
  run.start();
  run.clickButton(1);
  run.key(key::End, shift::Ctrl);
  run.key(key::Enter);
  EXPECT_EQ(run.controls().R2.Text(), Mark + "Last\r" + Mark + "\tNo " + Mark);
}

} // namespace
} // namespace talvora
