#include "listening/Listening.h"
#include "listening/DrillRun.h"
#include "text/Bytes.h"
#include "text/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace talvora {
namespace {

using test::DrillRun;
using test::valueOf;

constexpr Colour Grey = 0x80000003;

// A page whose carets are those of the program's template.
const std::string Template =
    "{\\rtf1{\\fonttbl{\\f0 x1;}}\\par\n 123456789012345678901234567890123456\\par\n\\par\n"
    "A. \\par\nB. \\par\nC. \\par\nD. \\par\n }";

struct StoredItem {
  int unit;
  int segment;
  std::string name; ///< the sentence is "Say NAME."; the right answer "right NAME"
};

class Quiz : public testing::Test {
 protected:
  Quiz()
      : scoring(run.base.form, run.state().places, run.state().measures),
        units(run.controls(), run.state(), run.stores, run.base.shell, scoring),
        listening(run.base.form, run.controls(), run.state(), run.stores, run.base.shell,
                  run.services, run.base.machine.random, units, scoring, shown),
        RN2(run.controls().RN2) {
    run.controls().but(4).Visible(true);
    run.folder.write("dataABCD.rtf", Template);
  }

  static std::string record(const StoredItem& item) {
    return "u" + std::to_string(item.unit) + " s" + std::to_string(item.segment) + "\rSay " +
           item.name + ".\rright " + item.name + "\r-wrong one\r- two\r-three@";
  }

  void open(const std::vector<StoredItem>& items) {
    std::vector<std::int32_t> positions;
    std::string stream;
    for (const StoredItem& item : items) {
      positions.push_back(static_cast<std::int32_t>(stream.size()));
      stream += record(item);
    }
    // The rest of the table belongs to no unit.
    for (auto rest = items.size(); rest < 556; ++rest) {
      positions.push_back(static_cast<std::int32_t>(stream.size()));
    }
    stream += record({99, 1, "none"});
    run.folder.writeIntegers("dataN.vt", positions);
    run.folder.writeStream("dataN.av", stream);
    run.open(4);
    listening.openSection();
    run.hand.deliverSent();
  }

  void openUnit(int unit) {
    run.state().list.SoBaiChon = unit;
    run.base.machine.log.take();
    listening.MoBaiNghe();
    run.hand.deliverSent();
  }

  std::string sentence() { return valueOf<std::string>(listening, "CauNghe1"); }
  int number(const std::string& name) { return static_cast<int>(valueOf<double>(listening, name)); }
  int caretOf(const std::string& text) {
    const auto found = RN2.Text().find(text);
    EXPECT_NE(found, std::string::npos) << text;
    return static_cast<int>(found) + 1;
  }
  void next() { run.click(RN2, caretOf("<Next>") + 1); }
  void back() { run.click(RN2, caretOf("<Back>") + 1); }
  void answerRight() { run.click(RN2, caretOf("right ") + 2); }
  void answerWrong() { run.click(RN2, caretOf("wrong one") + 2); }
  /// The sentences of a unit in the order in which they come.
  std::vector<std::string> playThrough(int unit) {
    openUnit(unit);
    std::vector<std::string> heard;
    while (RN2.Visible() && heard.size() < 600) {
      heard.push_back(sentence());
      next();
    }
    return heard;
  }

