#include "exercises/ItemRun.h"
#include "text/Bytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace talvora {
namespace {

using test::bankOf;
using test::copies;
using test::ItemRun;
using test::ItemStores;
using test::StoredItem;

/// Bank 1 with items that tell their number; nothing else.
ItemStores bank(int count) {
  ItemStores stores;
  stores.counts = {{1, count}};
  for (int n = 1; n <= count; ++n) {
    stores.items.push_back({"402Number" + std::to_string(n) + " *a_.", ""});
  }
  return stores;
}

std::vector<int> itemsOf(const ItemRun& run) {
  std::vector<int> items;
  const auto table = (*run.variables.find("DanhSachCau"))();
  for (const auto& each : std::get<VariableValue::Table>(table.value)) {
    items.push_back(static_cast<int>(std::get<double>(each.value)));
  }
  // Element 0 is not used.
  items.erase(items.begin());
  return items;
}

void step(ItemRun& run, const char* link) {
  Surface& RDT = run.controls.RDT;
  run.click(RDT, ItemRun::caretOf(RDT, link) + 2);
  run.hand.deliverSent();
}

TEST(UnitListOf, ABankHasAUnitForEach25ItemsAndTheLastTakesTheRest) {
  for (const auto& [count, units] : {std::pair{24, 0}, {25, 1}, {49, 1}, {50, 2}, {60, 2}}) {
    ItemRun run(bank(count));
    run.openBank(1);
    const std::string list = run.controls.RN1.Text();
    EXPECT_EQ(std::count(list.begin(), list.end(), '\r'), units) << count;
    EXPECT_EQ(run.focus(), "RN1");
  }
}

TEST(UnitListOf, ALineIsATabAWordAndANumberBehindTwoBlanks) {
  ItemRun run(bank(25));
  run.openBank(1);
  EXPECT_EQ(run.controls.RN1.Text(), "\tBài TÏp  1\r"_bytes);
  EXPECT_EQ(run.state.places.MucMenu, 10);
}

TEST(UnitListOf, TheUnitsHave25ItemsAndTheLastTheRemainder) {
  for (const auto& [count, line, items] :
       {std::tuple{25, 1, 25}, {49, 1, 49}, {50, 2, 25}, {60, 1, 25}, {60, 2, 35}}) {
    ItemRun run(bank(count));
    run.openBank(1);
    for (int down = 1; down < line; ++down)
      run.key(key::Down);
    run.key(key::Enter);
    EXPECT_EQ(run.exercises.run.SoCauChay(), items) << count << " line " << line;
    const std::vector<int> all = itemsOf(run);
    EXPECT_EQ(*std::min_element(all.begin(), all.end()), (line - 1) * 25 + 1);
    EXPECT_EQ(std::set<int>(all.begin(), all.end()).size(), all.size());
  }
}

TEST(UnitListOf, AnEmptyListOpensNothing) {
  ItemRun run(bank(24));
  run.openBank(1);
  run.key(key::Enter);
  EXPECT_FALSE(run.controls.RDT.Visible());
  EXPECT_EQ(run.focus(), "RN1");
}

TEST(UnitListOf, TheCaretIsKeptForEachBank) {
  ItemRun run(bank(60));
  run.openBank(1);
  run.key(key::Down);
  run.key(key::Enter);
  EXPECT_NE(run.stores.readSetting(11), 0);
  run.key(key::Esc);
  run.key(key::Esc);
  run.openBank(1);
  EXPECT_EQ(run.controls.RN1.GetLineFromChar(run.controls.RN1.SelStart()), 1);
}

TEST(UnitListOf, LeavingGoesToTheListeningButton) {
  ItemRun run(bank(25));
  run.openBank(1);
  run.key(key::Esc);
  EXPECT_FALSE(run.controls.RN1.Visible());
  EXPECT_EQ(run.focus(), "but4");
}

struct NotedListening final : ListeningSection {
  explicit NotedListening(ItemRun& itemRun) : run(itemRun) { run.exercises.units.share(*this); }

