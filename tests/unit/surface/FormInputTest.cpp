// Pointer and keys on the form, and what the program sends itself.
#include "surface/FormInput.h"
#include "support/ShellRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace talvora {
namespace {

using Deeds = std::vector<std::string>;

class FormInputTest : public testing::Test {
 protected:
  FormInputTest() {
    run.show(page);
    page.Text("some words on a page");
    button.Left(11000);
    button.Top(1000);
    button.Width(900);
    button.Height(900);
    button.Visible(true);
    page.MouseDown = [this](MouseButton, int shift, SurfacePoint) { note("down", shift); };
    page.MouseUp = [this](MouseButton, int shift, SurfacePoint) { note("up", shift); };
    page.MouseMove = [this](int shift, SurfacePoint) { note("move", shift); };
    page.KeyDown = [this](int&, int shift) { note("key", shift); };
    page.KeyUp = [this](int&, int shift) { note("release", shift); };
    button.Click = [this] { deeds.emplace_back("click"); };
    button.MouseMove = [this] { deeds.emplace_back("hover"); };
  }

  void note(const std::string& deed, int shift) { deeds.push_back(deed + std::to_string(shift)); }
  [[nodiscard]] Deeds taken() { return std::exchange(deeds, {}); }

  static constexpr SurfacePoint OnPage{1500, 1200};
  static constexpr SurfacePoint OnButton{11100, 1100};
  static constexpr SurfacePoint Beside{500, 500};

