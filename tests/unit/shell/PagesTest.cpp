// What the sections say of their pages, and what is an error of theirs at the start.
#include "support/ProgramRun.h"
#include "support/ShellRun.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

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

TEST(PagesTest, ALayerBelongsToOneControlWhateverTheOrder) {
  test::ShellRun run;
  Form form(run.machine.screen, run.machine.metrics);
  Frame card("card", form);
  Frame text("text", form);
  Frame background("background", form);
  form.add(background);
  form.add(text, Layer::Text);
  EXPECT_THROW(form.check(), std::logic_error) << "the others are nobody's";
  form.add(card, Layer::ListCard);
  EXPECT_EQ(form.controls(), (std::vector<Control*>{&background, &card, &text}));
  EXPECT_THROW(form.add(background, Layer::Text), std::logic_error);
  EXPECT_THROW(form.add(background, Layer::Count), std::logic_error);
  EXPECT_EQ(form.controls().size(), 3U);
}

TEST(PagesTest, TheControlsOfAllSectionsFillTheStack) {
  const ShellRun run;
  run.form.check();
  std::string stack;
  for (const Control* control : run.form.controls())
    stack += control->Name() + " ";
  EXPECT_EQ(stack, "Im1 MM but1 but2 but3 but4 but5 but6 but7 but8 but9 but10 but11 but12 but13 "
                   "but14 but15 but16 but17 but18 Frame1 R1 RVP1 RN1 RW1 Rchon RAmthanh Rcachhoc "
                   "Rnen3 Frame2 R2 RN2 RDT RABCD Rsai Rviet Rnen2 RHDBT Frame3 Rxep RW2 RVP2 RTD "
                   "Rnen RHD RDOS L1 FC1 FC2 ");
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