  void setUp() override { wasSetUp = true; }
  void openUnit() override { opened = run.state.list.SoBaiChon; }
  bool leaveText() override { return false; }
  void close() override {}
  [[nodiscard]] const Surface& page() const override { return run.controls.RN2; }

  ItemRun& run;
  bool wasSetUp = false;
  int opened = 0;
};

TEST(UnitListOf, TheListeningSectionHasNineLines) {
  ItemRun run(bank(25));
  const NotedListening listening(run);
  run.state.places.MucMenu = 4;
  run.exercises.units.HienBT(0);
  run.exercises.units.open();
  EXPECT_TRUE(listening.wasSetUp);
  EXPECT_THAT(run.controls.RN1.Text(), testing::StartsWith("\tUnit  1\r"));
  EXPECT_THAT(run.controls.RN1.Text(), testing::EndsWith("\tUnit  9\r"));
  run.hand.deliverSent();
  run.key(key::Down);
  run.key(key::Enter);
  EXPECT_EQ(listening.opened, 2);
  EXPECT_NE(run.stores.readSetting(10), 0);
}

/// Marks lessons 2 and 3, which have together so many items.
void startOwnTest(ItemRun& run) {
  run.lessons.open();
  Surface& RVP1 = run.controls.RVP1;
  run.controls.RDOS.Visible(false);
  for (const char* title : {"Two", "Three"}) {
    run.rightClick(RVP1, ItemRun::caretOf(RVP1, title) + 1);
  }
  run.key(key::Enter);
}

ItemStores lessonItems(int first, int second) {
  ItemStores stores;
  stores.lessons = {{2, ".Two\r"}, {3, ".Three\r"}};
  stores.counts = {{11, first}, {12, second}};
  stores.items.resize(10);
  for (int n = 0; n < first + second; ++n)
    stores.items.push_back({"402x *a_.", ""});
  return stores;
}

TEST(OwnTest, ARunOfSixKeepsItsOrder) {
  ItemRun run(lessonItems(3, 3));
  startOwnTest(run);
  EXPECT_EQ(itemsOf(run), (std::vector<int>{11, 12, 13, 14, 15, 16}));
}

TEST(OwnTest, ARunOfSevenIsShuffled) {
  ItemRun run(lessonItems(3, 4));
  startOwnTest(run);
  std::vector<int> items = itemsOf(run);
  EXPECT_FALSE(std::is_sorted(items.begin(), items.end()));
  std::sort(items.begin(), items.end());
  EXPECT_EQ(items, (std::vector<int>{11, 12, 13, 14, 15, 16, 17}));
}

TEST(OwnTest, BehindTheLastItemComesTheFirstAndNothingCounts) {
  ItemRun run(lessonItems(1, 1));
  startOwnTest(run);
  run.type("a");
  run.key(key::Enter);
  EXPECT_EQ(run.item.KetQuaCau, 1);
  step(run, "<Next>");
  EXPECT_EQ(run.number("ViTriCau"), 2);
  step(run, "<Next>");
  EXPECT_EQ(run.number("ViTriCau"), 1);
  EXPECT_TRUE(run.controls.RDT.Visible());
  EXPECT_EQ(run.exercises.scoring.SoDung, 0);
  EXPECT_TRUE(run.controls.Frame2.Visible());
}

TEST(OwnTest, ACountOfZeroIsOneItemAndShiftsTheAnswers) {
  ItemStores stores = lessonItems(0, 1);
  stores.items[10] = {"402zero *a_.", "about zero"};
  stores.items.push_back({"402one *a_.", "about one"});
  ItemRun run(stores);
  EXPECT_EQ(run.number("TongCau"), 366);
  startOwnTest(run);
  EXPECT_EQ(itemsOf(run), (std::vector<int>{11, 12}));
  EXPECT_THAT(run.controls.RDT.Text(), testing::HasSubstr("zero"));
  EXPECT_EQ(run.item.GiaiChung, "about zero");
  step(run, "<Next>");
  EXPECT_EQ(run.item.GiaiChung, "about one");
}

class BankRun : public testing::Test {
 protected:
  BankRun() : run(bank(25)) { run.startUnit(); }

