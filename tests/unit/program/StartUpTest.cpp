#include "platform/FatalFailure.h"
#include "support/ProgramRun.h"
#include "text/Bytes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

namespace talvora {
namespace {

using test::ProgramRun;

struct ScreenCase {
  int pixelWidth;
  int pixelHeight;
  std::map<std::string, int> measures;
  std::array<int, 4> but1;  // left, top, width, height
  std::array<int, 2> but18; // left, top
  std::array<int, 4> bar;   // left, top, width, height of the hint bar
};

const std::vector<ScreenCase>& screenCases() {
  static const std::vector<ScreenCase> cases = {
      {640,
       480,
       {{"RongMH", 9600},      {"CaoMH", 6984},      {"CoNut", 9},       {"CoChu", 13},
        {"PhanTramRong", 75},  {"BuocTruot", 150},   {"NutHo", 96},      {"RongBai", 7200},
        {"CaoBai", 5587},      {"LeTraiBai", 1200},  {"LeTrenBai", 698}, {"RongKhung", 7392},
        {"LeTraiKhung", 1104}, {"LeTrenKhung", 698}, {"Phan12", 800},    {"Phan3", 3200},
        {"Phan6", 1600},       {"ChuotX1", 305},     {"ChuotX2", 477},   {"ChuotY", 160},
        {"ChuotBuoc", 29}},
       {2256, 1954, 2496, 279},
       {4848, 5306},
       {1104, 148, 7392, 480}},
      {800,
       600,
       {{"RongMH", 12000},    {"CaoMH", 8730},      {"CoNut", 10},      {"CoChu", 15},
        {"PhanTramRong", 85}, {"BuocTruot", 200},   {"NutHo", 120},     {"RongBai", 10200},
        {"CaoBai", 6984},     {"LeTraiBai", 900},   {"LeTrenBai", 873}, {"RongKhung", 10440},
        {"LeTraiKhung", 780}, {"LeTrenKhung", 873}, {"Phan12", 1000},   {"Phan3", 4000},
        {"Phan6", 2000},      {"ChuotX1", 388},     {"ChuotX2", 605},   {"ChuotY", 190},
        {"ChuotBuoc", 36}},
       {2820, 2444, 3120, 349},
       {6060, 6636},
       {780, 226, 10440, 560}},
      {1024,
       768,
       {{"RongMH", 15360},     {"CaoMH", 11174},      {"CoNut", 13},       {"CoChu", 20},
        {"PhanTramRong", 76},  {"BuocTruot", 300},    {"NutHo", 154},      {"RongBai", 11674},
        {"CaoBai", 8939},      {"LeTraiBai", 1843},   {"LeTrenBai", 1118}, {"RongKhung", 11981},
        {"LeTraiKhung", 1690}, {"LeTrenKhung", 1118}, {"Phan12", 1280},    {"Phan3", 5120},
        {"Phan6", 2560},       {"ChuotX1", 480},      {"ChuotX2", 750},    {"ChuotY", 240},
        {"ChuotBuoc", 46}},
       {3610, 3128, 3993, 447},
       {7757, 8488},
       {1689, 246, 11981, 760}},
      {1366,
       768,
       {{"RongMH", 20490},     {"CaoMH", 11174},      {"CoNut", 13},       {"CoChu", 20},
        {"PhanTramRong", 76},  {"BuocTruot", 300},    {"NutHo", 205},      {"RongBai", 15572},
        {"CaoBai", 8939},      {"LeTraiBai", 2459},   {"LeTrenBai", 1118}, {"RongKhung", 15982},
        {"LeTraiKhung", 2254}, {"LeTrenKhung", 1118}, {"Phan12", 1707},    {"Phan3", 6830},
        {"Phan6", 3415},       {"ChuotX1", 480},      {"ChuotX2", 750},    {"ChuotY", 240},
        {"ChuotBuoc", 46}},
       {4815, 3128, 5328, 447},
       {10348, 8488},
       {2254, 246, 15982, 760}},
  };
  return cases;
}

ScriptedOptions screenOf(int width, int height) {
  ScriptedOptions options;
  options.screenWidth = width;
  options.screenHeight = height;
  return options;
}

class Layout : public testing::TestWithParam<ScreenCase> {};

TEST_P(Layout, IsExactToTheTwip) {
  const ScreenCase& expected = GetParam();
  ProgramRun run(screenOf(expected.pixelWidth, expected.pixelHeight));
  run.start();
  for (const auto& [name, value] : expected.measures)
    EXPECT_EQ(run.number(name), value) << name;
  const Button& first = run.controls().but(1);
  EXPECT_EQ((std::array{first.Left(), first.Top(), first.Width(), first.Height()}), expected.but1);
  const Button& last = run.controls().but(18);
  EXPECT_EQ((std::array{last.Left(), last.Top()}), expected.but18);
  const Surface& bar = run.controls().RDOS;
  EXPECT_EQ((std::array{bar.Left(), bar.Top(), bar.Width(), bar.Height()}), expected.bar);
}

INSTANTIATE_TEST_SUITE_P(Screens, Layout, testing::ValuesIn(screenCases()), [](const auto& each) {
  return "At" + std::to_string(each.param.pixelWidth) + "x" +
         std::to_string(each.param.pixelHeight);
});

TEST(StartUp, TellsTheScreenClassesApartAtTheirBounds) {
  const std::vector<std::pair<int, int>> classes = {{799, 9}, {800, 10}, {801, 13}, {2000, 13}};
  for (const auto& [pixels, CoNut] : classes) {
    ProgramRun run(screenOf(pixels, 600));
    run.start();
    EXPECT_EQ(run.number("CoNut"), CoNut) << pixels;
  }
}

TEST(StartUp, EndsWithTheFirstButtonLitAndThePointerOverIt) {
  ProgramRun run;
  run.start();
  EXPECT_TRUE(run.program.running());
  EXPECT_EQ(run.focus(), "but1");
  EXPECT_EQ(run.machine.input.cursorPos(), (PixelPoint{480, 240}));
  EXPECT_FALSE(run.flag("DangBan"));
  EXPECT_FALSE(run.flag("waitkd"));
  EXPECT_EQ(run.number("HoverSo"), 1);
  EXPECT_GE(run.machine.log.count("picture"), 1);
  for (int number = 1; number <= 18; ++number) {
    EXPECT_TRUE(run.controls().but(number).Visible()) << number;
    EXPECT_EQ(run.controls().but(number).TabIndex(), number);
  }
}

TEST(StartUp, PadsTheCaption) {
  ProgramRun run;
  run.start();
  EXPECT_EQ(run.form().Caption(), std::string(110, ' ') + "TALVORA 2.4");
  EXPECT_EQ(run.text("TieuDeE"), run.form().Caption());
}

TEST(StartUp, ParksTheSurfacesOffTheScreen) {
  ProgramRun run;
  run.start();
  ProgramControls& c = run.controls();
  for (const Control* control : std::initializer_list<Control*>{&c.R1, &c.R2, &c.RW1, &c.RVP1}) {
    EXPECT_EQ(control->Left(), 15362) << control->Name();
  }
  for (const Control* control : std::initializer_list<Control*>{
           &c.R1, &c.R2, &c.RVP2, &c.Rchon, &c.RHD, &c.RTD, &c.RDT, &c.Rxep, &c.Rnen}) {
    EXPECT_EQ(control->Top(), 11474) << control->Name();
  }
  EXPECT_EQ(c.Rnen3.Top(), 11274);
  EXPECT_EQ(c.RHD.BackColor(), 0x80000013U);
  EXPECT_EQ(run.number("MauNenHD"), 0x80000013U);
  EXPECT_EQ(c.RDOS.Font().size, 20.5);
  EXPECT_EQ(c.Rxep.Font().size, 22);
  EXPECT_TRUE(c.RTD.Font().bold);
}

TEST(StartUp, TheFirstRunSetsUpAndEnds) {
  ProgramRun run;
  run.folder.remove("Yes1");
  run.start();
  EXPECT_EQ(run.program.ending(), Ending::FirstRun);
  EXPECT_TRUE(run.folder.has("Yes1"));
  ASSERT_EQ(run.machine.log.count("box"), 1);
  EXPECT_EQ(run.machine.log.count("run"), 0);
  const LogEntry& box = run.machine.log.entries().front();
  EXPECT_EQ(std::get<std::string>(*box.find("text")),
            "Neu chuong trinh bi loi thi xem muc <Huong dan cach hoc> Hoac doc file README trong "
            "thu muc: " +
                run.folder.path());
  EXPECT_FALSE(run.form().Visible());
}

TEST(StartUp, TheStartAfterTheFirstRunReachesTheMenu) {
  ProgramRun run;
  run.folder.remove("Yes1");
  run.start();
  EXPECT_EQ(run.folder.read("Yes1"), "");
  ScriptedMachine machine;
  Program second(machine.platform, run.folder.path());
  second.Main();
  EXPECT_TRUE(second.running());
  EXPECT_EQ(machine.log.count("box"), 0);
  EXPECT_EQ(second.form().ActiveControl(), &second.controls().but(1));
  EXPECT_EQ(machine.input.cursorPos(), (PixelPoint{480, 240}));
  EXPECT_NE(second.controls().but(1).Picture(), second.controls().but(2).Picture());
}

/// An event loop in which a button is clicked whenever events may run.
class ClickingLoop final : public EventLoop {
 public:
  Flow letEventsRun() override {
    click();
    return Flow::Interrupt;
  }
  Flow letEventsRunUntilNextFrame() override { return Flow::Interrupt; }