  DrillRun run;
  ItemState shown;
  Scoring scoring;
  UnitList units;
  Listening listening;
  Surface& RN2;
};

const std::vector<StoredItem> ThreeUnits = {{1, 1, "a"}, {1, 2, "b"}, {1, 3, "c"}, {2, 1, "d"},
                                            {2, 2, "e"}, {2, 3, "f"}, {3, 1, "g"}, {3, 2, "h"}};

TEST_F(Quiz, TheListHasNineUnitsWithTwoBlanks) {
  open(ThreeUnits);
  EXPECT_THAT(run.controls().RN1.Text(), testing::StartsWith("\tUnit  1\r\tUnit  2\r"));
  EXPECT_THAT(run.controls().RN1.Text(), testing::EndsWith("\tUnit  9\r"));
  EXPECT_EQ(run.state().places.MucMenu, 4);
  EXPECT_EQ(run.state().list.BangViTri[1], 9);
}

TEST_F(Quiz, TheListIsProtected) {
  open(ThreeUnits);
  EXPECT_TRUE(run.controls().RN1.SelProtected());
}

TEST_F(Quiz, TheLinksStandWhereTheSharedTableSays) {
  open(ThreeUnits);
  openUnit(1);
  EXPECT_EQ(RN2.TextBetween(shown.links.DauBack, shown.links.CuoiBack), "<Back>");
  EXPECT_EQ(RN2.TextBetween(shown.links.DauNext, shown.links.CuoiNext), "<Next>");
}

TEST_F(Quiz, TwoEqualOptionsLetTheLaterOneCount) {
  for (int round = 0; round < 20; ++round) {
    std::vector<std::int32_t> positions(556, 0);
    run.folder.writeIntegers("dataN.vt", positions);
    run.folder.writeStream("dataN.av", "1 1\rSay it.\rsame\rsame\rother\rlast@");
    run.open(4);
    listening.openSection();
    openUnit(1);
    const auto options = valueOf<VariableValue::Table>(listening, "LuaChon");
    int later = 0;
    for (int slot = 1; slot <= 4; ++slot) {
      const auto& option = std::get<std::string>(options[static_cast<std::size_t>(slot)].value);
      if (option.starts_with("same")) later = slot;
    }
    EXPECT_EQ(number("DapAnNghe"), later);
  }
}

TEST_F(Quiz, BackOnTheLastStepEndsTheUnit) {
  // Steps are counted, not items seen; that is meant.
  open(ThreeUnits);
  openUnit(1);
  answerRight();
  next();
  next();
  back();
  EXPECT_FALSE(RN2.Visible());
  EXPECT_THAT(run.base.form.Caption(), testing::HasSubstr("1/3 = 33%"));
}

TEST_F(Quiz, EnterOpensTheUnitAtTheCaretAndClearsTheScore) {
  open(ThreeUnits);
  scoring.SoDung = 5;
  run.controls().RN1.SelStart(12);
  run.key(key::Enter);
  EXPECT_TRUE(RN2.Visible());
  EXPECT_EQ(number("UnitNghe"), 2);
  EXPECT_EQ(scoring.SoDung, 0);
  EXPECT_EQ(run.stores.readSetting(10), 12);
}

TEST_F(Quiz, TheVerdictIsToldOnceForAnOption) {
  open({{1, 1, "a"}, {1, 2, "b"}});
  openUnit(1);
  answerWrong();
  answerWrong();
  answerRight();
  EXPECT_EQ(run.base.machine.narrator.verdicts(), (std::vector<Verdict>{{0, 1}, {1, 1}}));
}

TEST_F(Quiz, TheScoreIsCappedAtAHundred) {
  open(ThreeUnits);
  openUnit(1);
  for (int round = 0; round < 4; ++round) {
    answerRight();
    next();
    answerRight();
    back();
  }
  answerRight();
  run.controls().RDOS.Visible(false);
  run.key(key::Esc);
  EXPECT_EQ(scoring.SoDung, 9);
  EXPECT_THAT(run.base.form.Caption(), testing::HasSubstr("9/3 = 100%"));
}

TEST_F(Quiz, TheCaretOfTheListIsFetched) {
  run.folder.writeIntegers("data.Kcu", {0, 1, 0, 5, 0, 0, 0, 0, 0, 20});
  open(ThreeUnits);
  const Surface& RN1 = run.controls().RN1;
  EXPECT_EQ(RN1.SelStart(), 18);
  EXPECT_EQ(RN1.SelText(), "\tUnit  3") << "the line of the caret is selected";
}

TEST_F(Quiz, HeadFieldsAreReadDigitByDigit) {
  open(ThreeUnits);
  const auto table = valueOf<VariableValue::Table>(listening, "CauNghe");
  const auto& fifth = std::get<VariableValue::Record>(table[5].value);
  EXPECT_EQ(std::get<double>(fifth[0].second.value), 2);
  EXPECT_EQ(std::get<double>(fifth[2].second.value), 2);
}

TEST_F(Quiz, TheFirstUnitPlaysItsOwnItems) {
  open(ThreeUnits);
  EXPECT_THAT(playThrough(1), testing::UnorderedElementsAre("Say a.", "Say b.", "Say c."));
}

TEST_F(Quiz, ALaterUnitBeginsWithTheLastItemAheadAndNeverPlaysItsOwnLast) {
  open(ThreeUnits);
  EXPECT_THAT(playThrough(2), testing::UnorderedElementsAre("Say c.", "Say d.", "Say e."));
  EXPECT_THAT(playThrough(3), testing::UnorderedElementsAre("Say f.", "Say g."));
}

TEST_F(Quiz, AUnitWithoutItemsSaysSoAndTheListStays) {
  open(ThreeUnits);
  run.base.machine.log.take();
  run.state().list.SoBaiChon = 7;
  listening.MoBaiNghe();
  EXPECT_THAT(run.messages(), testing::SizeIs(1));
  EXPECT_FALSE(RN2.Visible());
  EXPECT_EQ(run.focus(), "RN1");
}

TEST_F(Quiz, WithoutARecordingTheSentenceIsSpoken) {
  open(ThreeUnits);
  openUnit(1);
  const auto entries = run.base.machine.log.take();
  const auto count = [&](const std::string& what) {
    return std::count_if(entries.begin(), entries.end(),
                         [&](const LogEntry& entry) { return entry.what == what; });
  };
  EXPECT_EQ(count("message"), 1);
  // "Say a." is short and so heard twice.
  EXPECT_EQ(count("speak"), 2);
  EXPECT_EQ(run.focus(), "RN2");
}

TEST_F(Quiz, ARecordingPlaysTheItemsSegment) {
  run.folder.write("sound/1.wav", "x");
  run.folder.writeIntegers("DataS", {1, 100, 250, 400});
  open({{1, 2, "a"}, {1, 2, "b"}, {2, 1, "c"}});
  openUnit(1);
  for (const LogEntry& entry : run.base.machine.log.take()) {
    if (entry.what != "mm" || std::get<std::string>(*entry.find("command")) != "Play") continue;
    EXPECT_EQ(std::get<std::int64_t>(*entry.find("from")), 100);
    EXPECT_EQ(std::get<std::int64_t>(*entry.find("to")), 250);
    return;
  }
  FAIL() << "nothing played";
}

TEST_F(Quiz, OptionsStandBehindTheirLabelsWithoutAHyphen) {
  open(ThreeUnits);
  openUnit(1);
  const std::string page = RN2.Text();
  for (const char* label : {"A. ", "B. ", "C. ", "D. "}) {
    const auto at = page.find(label);
    ASSERT_NE(at, std::string::npos);
    EXPECT_NE(page[at + 3], '-');
  }
  EXPECT_THAT(page, testing::HasSubstr("two\r"));
  EXPECT_THAT(page, testing::HasSubstr("\r<Back>    <Next>\r"));
  const int slot = number("DapAnNghe");
  const std::string label(1, static_cast<char>('A' + slot - 1));
  EXPECT_THAT(page, testing::HasSubstr(label + ". right "));
}

TEST_F(Quiz, TheRightOptionRevealsTheSentenceAndCounts) {
  open(ThreeUnits);
  openUnit(1);
  const std::string heard = sentence();
  answerRight();
  EXPECT_EQ(scoring.SoDung, 1);
  EXPECT_EQ(shown.KetQuaCau, 1);
  EXPECT_EQ(sentence(), "");
  EXPECT_THAT(RN2.Text(), testing::EndsWith("\r " + heard + "\r"));
  RN2.SelStart(caretOf("wrong one"));
  EXPECT_EQ(RN2.SelColor(), Grey);
}

TEST_F(Quiz, AWrongOptionGreysAndTheItemNoLongerCounts) {
  open(ThreeUnits);
  openUnit(1);
  answerWrong();
  RN2.SelStart(caretOf("wrong one") + 2);
  EXPECT_EQ(RN2.SelColor(), Grey);
  EXPECT_EQ(shown.KetQuaCau, -1);
  EXPECT_NE(sentence(), "");
  answerRight();
  EXPECT_EQ(scoring.SoDung, 0);
  EXPECT_EQ(shown.KetQuaCau, -1);
}

TEST_F(Quiz, ASecondClickOnAGreyedOptionChangesNothing) {
  open(ThreeUnits);
  openUnit(1);
  answerWrong();
  shown.KetQuaCau = 0;
  const auto revision = RN2.revision();
  answerWrong();
  EXPECT_EQ(RN2.revision(), revision);
  EXPECT_EQ(shown.KetQuaCau, -1);
}

TEST_F(Quiz, AfterTheRevealOptionsAreDeaf) {
  open(ThreeUnits);
  openUnit(1);
  answerRight();
  answerRight();
  answerWrong();
  EXPECT_EQ(scoring.SoDung, 1);
  EXPECT_EQ(shown.KetQuaCau, 1);
}

TEST_F(Quiz, ARightClickOnlyRepeats) {
  open(ThreeUnits);
  openUnit(1);
  run.base.machine.log.take();
  run.rightClick(RN2, caretOf("right ") + 2);
  EXPECT_EQ(scoring.SoDung, 0);
  EXPECT_EQ(shown.KetQuaCau, 0);
  EXPECT_THAT(run.spoken(), testing::Not(testing::IsEmpty()));
}

TEST_F(Quiz, ARightClickRepeatsAlsoWhenThePointerHasLeftTheSentence) {
  open(ThreeUnits);
  openUnit(1);
  const std::string heard = run.state().word.TuHienTai;
  RN2.moveMouse(shift::None, {100, 100});
  RN2.moveMouse(shift::None, {8000, 5000});
  ASSERT_EQ(run.state().word.TuHienTai, "");
  run.base.machine.log.take();
  RN2.pressMouse(MouseButton::Right, shift::None, {8000, 5000});
  EXPECT_THAT(run.spoken(), testing::Contains(lower(heard)));
}

TEST_F(Quiz, BackGoesToTheItemBeforeAndScoresItAfresh) {
  open(ThreeUnits);
  openUnit(1);
  const std::string first = sentence();
  answerRight();
  next();
  EXPECT_NE(sentence(), first);
  back();
  EXPECT_EQ(sentence(), first);
  EXPECT_EQ(shown.KetQuaCau, 0);
  answerRight();
  EXPECT_EQ(scoring.SoDung, 2);
}

TEST_F(Quiz, BackOnTheFirstStepDoesNothing) {
  open(ThreeUnits);
  openUnit(1);
  const std::string first = sentence();
  back();
  EXPECT_EQ(sentence(), first);
  EXPECT_TRUE(RN2.Visible());
}

TEST_F(Quiz, TheEndTellsTheScoreOnlyWhenSomethingWasRight) {
  open(ThreeUnits);
  static_cast<void>(playThrough(1));
  EXPECT_THAT(run.base.form.Caption(), testing::Not(testing::HasSubstr("%")));
  openUnit(1);
  answerRight();
  for (int item = 0; item < 3; ++item)
    next();
  EXPECT_THAT(run.base.form.Caption(), testing::HasSubstr("Ban da lam dung  1/3 = 33%"));
  EXPECT_FALSE(RN2.Visible());
  EXPECT_EQ(run.focus(), "RN1");
}

TEST_F(Quiz, EscGoesBackToTheListWithTheScore) {
  open(ThreeUnits);
  run.controls().RN1.SelStart(12);
  openUnit(1);
  answerRight();
  run.controls().RDOS.Visible(false);
  run.key(key::Esc);
  EXPECT_THAT(run.base.form.Caption(), testing::HasSubstr("Ban da lam dung  1/3 = 33%"));
  EXPECT_EQ(run.focus(), "RN1");
  EXPECT_EQ(run.controls().RN1.SelStart(), 9) << "the line of the caret is selected";
}

TEST_F(Quiz, LeavingGivesTheFocusToButtonFourWhicheverSectionWasOpen) {
  open(ThreeUnits);
  run.state().places.MucMenu = 12;
  units.ThoatNghe();
  EXPECT_EQ(run.focus(), "but4");
  EXPECT_EQ(run.base.form.Caption(), run.state().measures.TieuDeE);
  EXPECT_FALSE(run.controls().RN1.Visible());
  EXPECT_EQ(run.controls().R1.Top(), run.state().measures.CaoMH);
}

TEST_F(Quiz, ItemsWithoutTheirEndMarkStopAtTheFilesEnd) {
  run.folder.writeIntegers("dataN.vt", std::vector<std::int32_t>(556, 0));
  run.folder.writeStream("dataN.av", "1 1\rSay no end.");
  run.open(4);
  listening.openSection();
  openUnit(1);
  EXPECT_EQ(sentence(), "Say no end.");
}

TEST_F(Quiz, TablesThatPointNowhereAreHarmless) {
  run.folder.writeIntegers("dataN.vt", {-7, 2'000'000'000, -2'000'000'000, 5});
  run.folder.writeStream("dataN.av", "1 1\r@");
  run.open(4);
  listening.openSection();
  for (int unit = 0; unit <= 9; ++unit)
    openUnit(unit);
  SUCCEED();
}

} // namespace
} // namespace talvora
