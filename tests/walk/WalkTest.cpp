// The walk itself: what it looks for it finds, and what it shortens still breaks.
#include "Minimiser.h"
#include "Promises.h"
#include "text/Contains.h"

#include <gtest/gtest.h>

namespace talvora::walk {
namespace {

Json page() {
  return {{"name", "R2"},
          {"visible", true},
          {"enabled", true},
          {"left", 15},
          {"top", 0},
          {"width", 3000},
          {"height", 2000},
          {"text", "old bank"},
          {"selStart", 4},
          {"selLength", 4},
          {"selText", "bank"},
          {"runs", Json::array({{{"from", 0}, {"to", 3}}, {{"from", 3}, {"to", 8}}})},
          {"paragraphs", Json::array({{{"from", 0}, {"to", 8}}})}};
}

TEST(Promises, APageThatKeepsThemIsLetPass) {
  EXPECT_FALSE(controlBreach(page()));
  EXPECT_FALSE(focusBreach(page(), false));
}

TEST(Promises, EachIsFoundBroken) {
  const auto with = [](const char* field, Json value) {
    Json broken = page();
    broken[field] = std::move(value);
    return broken;
  };
  EXPECT_TRUE(controlBreach(with("selStart", 5)));
  EXPECT_TRUE(controlBreach(with("selStart", -1)));
  EXPECT_TRUE(controlBreach(with("selText", "ban")));
  EXPECT_TRUE(controlBreach(with("runs", Json::array({{{"from", 0}, {"to", 7}}}))));
  EXPECT_TRUE(controlBreach(with("paragraphs", Json::array({{{"from", 1}, {"to", 8}}}))));
  EXPECT_TRUE(controlBreach(with("width", -15)));
  EXPECT_TRUE(controlBreach(with("top", 2'000'000)));
  EXPECT_TRUE(focusBreach(with("visible", false), false));
  EXPECT_TRUE(focusBreach(with("enabled", false), false));
  EXPECT_TRUE(focusBreach(Json(), false));
  EXPECT_TRUE(focusBreach(page(), true)) << "on the menu a button has the keyboard";
  EXPECT_TRUE(menuButtonBreach(with("visible", false)));
}

TEST(Promises, ARunningProgramMayNotFail) {
  EXPECT_FALSE(replyBreach(Json{{"ok", true}}));
  EXPECT_FALSE(replyBreach(Json{{"ok", true}, {"running", false}, {"ended", "quit"}}));
  EXPECT_TRUE(replyBreach(Json{{"ok", true}, {"ended", "failure"}, {"failure", "data.av"}}));
  EXPECT_TRUE(replyBreach(Json::array()));
}

TEST(Promises, WordsAreWholeAndThereOnce) {
  const auto word = [](const std::string& text) {
    return Json{{"Tu", text + std::string(20 - text.size(), ' ')}, {"ViTriCauTu", 3}};
  };
  const Json none = word("");
  EXPECT_FALSE(wordsBreach(2, Json::array({none, word("bank"), word("river")})));
  EXPECT_TRUE(wordsBreach(2, Json::array({none, word("bank")})));
  EXPECT_TRUE(wordsBreach(2, Json::array({none, word("bank"), word("Bank")})));
  EXPECT_TRUE(wordsBreach(1, Json::array({none, none})));
  EXPECT_TRUE(wordsBreach(1, Json::array({none, Json{{"Tu", "bank"}, {"ViTriCauTu", 3}}})));
}

TEST(Minimiser, LeavesTheStepsThatItTakes) {
  Steps steps;
  for (int number = 0; number < 300; ++number)
    steps.push_back(number);
  const auto holds = [](const Steps& some, int number) { return contains(some, Json(number)); };
  const auto breaks = [&](const Steps& some) {
    return holds(some, 17) && holds(some, 203) && holds(some, 299);
  };
  EXPECT_EQ(minimised(steps, breaks, 1000), (Steps{17, 203, 299}));
}

TEST(Minimiser, GivesUpAfterSoManyTries) {
  int tries = 0;
  const Steps steps(100, Json(1));
  const auto breaks = [&](const Steps& some) {
    ++tries;
    return some.size() == steps.size();
  };
  EXPECT_EQ(minimised(steps, breaks, 5), steps);
  EXPECT_EQ(tries, 5);
}

} // namespace
} // namespace talvora::walk
