#include "exercises/ItemRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace talvora {
namespace {

using test::bankOf;
using test::ItemRun;
using test::ItemStores;

/// Counts what a painter would have been told of one surface.
class Watch final : public FormObserver {
 public:
  explicit Watch(const Surface& surface) : surface_(surface), seen_(surface.scroll()) {}

  void controlChanged(Control& control, ControlChange change) override {
    if (&control == &surface_) ++counts_[change];
  }
  void focusChanged() override {}
  void captionChanged() override {}

  /// Whether the surface came, went, changed its size or its place, or shows another part.
  [[nodiscard]] bool moved() const {
    return counts_.contains(ControlChange::Place) || surface_.scroll() != seen_;
  }
  [[nodiscard]] bool changed() const {
    return counts_.contains(ControlChange::Text) || counts_.contains(ControlChange::Look);
  }
  void forget() {
    counts_.clear();
    seen_ = surface_.scroll();
  }

 private:
  const Surface& surface_;
  ScrollPlace seen_;
  std::map<ControlChange, int> counts_;
};

/// A fill-in item with a blank in its first line and another one in a line far below.
ItemStores longItem() {
  std::string body = "She *went___ home.\r";
  for (int line = 1; line <= 60; ++line)
    body += "line " + std::to_string(line) + "\r";
  body += "Then she *slept___ well.";
  ItemStores stores = bankOf({"402" + body, "General^\rOne\r?12\r^\rTwo\r?12\r"});
  stores.lessons = {{12, ".Past simple\rThe lesson."}};
  return stores;
}

class StillPage : public testing::Test {
 protected:
  StillPage() : run(longItem()), watch(run.controls.RDT) {
    run.startUnit();
    run.controls.RDOS.Visible(false);
    run.form.observe(&watch);
    watch.forget();
  }

  [[nodiscard]] int cellOf(int blank) const { return run.item.OTrong.at(blank).Dau; }

  ItemRun run;
  Surface& RDT = run.controls.RDT;
  Surface& RHDBT = run.controls.RHDBT;
  Watch watch;
};

TEST_F(StillPage, AnItemLongerThanThePageIsSeenFromItsTop) {
  EXPECT_GT(RDT.pointOf(RDT.TextLength()).y, RDT.Height());
  EXPECT_EQ(RDT.scroll(), ScrollPlace{});
  EXPECT_EQ(RDT.SelStart(), cellOf(1));
}

TEST_F(StillPage, TypingRepaintsTextAndMovesNothing) {
  run.type("we nt");
  run.key(key::Backspace);
  run.key(key::Delete);
  EXPECT_TRUE(watch.changed());
  EXPECT_FALSE(watch.moved());
  EXPECT_EQ(RDT.scroll(), ScrollPlace{});
}

TEST_F(StillPage, JudgingColoursBlanksOutOfViewAndStaysInPlace) {
  run.type("went");
  run.key(key::Enter);
  EXPECT_EQ(run.item.ODaLam.count(), 2);
  EXPECT_EQ(RDT.scroll(), ScrollPlace{});
  EXPECT_EQ(RDT.SelStart(), cellOf(1) + 4);
}

TEST_F(StillPage, JudgingStaysWhereTheLearnerHasScrolledTo) {
  RDT.scrollBy(3000);
  const ScrollPlace seen = RDT.scroll();
  ASSERT_NE(seen, ScrollPlace{});
  run.key(key::Enter);
  EXPECT_EQ(RDT.scroll(), seen);
}

TEST_F(StillPage, ExplainingABlankMovesNothingOnThePage) {
  RDT.SelStart(cellOf(2));
  run.key(key::Enter);
  const ScrollPlace seen = RDT.scroll();
  ASSERT_NE(seen, ScrollPlace{});
  watch.forget();
  run.click(RDT, cellOf(2));
  EXPECT_TRUE(RHDBT.Visible());
  EXPECT_FALSE(watch.moved());
  RDT.moveMouse(shift::None, {1, 1});
  EXPECT_FALSE(RHDBT.Visible());
  EXPECT_FALSE(watch.moved());
  EXPECT_EQ(RDT.scroll(), seen);
  run.key(key::Enter);
  EXPECT_EQ(run.number("ViTriCau"), 2);
  EXPECT_EQ(RDT.scroll(), ScrollPlace{}) << "the next item is seen from its top again";
}

TEST_F(StillPage, FollowingALinkAndComingBackLeavesThePageAsItWas) {
  run.key(key::Enter);
  run.click(RDT, cellOf(1));
  const std::uint64_t shown = RDT.revision();
  watch.forget();
  run.click(RHDBT, ItemRun::caretOf(RHDBT, "Past simple") + 2);
  ASSERT_TRUE(run.controls.RVP2.Visible());
  run.key(key::Esc);
  EXPECT_FALSE(run.controls.RVP2.Visible());
  EXPECT_EQ(RDT.revision(), shown);
  EXPECT_FALSE(watch.moved());
}

TEST_F(StillPage, SteppingNeverPaintsAPageWithoutItsItem) {
  int paints = 0;
  run.screen.painted = [&] {
    ++paints;
    EXPECT_TRUE(RDT.Visible());
    EXPECT_TRUE(run.controls.Frame1.Visible());
    EXPECT_THAT(RDT.Text(), testing::EndsWith("<Back>    <Next>"));
  };
  run.click(RDT, ItemRun::caretOf(RDT, "<Next>") + 2);
  EXPECT_EQ(run.number("ViTriCau"), 2);
  EXPECT_EQ(paints, 1);
  run.click(RDT, ItemRun::caretOf(RDT, "<Back>") + 2);
  EXPECT_EQ(paints, 2);
}

TEST(StillChoice, JudgingAndExplainingMoveNothing) {
  ItemRun run(bankOf({"111She *has gone_ home\r+goes\r+go\r+went\r+gone\rc\r", "General"}));
  run.startUnit();
  Surface& RABCD = run.controls.RABCD;
  EXPECT_EQ(RABCD.scroll(), ScrollPlace{});
  Watch watch(RABCD);
  run.form.observe(&watch);
  for (const char* label : {"(a)", "(c)"}) {
    run.click(RABCD, ItemRun::caretOf(RABCD, label) + 1);
    run.rightClick(RABCD, ItemRun::caretOf(RABCD, label) + 1);
  }
  EXPECT_EQ(run.item.KetQuaCau, -1);
  EXPECT_TRUE(watch.changed());
  EXPECT_FALSE(watch.moved());
}

TEST(StillMistake, ChoosingAndExplainingMoveNothing) {
  ItemRun run(bankOf({"212She *go_to *school_ home.\r+\rA\r", "General^\rgoes"}));
  run.startUnit();
  Surface& Rsai = run.controls.Rsai;
  Watch watch(Rsai);
  run.form.observe(&watch);
  for (const char* phrase : {"school", "go to"}) {
    run.click(Rsai, ItemRun::caretOf(Rsai, phrase) + 1);
    run.rightClick(Rsai, ItemRun::caretOf(Rsai, phrase) + 1);
  }
  EXPECT_TRUE(watch.changed());
  EXPECT_FALSE(watch.moved());
}

} // namespace
} // namespace talvora
