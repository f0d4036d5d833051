#include "exercises/XepTu.h"
#include "exercises/WordOrder.h"
#include "listening/DrillRun.h"
#include "platform/FatalFailure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace talvora {
namespace {

using test::DrillRun;
using test::valueOf;

constexpr Colour Blue = 0xFF0000;

// -- The line as plain text.

TEST(WordOrder, TheLineKeepsLettersBlanksAndApostrophes) {
  EXPECT_EQ(lineOf("It's 7, \"Mai\": well-done!"), "It's  Mai welldone");
}

TEST(WordOrder, TheRightBeginningCountsInWholeWords) {
  EXPECT_EQ(rightBeginning("the cat sat", "the sat cat "), 4);
  EXPECT_EQ(rightBeginning("the cat sat", "cat the sat "), 0);
  EXPECT_EQ(rightBeginning("the cat sat", "the cab sat "), 4);
}

TEST(WordOrder, CapitalLettersDoNotMatter) {
  EXPECT_EQ(rightBeginning("The Cat sat", "the cat sat "), 12);
}

TEST(WordOrder, AFinishedLineIsRightToItsEnd) {
  EXPECT_EQ(rightBeginning("a b c d", "a b c d "), 8);
}

TEST(WordOrder, TheFirstWordStaysAndTheSecondChanges) {
  for (std::uint64_t seed = 1; seed <= 200; ++seed) {
    Random random(seed);
    const std::string line = shuffledLine("We bought a small house.", random);
    EXPECT_TRUE(line.starts_with("We "));
    EXPECT_FALSE(line.starts_with("We bought "));
    EXPECT_TRUE(line.ends_with(' '));
    EXPECT_EQ(line.size(), std::string("We bought a small house ").size());
  }
}

TEST(WordOrder, AWordRepeatedEndsToo) {
  Random random(1);
  EXPECT_EQ(shuffledLine("no no no no", random), "no no no no ");
  EXPECT_EQ(shuffledLine("no", random), "no ");
  EXPECT_EQ(shuffledLine("", random), " ");
  EXPECT_EQ(shuffledLine("no yes", random), "no yes ");
}

// -- The drill.

class Ordering : public testing::Test {
 protected:
  Ordering()
      : drill(run.controls(), run.state(), run.stores, run.base.shell, run.services,
              run.base.machine.random, links),
        Rxep(run.controls().Rxep) {
    drill.run.CauKeTiep = [this] { calls.push_back("CauKeTiep"); };
    drill.run.BoChonBai = [this] { calls.push_back("BoChonBai"); };
    drill.run.ThoatBT = [this](Surface& surface) { calls.push_back("ThoatBT " + surface.Name()); };
    drill.run.BaiTuChon = [this] { return selfMade; };
    drill.run.SoCauChay = [this] { return runLength; };
  }

  void openItem(const std::string& body, const std::string& answer) {
    run.state().text.CauHoi = body;
    drill.VaoXepTu(answer);
    run.base.show(Rxep);
  }
  void openText(const std::string& text, const std::string& translation) {
    run.writeTexts({{5, {text, translation}}});
    run.open();
    ReadingText reading(run.stores, run.state().text);
    reading.DocBai(5);
    reading.DocDich(5);
    run.base.show(run.controls().R2);
    drill.openFromText();
  }

  int number(const std::string& name) { return static_cast<int>(valueOf<double>(drill, name)); }
  std::string text(const std::string& name) { return valueOf<std::string>(drill, name); }
  bool flag(const std::string& name) { return valueOf<bool>(drill, name); }

  /// Where a word of the line starts that stands behind the right beginning.
  int caretOf(const std::string& word) {
    const int from = drill.DauDong + number("BienDung");
    const std::string line = " " + Rxep.TextBetween(from, number("CuoiDong"));
    const auto found = line.find(" " + word + " ");
    EXPECT_NE(found, std::string::npos) << word << " in" << line;
    return from + static_cast<int>(found);
  }
  void pick(const std::string& word) { run.rightClick(Rxep, caretOf(word) + 1); }
  Colour colourAt(int caret) {
    Rxep.SelStart(caret);
    Rxep.SelLength(1);
    const Colour colour = Rxep.SelColor();
    Rxep.SelLength(0);
    return colour;
  }
  int caretOfLink(const std::string& link) { return static_cast<int>(Rxep.Text().find(link)) + 3; }