  test::ShellRun run;
  Surface& page = run.controls.R2;
  Button& button = run.controls.but(3);
  FormInput input{run.form};
  Deeds deeds;
};

TEST_F(FormInputTest, APressGivesTheKeyboardAndAReleaseOnTheButtonClicks) {
  input.press(MouseButton::Left, shift::None, OnButton);
  EXPECT_TRUE(run.form.hasFocus(button));
  input.release(MouseButton::Left, shift::None, OnButton);
  EXPECT_EQ(taken(), Deeds{"click"});
  input.press(MouseButton::Left, shift::None, OnButton);
  input.release(MouseButton::Left, shift::None, Beside);
  input.press(MouseButton::Right, shift::None, OnButton);
  input.release(MouseButton::Right, shift::None, OnButton);
  EXPECT_EQ(taken(), Deeds{});
}

TEST_F(FormInputTest, TheSecondPressOfADoubleClickOnAButtonIsAPress) {
  input.press(MouseButton::Left, shift::None, OnButton);
  input.release(MouseButton::Left, shift::None, OnButton);
  input.doubleClick(shift::None, OnButton);
  input.release(MouseButton::Left, shift::None, OnButton);
  EXPECT_EQ(taken(), (Deeds{"click", "click"}));
}

TEST_F(FormInputTest, ACardTakesTheClickAndLeavesTheKeyboard) {
  Frame& card = run.controls.Frame3;
  card.Left(0);
  card.Top(0);
  card.Width(20000);
  card.Height(9000);
  card.Visible(true);
  input.press(MouseButton::Left, shift::None, OnPage);
  input.release(MouseButton::Left, shift::None, OnPage);
  EXPECT_EQ(taken(), Deeds{});
  EXPECT_TRUE(run.form.hasFocus(page));
}

TEST_F(FormInputTest, AMoveMeansTheSteeredButtonWhateverLiesThere) {
  input.move(OnPage, shift::None, MouseHeld::None);
  EXPECT_EQ(taken(), Deeds{"move0"});
  button.SetFocus();
  run.form.steerTo(button, run.form.virtualScreen().toPixel(OnPage));
  input.move(OnPage, shift::None, MouseHeld::None);
  input.deliverMove(OnPage, shift::None);
  EXPECT_EQ(taken(), (Deeds{"hover", "hover"}));
}

TEST_F(FormInputTest, APointerThatHasGoneOnMeansWhatLiesUnderIt) {
  const SurfacePoint beside{OnPage.x + 2 * TwipsPerPixel, OnPage.y};
  button.SetFocus();
  run.form.steerTo(button, run.form.virtualScreen().toPixel(OnPage));
  input.move(beside, shift::None, MouseHeld::None);
  input.move(OnPage, shift::None, MouseHeld::None);
  EXPECT_EQ(taken(), (Deeds{"move0", "move0"}));
}

TEST_F(FormInputTest, AControlWithoutTheKeyboardIsNotMeantFromAfar) {
  run.form.steerTo(button, run.form.virtualScreen().toPixel(OnPage));
  page.SetFocus();
  input.move(OnPage, shift::None, MouseHeld::None);
  EXPECT_EQ(taken(), Deeds{"move0"});
}

TEST_F(FormInputTest, AModifierCarriesItsBitWhileItGoesDown) {
  input.pressKey(key::Ctrl, shift::None, '\0');
  input.releaseKey(key::Ctrl, shift::Ctrl);
  EXPECT_EQ(taken(), (Deeds{"key2", "release0"}));
}

TEST_F(FormInputTest, ASentClickArrivesWhereThePointerIsAndWithTheModifiers) {
  input.pointerCame(OnPage);
  const PixelPoint pixel = run.form.virtualScreen().toPixel(OnPage);
  run.controls.but(1).Visible(true);
  run.controls.but(1).SetFocus();
  SurfacePoint at;
  page.MouseDown = [&](MouseButton, int shift, SurfacePoint where) {
    at = where;
    note("down", shift);
  };
  input.deliver(SyntheticClick{MouseButton::Left, pixel}, shift::Ctrl);
  EXPECT_EQ(taken(), (Deeds{"down2", "up2"}));
  EXPECT_EQ(at, (SurfacePoint{OnPage.x - page.Left(), OnPage.y - page.Top()}));
  EXPECT_TRUE(run.form.hasFocus(page));
}

TEST_F(FormInputTest, ASentClickLeavesAPressThatTheLearnerHolds) {
  input.press(MouseButton::Right, shift::None, OnPage);
  input.deliver(SyntheticClick{MouseButton::Left, run.form.virtualScreen().toPixel(OnPage)},
                shift::None);
  EXPECT_TRUE(input.holdsPress());
  input.release(MouseButton::Right, shift::None, OnPage);
  EXPECT_EQ(taken(), (Deeds{"down0", "down0", "up0", "up0"}));
}

TEST_F(FormInputTest, ASentStrokeHasTheCharacterOfItsKey) {
  std::string typed;
  page.KeyPress = [&](int& KeyAscii) { typed += static_cast<char>(std::exchange(KeyAscii, 0)); };
  for (const int code : {key::Enter, key::Home}) {
    input.deliver(SyntheticKey{code, KeyMotion::Down}, shift::None);
    input.deliver(SyntheticKey{code, KeyMotion::Up}, shift::None);
  }
  EXPECT_EQ(typed, "\r");
}

TEST_F(FormInputTest, ThePointerDragsWhatItHasPressed) {
  input.press(MouseButton::Left, shift::None, OnPage);
  input.move({OnButton.x, OnPage.y}, shift::None, MouseHeld::Left);
  EXPECT_GT(page.SelLength(), 0);
  EXPECT_EQ(taken(), (Deeds{"down0", "move0"}));
  input.move(OnButton, shift::None, MouseHeld::Other);
  EXPECT_EQ(taken(), Deeds{});
}

TEST(VirtualScreenTest, APixelShowsThePointsOfItsSquare) {
  constexpr VirtualScreen screen(345);
  EXPECT_EQ(screen.toForm({10, 23}), (SurfacePoint{150, 0}));
  EXPECT_EQ(screen.toPixel({150, 0}), (PixelPoint{10, 23}));
  EXPECT_EQ(screen.toPixel({164, 14}), (PixelPoint{10, 23}));
  EXPECT_EQ(screen.toPixel({-1, -346}), (PixelPoint{-1, -1}));
}

} // namespace
} // namespace talvora