  std::function<void()> click = [] {};
};

TEST(StartUp, WhileItLoadsOnlyTheClosedSectionAnswersAClick) {
  test::TestFolder folder;
  folder.writeEmptyStores();
  folder.write("Yes1", "");
  for (const int number : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 18}) {
    ScriptedMachine machine;
    ClickingLoop loop;
    Platform platform{machine.clock,        loop,
                      machine.input,        machine.speech,
                      machine.wave,         machine.metrics,
                      machine.layout,       machine.boxes,
                      machine.screen,       machine.clipboard,
                      machine.installation, machine.narrator,
                      machine.random};
    Program program(platform, folder.path());
    int clicks = 0;
    loop.click = [&] {
      ++clicks;
      program.controls().but(number).Click();
    };
    program.Main();
    EXPECT_GT(clicks, 0);
    EXPECT_EQ(machine.log.count("message"), number == 6 ? clicks : 0) << number;
    EXPECT_FALSE(program.controls().Frame1.Visible()) << number;
    EXPECT_EQ(program.section(), 0) << number;
  }
}

TEST(StartUp, TheFirstRunStartsTheInstallersOfAMissingEngine) {
  ScriptedOptions options;
  options.voices = 0;
  ProgramRun run(options);
  run.folder.remove("Yes1");
  run.start();
  EXPECT_EQ(run.machine.log.count("box"), 2);
  EXPECT_EQ(run.machine.log.count("run"), 2);
  EXPECT_EQ(run.program.ending(), Ending::FirstRun);
}

TEST(StartUp, ALaterRunDoesNotLookForTheEngine) {
  ScriptedOptions options;
  options.voices = 0;
  ProgramRun run(options);
  run.start();
  EXPECT_TRUE(run.program.running());
  EXPECT_EQ(run.machine.log.count("run"), 0);
  EXPECT_EQ(run.machine.log.count("box"), 0);
}

TEST(StartUp, AMissingStoreIsNamed) {
  for (const char* name : {"data.av", "data.bt", "dataPt.v", "data.mtd", "datatu.txt"}) {
    ProgramRun run;
    run.folder.remove(name);
    try {
      run.start();
      FAIL() << "started without " << name;
    } catch (const FatalFailure& failure) {
      EXPECT_THAT(failure.what(), testing::HasSubstr(name));
    }
  }
}

TEST(StartUp, TheColumnsHaveOneFaceEachAndOneStartInThreeTheOtherPair) {
  std::set<std::pair<int, int>> looks;
  for (std::uint64_t seed = 1; seed <= 30; ++seed) {
    ScriptedOptions options;
    options.seed = seed;
    ProgramRun run(options);
    run.start();
    ProgramControls& c = run.controls();
    // The rest faces of the menu at large: the animation's first picture turned the columns over.
    looks.insert({c.but(16).StoredPicture(), c.but(17).StoredPicture()});
    for (int number = 2; number <= 15; ++number) {
      EXPECT_EQ(c.but(number).Picture(), c.but(16).StoredPicture());
    }
    for (int number = 16; number <= 18; ++number) {
      EXPECT_EQ(c.but(number).Picture(), c.but(17).StoredPicture());
    }
  }
  EXPECT_EQ(looks, (std::set<std::pair<int, int>>{{16, 17}, {14, 15}}));
}

} // namespace
} // namespace talvora
