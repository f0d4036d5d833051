#include "support/ProgramRun.h"
#include "text/Bytes.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ProgramRun;

class Menu : public testing::Test {
 protected:
  Menu() { run.start(); }

  /// The buttons that animation pictures were shown on.
  [[nodiscard]] std::vector<std::string> animatedButtons() {
    std::vector<std::string> buttons;
    for (const LogEntry& entry : run.machine.log.take()) {
      if (entry.what == "picture") {
        buttons.push_back(std::get<std::string>(*entry.find("button")));
      }
    }
    return buttons;
  }

  ProgramRun run;
};

TEST_F(Menu, CaptionsAreStoredInTheButtonFontsEncoding) {
  EXPECT_EQ(run.controls().but(1).Caption(), "BAØI ÑOÏC"_bytes);
  EXPECT_EQ(run.controls().but(9).Caption(), "HÖÔÙNG DAÃN CAÙCH HOÏC"_bytes);
  EXPECT_EQ(run.controls().but(13).Caption(), "PREPOSITION && INDIOMS");
}

TEST_F(Menu, EscAsksAndYesIsTheDefault) {
  run.machine.log.take();
  run.key(key::Esc);
  EXPECT_EQ(run.program.ending(), Ending::Quit);
  const LogEntry& box = run.machine.log.entries().front();
  EXPECT_EQ(std::get<std::string>(*box.find("text")), "Do you want to quit?");
  EXPECT_EQ(std::get<std::string>(*box.find("title")), "TALVORA 2.4");
  EXPECT_EQ(std::get<std::string>(*box.find("default")), "yes");
}

TEST_F(Menu, NoKeepsTheProgramRunning) {
  run.machine.boxes.answer(BoxAnswer::No);
  run.key(key::Esc);
  EXPECT_TRUE(run.program.running());
  EXPECT_EQ(run.folder.read("data.Kcu").size(), 0U);
}

TEST_F(Menu, EscOnAButtonBehindAnOpenSectionAsksNothing) {
  run.controls().Frame2.Visible(true);
  run.key(key::Esc);
  EXPECT_TRUE(run.program.running());
  EXPECT_EQ(run.machine.log.count("box"), 0);
}

TEST_F(Menu, ClosingTheWindowWithASectionOpenEndsWithoutAQuestionOrTheCounter) {
  run.controls().Frame1.Visible(true);
  run.program.closeWindow();
  EXPECT_EQ(run.program.ending(), Ending::Quit);
  EXPECT_EQ(run.machine.log.count("box"), 0);
  EXPECT_EQ(run.folder.read("data.Kcu").size(), 0U);
}

TEST_F(Menu, ClosingTheWindowOnTheMenuAsks) {
  run.machine.boxes.answer(BoxAnswer::No);
  run.program.closeWindow();
  EXPECT_TRUE(run.program.running());
  run.program.closeWindow();
  EXPECT_EQ(run.program.ending(), Ending::Quit);
}

TEST_F(Menu, QuittingWritesTheRunCounter) {
  // Start-up sets the counter to 2, whatever is stored.
  run.key(key::Esc);
  EXPECT_EQ(run.folder.read("data.Kcu").substr(20, 4), std::string("\x03\0\0\0", 4));
}

TEST_F(Menu, TheClosedSectionAnswersForASecond) {
  run.machine.log.take();
  run.clickButton(6);
  const auto entries = run.machine.log.take();
  const auto message = std::find_if(entries.begin(), entries.end(),
                                    [](const LogEntry& each) { return each.what == "message"; });
  ASSERT_NE(message, entries.end());
  EXPECT_EQ(std::get<std::string>(*message->find("text")), "PhÌn này ðang xây dÜng."_bytes);
  EXPECT_EQ(std::get<std::int64_t>(*message->find("ms")), 1000);
  EXPECT_FALSE(run.controls().RHD.Visible());
  EXPECT_FALSE(run.controls().Frame1.Visible());
  EXPECT_EQ(run.number("MucMenu"), 0);
}

TEST_F(Menu, ArrowsMoveTheFocusAndThePointerFollows) {
  run.key(key::Down);
  EXPECT_EQ(run.focus(), "but2");
  EXPECT_EQ(run.machine.input.cursorPos(), (PixelPoint{480, 286}));
  run.key(key::Up);
  run.key(key::Up);
  EXPECT_EQ(run.focus(), "but18");
  EXPECT_EQ(run.machine.input.cursorPos(), (PixelPoint{750, 608}));
}

TEST_F(Menu, AFocusThatCameByTheMouseLeavesThePointer) {
  const PixelPoint before = run.machine.input.cursorPos();
  run.controls().but(5).SetFocus();
  EXPECT_EQ(run.machine.input.cursorPos(), before);
}

TEST_F(Menu, TheButtonUnderThePointerIsAnimatedAndTheOthersRest) {
  run.machine.log.take();
  run.machine.events.allowFrames(20);
  run.controls().but(7).MouseMove();
  EXPECT_EQ(run.focus(), "but7");
  std::vector<std::int64_t> frames;
  for (const LogEntry& entry : run.machine.log.take()) {
    if (entry.what == "picture") frames.push_back(std::get<std::int64_t>(*entry.find("frame")));
  }
  EXPECT_EQ(frames, (std::vector<std::int64_t>{14, 14, 8, 9,  10, 11, 12, 13, 12, 11,
                                               10, 9,  8, 14, 7,  6,  5,  4,  3,  2}));
  EXPECT_EQ(run.controls().but(7).Picture(), 2);
  EXPECT_EQ(run.controls().but(1).Picture(), run.controls().but(16).StoredPicture());
  EXPECT_EQ(run.number("HoverDem"), 0);
  EXPECT_EQ(run.number("HoverSo"), 7);
}

TEST_F(Menu, MovingOnTheSameButtonChangesNothing) {
  run.machine.log.take();
  run.controls().but(1).MouseMove();
  EXPECT_TRUE(animatedButtons().empty());
}

TEST_F(Menu, AHeldArrowStopsTheAnimationAtTheNextFrame) {
  run.machine.log.take();
  run.machine.events.allowFrames(20);
  run.machine.input.keyDown(key::Down);
  run.controls().but(4).MouseMove();
  EXPECT_EQ(animatedButtons(), std::vector<std::string>{"but4"});
}

TEST_F(Menu, TheGuideOpensBehindTheCurtainAndEscLeadsBack) {
  run.machine.log.take();
  run.clickButton(9);
  EXPECT_EQ(run.machine.log.count("curtain"), 1);
  Surface& guide = run.controls().Rcachhoc;
  EXPECT_TRUE(guide.Visible());
  EXPECT_FALSE(guide.Locked());
  EXPECT_EQ(run.focus(), "Rcachhoc");
  EXPECT_EQ(guide.Text(), "guide\r");
  EXPECT_EQ(run.number("MucMenu"), 0);
  EXPECT_EQ(run.machine.input.cursorPos(), (PixelPoint{512, 55}));
  run.type('x');
  run.key(key::Delete);
  EXPECT_EQ(guide.Text(), "guide\r");
  run.key(key::Esc);
  EXPECT_FALSE(guide.Visible());
  EXPECT_FALSE(run.controls().Frame1.Visible());
  EXPECT_EQ(run.focus(), "but9");
}

} // namespace
} // namespace talvora
