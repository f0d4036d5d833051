// What the sections say of their pages, and what is an error of theirs at the start.
#include "support/ProgramRun.h"
#include "support/ShellRun.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace talvora {
namespace {

using test::ShellRun;

const auto Nothing = [](Surface&) {};

TEST(PagesTest, ASurfaceIsAddedOnce) {
  ShellRun run;
  run.shell.pages.add({.surface = run.controls.R1});
  EXPECT_THROW(run.shell.pages.add({.surface = run.controls.R1}), std::logic_error);
}

TEST(PagesTest, ASharedCaretBelongsToOnePage) {
  ShellRun run;
  run.shell.pages.add({.surface = run.controls.R2, .caret = SharedCaret::OfText});
  EXPECT_THROW(run.shell.pages.add({.surface = run.controls.RN2, .caret = SharedCaret::OfText}),
               std::logic_error);
  EXPECT_EQ(run.shell.pages.withCaret(SharedCaret::OfText), &run.controls.R2);
  EXPECT_EQ(run.shell.pages.withCaret(SharedCaret::OfList), nullptr);
}

TEST(PagesTest, ARankBelongsToOneSurface) {
  ShellRun run;
  Gestures& gestures = run.shell.gestures;
  gestures.onClose(CloseRank::Writing, run.controls.RW2, Nothing);
  EXPECT_THROW(gestures.onClose(CloseRank::Writing, run.controls.Rxep, Nothing), std::logic_error);
  FocusReturn& focusReturn = run.shell.focusReturn;
  focusReturn.onReturnTo(FocusRank::Text, run.controls.R2);
  EXPECT_THROW(focusReturn.onReturnTo(FocusRank::Text, run.controls.RN2), std::logic_error);
}

TEST(PagesTest, ARankThatIsNoneIsRefused) {
  ShellRun run;
  EXPECT_THROW(run.shell.gestures.onClose(CloseRank::Count, run.controls.RW2, Nothing),
               std::logic_error);
  EXPECT_THROW(run.shell.focusReturn.onReturnTo(FocusRank::Count, run.controls.R2),
               std::logic_error);
}

TEST(PagesTest, WhatIsLeftToNobodyIsFoundAtTheStart) {
  ShellRun run;
  EXPECT_THROW(run.shell.pages.check(), std::logic_error);
  EXPECT_THROW(run.shell.gestures.check(), std::logic_error);
  EXPECT_THROW(run.shell.focusReturn.check(), std::logic_error);
  EXPECT_NO_THROW(test::ProgramRun());
}

TEST(PagesTest, AParkedPageStandsBelowTheScreenInItsFont) {
  ShellRun run;
  Surface& page = run.controls.RVP1;
  run.shell.pages.add({.surface = page,
                       .textFont = true,
                       .font = FontStep::Larger,
                       .parked = Parked::BelowAndBeside,
                       .paper = 0x123456});
  run.shell.setup.setTextFont();
  run.shell.setup.parkSurfaces();
  EXPECT_GT(page.Top(), run.state.measures.CaoMH);
  EXPECT_GT(page.Left(), run.state.measures.RongMH);
  EXPECT_EQ(page.Font().size, run.state.measures.CoChu + 2);
  EXPECT_EQ(page.Font().name, "x1");
  EXPECT_EQ(page.BackColor(), 0x123456U);
}

} // namespace
} // namespace talvora