  DrillRun run;
  BackNextLinks links;
  XepTu drill;
  Surface& Rxep;
  std::vector<std::string> calls;
  bool selfMade = false;
  int runLength = 0;
};

TEST_F(Ordering, AnItemShowsItsTranslationAndTheShuffledWords) {
  openItem("_She can't see red birds.", "_Co ay khong thay chim do.");
  EXPECT_EQ(text("CauTiengAnh"), "She can't see red birds.");
  EXPECT_EQ(text("CauTiengViet"), "Co ay khong thay chim do.");
  EXPECT_EQ(number("SoTu"), 5);
  EXPECT_EQ(text("DongMau"), "She can't see red birds");
  const std::string page = Rxep.Text();
  EXPECT_THAT(page, testing::HasSubstr("Co ay khong thay chim do.\r\r" + text("DongXep") + "\r"));
  EXPECT_THAT(page, testing::EndsWith("\r\r\r<Back>    <Next>"));
  EXPECT_EQ(drill.DauDong, static_cast<int>(page.find(text("DongXep"))));
  EXPECT_EQ(number("BienDung"), 4);
}

TEST_F(Ordering, ThreeWordsAreSkipped) {
  openItem("_One two three. _Now four words stand. _One more. ", "_A._B._C.");
  EXPECT_EQ(text("CauTiengAnh"), "Now four words stand.");
  EXPECT_EQ(text("CauTiengViet"), "B.");
  drill.VeXepTu(Rxep);
  EXPECT_EQ(text("CauTiengAnh"), "Now four words stand.");
}

TEST_F(Ordering, AfterTwentyShortSentencesTheLastStands) {
  std::string body;
  for (int sentence = 1; sentence <= 30; ++sentence)
    body += "_n" + std::string(static_cast<std::size_t>(sentence), 'x') + ".";
  openItem(body, "");
  // Sentence 1 is the empty one ahead of the first mark.
  EXPECT_EQ(drill.ChiSoCau, 20);
  EXPECT_EQ(text("CauTiengAnh"), "n" + std::string(19, 'x') + ".");
  EXPECT_EQ(number("SoTu"), 1);
}

TEST_F(Ordering, ARightClickMovesTheWordBehindTheRightBeginning) {
  openItem("_She sees seven red birds.", "_X.");
  ASSERT_EQ(text("DongXep").substr(0, 4), "She ");
  pick("sees");
  EXPECT_EQ(number("BienDung"), 9);
  EXPECT_TRUE(text("DongXep").starts_with("She sees "));
  EXPECT_EQ(Rxep.TextBetween(drill.DauDong, number("CuoiDong") - 1), text("DongXep"));
  EXPECT_EQ(colourAt(drill.DauDong), Blue);
  EXPECT_EQ(colourAt(drill.DauDong + 8), Blue);
  EXPECT_EQ(colourAt(drill.DauDong + 9), 0x750000U);
}

TEST_F(Ordering, AWrongWordSpringsBackAndTheBluePartStays) {
  openItem("_She sees seven red birds.", "_X.");
  pick("sees");
  const std::string before = text("DongXep");
  pick("birds");
  EXPECT_EQ(run.base.machine.narrator.verdicts(), (std::vector<Verdict>{{1, 1}, {0, 1}}));
  EXPECT_EQ(text("DongXep"), before);
  EXPECT_EQ(Rxep.TextBetween(drill.DauDong, number("CuoiDong") - 1), before);
  EXPECT_EQ(number("BienDung"), 9);
  EXPECT_EQ(colourAt(drill.DauDong + 8), Blue);
  EXPECT_EQ(colourAt(drill.DauDong + 10), 0x750000U);
}

TEST_F(Ordering, AWordMovesWhereverItIsClickedWhateverTheTextHoldsThere) {
  // The text has points where the line has letters.
  openItem("_She sees seven red birds." + std::string(200, '.'), "_X.");
  for (const int inside : {0, 1, 3}) {
    drill.VeXepTu(Rxep);
    run.rightClick(Rxep, caretOf("sees") + inside);
    EXPECT_TRUE(text("DongXep").starts_with("She sees ")) << inside;
  }
}

TEST_F(Ordering, WordsOfTheBluePartStay) {
  openItem("_She sees seven red birds.", "_X.");
  pick("sees");
  const std::string before = text("DongXep");
  run.rightClick(Rxep, drill.DauDong + 1);
  EXPECT_EQ(text("DongXep"), before);
  EXPECT_FALSE(run.state().word.ChoGiai);
}

TEST_F(Ordering, AFinishedLineIsBlueAndEnterShowsTheSentenceWithoutAMark) {
  openItem("_She sees seven red birds.", "_X.");
  for (const char* word : {"sees", "seven", "red"}) {
    if (number("BienDung") < static_cast<int>(text("DongXep").size())) pick(word);
  }
  EXPECT_EQ(text("DongXep"), "She sees seven red birds ");
  EXPECT_EQ(number("BienDung"), 25);
  EXPECT_EQ(colourAt(drill.DauDong + 23), Blue);
  run.key(key::Enter);
  EXPECT_THAT(Rxep.Text(), testing::EndsWith("<Next>\r\rShe sees seven red birds."));
  EXPECT_TRUE(flag("DaXong"));
}

TEST_F(Ordering, EnterOnAnUnfinishedLineShowsAMarkAndTheSentence) {
  openItem("_She can't see, I think, red birds.", "_X.");
  run.key(key::Enter);
  EXPECT_THAT(Rxep.Text(), testing::EndsWith("<Next>!\r\rShe can't see, I think, red birds."));
  EXPECT_THAT(text("DongXep"), testing::HasSubstr("can't"));
  EXPECT_THAT(text("DongXep"), testing::Not(testing::HasSubstr(",")));
}

TEST_F(Ordering, TheNextEnterGoesOn) {
  openItem("_One two three four. _Five six seven eight.", "_A._B.");
  run.key(key::Enter);
  run.key(key::Enter);
  EXPECT_EQ(text("CauTiengAnh"), "Five six seven eight.");
  EXPECT_FALSE(flag("DaXong"));
}

TEST_F(Ordering, TheFirstBackShowsTheFollowingSentenceAndTheNextOnesTheSame) {
  std::string body;
  for (const char* name : {"a", "b", "c", "d", "e"})
    body += "_" + std::string(name) + " x y z.";
  openItem(body, "");
  ASSERT_EQ(text("CauTiengAnh"), "a x y z.");
  run.click(Rxep, caretOfLink("<Next>"));
  ASSERT_EQ(text("CauTiengAnh"), "b x y z.");
  run.click(Rxep, caretOfLink("<Back>"));
  EXPECT_EQ(text("CauTiengAnh"), "c x y z.");
  EXPECT_EQ(drill.BuocXep, 1);
  run.click(Rxep, caretOfLink("<Back>"));
  EXPECT_EQ(text("CauTiengAnh"), "c x y z.");
  run.click(Rxep, caretOfLink("<Next>"));
  EXPECT_EQ(text("CauTiengAnh"), "d x y z.");
  EXPECT_EQ(drill.BuocXep, 0);
}

TEST_F(Ordering, AWordThatWasLookedUpDoesNotStandInTheWayOfAMove) {
  openItem("_She sees seven red birds.", "_X.");
  run.state().atHand.take("birds");
  pick("sees");
  EXPECT_TRUE(text("DongXep").starts_with("She sees "));
}

TEST_F(Ordering, TheLinksStandWhereTheSharedTableSays) {
  openItem("_She sees seven red birds.", "_X.");
  EXPECT_EQ(Rxep.TextBetween(links.DauBack, links.CuoiBack), "<Back>");
  EXPECT_EQ(Rxep.TextBetween(links.DauNext, links.CuoiNext), "<Next>");
}

TEST_F(Ordering, ADoubleClickIsDroppedByTheNextRightClick) {
  openItem("_She sees seven red birds.", "_X.");
  const std::string before = text("DongXep");
  run.state().atHand.askForSentence();
  run.rightClick(Rxep, caretOf("sees") + 1);
  EXPECT_EQ(text("DongXep"), before);
  EXPECT_FALSE(run.state().word.CoDupChuot);
  run.rightClick(Rxep, caretOf("sees") + 1);
  EXPECT_TRUE(text("DongXep").starts_with("She sees "));
}

TEST_F(Ordering, ARightClickAfterTheAnswerGoesOn) {
  openItem("_One two three four. _Five six seven eight.", "_A._B.");
  run.key(key::Enter);
  run.rightClick(Rxep, drill.DauDong + 5);
  EXPECT_EQ(text("CauTiengAnh"), "Five six seven eight.");
}

// -- Opened from a text.

TEST_F(Ordering, AReadingTextOpensOnItsFirstLongSentence) {
  openText("Title\r_\tShort one. _This one is long enough.\r", "_Ngan._Dai.");
  EXPECT_EQ(text("CauTiengAnh"), "This one is long enough.");
  EXPECT_EQ(text("CauTiengViet"), "Dai.");
  EXPECT_TRUE(run.controls().Frame3.Visible());
  EXPECT_EQ(run.focus(), "Rxep");
  EXPECT_TRUE(run.controls().RDOS.Visible());
}

TEST_F(Ordering, F6ShowsTheSentencesWithoutTheLineAndEnterTheEnglish) {
  openText("Title\r_\tThis one is long enough.\r", "_Dai.");
  run.key(key::F6);
  EXPECT_FALSE(drill.XepChay);
  EXPECT_EQ(drill.DauDong, number("CuoiDong"));
  EXPECT_THAT(Rxep.Text(), testing::HasSubstr("Dai.\r\r\r\r\r<Back>"));
  run.key(key::Enter);
  EXPECT_THAT(Rxep.Text(), testing::EndsWith("<Next>\r\rThis one is long enough."));
  run.key(key::F6);
  EXPECT_TRUE(drill.XepChay);
}

TEST_F(Ordering, EscGoesBackToTheText) {
  openText("Title\r_\tThis one is long enough.\r", "_Dai.");
  run.key(key::Esc);
  EXPECT_FALSE(Rxep.Visible());
  EXPECT_FALSE(run.controls().Frame3.Visible());
  EXPECT_EQ(run.focus(), "R2");
  EXPECT_TRUE(calls.empty());
}

TEST_F(Ordering, ATextWithoutSentencesEnds) {
  openText("T\r", "");
  EXPECT_EQ(text("CauTiengAnh"), "T");
}

// -- Leaving an item.

TEST_F(Ordering, EscLeavesABanksItemAsEveryItem) {
  openItem("_One two three four.", "_A.");
  run.key(key::Esc);
  EXPECT_EQ(calls, std::vector<std::string>{"ThoatBT Rxep"});
}

TEST_F(Ordering, EscInASelfMadeTestGoesOnOnceAndThenLeaves) {
  selfMade = true;
  runLength = 3;
  drill.startRun();
  openItem("_One two three four.", "_A.");
  run.key(key::Esc);
  EXPECT_EQ(calls, std::vector<std::string>{"CauKeTiep"});
  openItem("_One two three four.", "_A.");
  run.key(key::Esc);
  EXPECT_EQ(calls, (std::vector<std::string>{"CauKeTiep", "BoChonBai"}));
}

TEST_F(Ordering, AnAnswerShownLetsTheSelfMadeTestGoOn) {
  selfMade = true;
  runLength = 3;
  openItem("_One two three four.", "_A.");
  run.key(key::Esc);
  openItem("_One two three four.", "_A.");
  run.key(key::Enter);
  run.key(key::Esc);
  EXPECT_EQ(calls, (std::vector<std::string>{"CauKeTiep", "CauKeTiep"}));
}

TEST_F(Ordering, TooManySentencesEndTheProgramAndNameTheStore) {
  std::string body;
  for (int sentence = 0; sentence < 250; ++sentence)
    body += "_x.";
  run.state().text.CauHoi = body;
  try {
    drill.VaoXepTu("");
    FAIL() << "no failure";
  } catch (const FatalFailure& failure) {
    EXPECT_THAT(failure.what(),
                testing::StartsWith(run.state().places.ThuMuc + "/data.bt: a word ordering item"));
  }
}

} // namespace
} // namespace talvora