  void answerRight() {
    run.type("a");
    run.key(key::Enter);
  }
  void stepTo(int place) {
    while (run.number("ViTriCau") < place)
      step(run, "<Next>");
  }

  ItemRun run;
};

TEST_F(BankRun, TheFirstBackShowsTheSameItemAndTheNextOnesWalkBack) {
  stepTo(3);
  answerRight();
  step(run, "<Back>");
  EXPECT_EQ(run.number("ViTriCau"), 3);
  EXPECT_FALSE(run.item.DaCham);
  EXPECT_THAT(run.controls.RDT.Text(), testing::HasSubstr(" ___.")) << "with a clean state";
  step(run, "<Back>");
  EXPECT_EQ(run.number("ViTriCau"), 2);
  step(run, "<Back>");
  EXPECT_EQ(run.number("ViTriCau"), 1);
  step(run, "<Back>");
  EXPECT_EQ(run.number("ViTriCau"), 25) << "from the first it wraps to the last";
}

TEST_F(BankRun, TheEndShowsTheScoreAndTheList) {
  answerRight();
  stepTo(25);
  step(run, "<Next>");
  EXPECT_FALSE(run.controls.RDT.Visible());
  EXPECT_EQ(run.focus(), "RN1");
  EXPECT_TRUE(run.controls.Frame1.Visible());
  EXPECT_EQ(run.form.Caption(), run.state.measures.KhoangDem + "Ban da lam dung  1/25 = 4%");
}

TEST_F(BankRun, TheEndTakesThePlateAway) {
  Surface& Rnen3 = run.controls.Rnen3;
  ASSERT_TRUE(Rnen3.Visible());
  stepTo(25);
  step(run, "<Next>");
  EXPECT_FALSE(Rnen3.Visible());
  EXPECT_EQ(Rnen3.Top(), run.state.measures.CaoMH + 100);
}

TEST_F(BankRun, TheEndWithNoneRightKeepsTheLastItemsCaption) {
  stepTo(25);
  const std::string caption = run.form.Caption();
  step(run, "<Next>");
  EXPECT_EQ(run.form.Caption(), caption);
  EXPECT_THAT(caption, testing::HasSubstr("Cau "));
}

TEST_F(BankRun, EscAfterTwoRightTellsTheScore) {
  answerRight();
  run.key(key::Enter);
  answerRight();
  run.key(key::Esc);
  EXPECT_EQ(run.form.Caption(), run.state.measures.KhoangDem + "Ban da lam dung  2/25 = 8%");
  EXPECT_EQ(run.focus(), "RN1");
}

TEST_F(BankRun, LeavingAnItemForgetsIt) {
  run.state.atHand.arm();
  run.key(key::Esc);
  EXPECT_EQ(run.state.text.CauHoi, "");
  EXPECT_EQ(run.item.MatNa, "");
  EXPECT_FALSE(run.state.word.ChoGiai);
}

TEST_F(BankRun, AnItemThatIsRetriedCountsTwice) {
  answerRight();
  step(run, "<Back>");
  answerRight();
  EXPECT_EQ(run.exercises.scoring.SoDung, 2);
}

TEST_F(BankRun, ChoosingAUnitStartsTheScoreOver) {
  answerRight();
  run.key(key::Esc);
  run.key(key::Enter);
  EXPECT_EQ(run.exercises.scoring.SoDung, 0);
}

TEST(Score, IsRoundedDownAndNeverAboveAll) {
  ItemRun run(bank(25));
  run.state.places.MucMenu = 10;
  Scoring& scoring = run.exercises.scoring;
  scoring.SoDung = 1;
  scoring.BaoDiem(3);
  EXPECT_THAT(run.form.Caption(), testing::EndsWith(" 1/3 = 33%"));
  scoring.SoDung = 5;
  scoring.BaoDiem(3);
  EXPECT_THAT(run.form.Caption(), testing::EndsWith(" 5/3 = 100%"));
  scoring.BaoDiem(0);
  EXPECT_THAT(run.form.Caption(), testing::EndsWith(" 5/3 = 100%"));
  run.state.places.MucMenu = 3;
  run.form.Caption("plain");
  scoring.BaoDiem(3);
  EXPECT_EQ(run.form.Caption(), "plain");
}

TEST(Items, AHeadingCodeWithoutARowLeavesTheHeadingEmpty) {
  ItemStores stores = bank(25);
  for (auto& item : stores.items)
    item.question = "404Text *a_.";
  ItemRun run(stores);
  run.startUnit();
  EXPECT_EQ(run.item.DeMuc, "");
  EXPECT_TRUE(run.controls.RDT.Visible());
}

TEST(Items, TheVerbBanksListTheirLessonsInABankOnly) {
  ItemStores stores;
  stores.counts = {{1, 1}, {2, 25}};
  stores.items = copies(26, {"405She *a_ x.", ""});
  ItemRun run(stores);
  run.startUnit(2);
  EXPECT_THAT(run.item.OTrong.at(1).Chu, testing::HasSubstr("`slot 69\r"));
}

TEST(Items, AnUnknownKindLeavesAnEmptyPageThatEscLeaves) {
  ItemRun run(bankOf({"900nothing", ""}));
  run.startUnit();
  EXPECT_EQ(run.controls.RDT.Text(), "");
  run.key(key::Esc);
  EXPECT_EQ(run.focus(), "RN1");
}

TEST(Items, AnOrderingItemIsHandedOnWithItsTranslations) {
  ItemRun run(bankOf({"300_He is very good.", "_Anh.\r?12\r"}));
  run.startUnit();
  // The record's own mark, and the one that the drill puts ahead.
  EXPECT_EQ(run.state.text.CauHoi, "\xA0\xA0He is very good.\xA0"
                                   "end.");
  EXPECT_EQ(run.item.LoiGiai, "_Anh.\r") << "a reference ends the record";
  EXPECT_THAT(run.controls.Rxep.Text(), testing::HasSubstr("Anh."));
  EXPECT_TRUE(run.controls.Rxep.Visible());
}

TEST(Items, ADamagedStoreOpensAndLeavesWithoutHarm) {
  ItemStores stores = bank(25);
  ItemRun run(stores);
  run.folder.write("data.vbt", "\xFF\xFF\xFF\x7F\x01\xFF\xFF\xFF");
  run.stores.MoDuLieu();
  run.startUnit();
  for (int count = 0; count < 30; ++count)
    run.key(key::Enter);
  run.key(key::Esc);
  EXPECT_EQ(run.focus(), "RN1");
}

TEST(Items, AnItemWithoutItsEndIsCutOff) {
  ItemRun run(bank(25));
  std::string stream = "402Number *" + std::string(3'000'000, 'x');
  for (char& each : stream)
    each = static_cast<char>(each ^ 0xC0);
  run.folder.write("data.bt", stream);
  run.folder.writeIntegers("data.vbt", std::vector<std::int32_t>(50, 0));
  run.stores.MoDuLieu();
  run.startUnit();
  const auto bound = static_cast<int>(LongestText + run.item.DeMuc.size() + 100);
  EXPECT_GT(run.controls.RDT.TextLength(), 30'000);
  EXPECT_LT(run.controls.RDT.TextLength(), bound);
  run.key(key::Enter);
  EXPECT_TRUE(run.item.DaCham);
}

} // namespace
} // namespace talvora
