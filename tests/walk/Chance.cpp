#include "Chance.h"

#include "shell/Controls.h"
#include "surface/VirtualScreen.h"
#include "text/Contains.h"

#include <algorithm>

namespace talvora::walk {

namespace {

constexpr int LongestWait = 20'000; // ms

/// Whether a part of a control is in the window, below whose caption there are so many percent of
/// the screen.
bool inWindow(const Aim& aim, const Setting& setting) {
  constexpr int FormPercent = 97;
  const ScriptedOptions options = setting.options();
  return aim.left < options.screenWidth * TwipsPerPixel &&
         aim.top < options.screenHeight * TwipsPerPixel * FormPercent / 100;
}

} // namespace

int Chance::below(int limit) {
  return static_cast<int>(random_() % static_cast<std::uint64_t>(limit));
}

Setting Chance::setting() {
  static constexpr std::string_view screens[] = {"1024x768", "1024x768",  "1366x768",  "800x600",
                                                 "640x480",  "1920x1080", "3840x2160", "601x907"};
  static constexpr int voices[] = {3, 3, 1, 0, 10};
  static constexpr int speeds[] = {60, 60, 0, 5, 900};
  Setting setting;
  setting.screen = pick(screens);
  setting.voices = pick(voices);
  setting.speechMsPerChar = pick(speeds);
  setting.seed = random_() % 1000;
  return setting;
}

std::string Chance::buttonName() {
  return "but" + std::to_string(1 + below(Controls::ButtonCount));
}

/// The surface in front most of the time; empty when none is there.
std::string Chance::visibleSurface(Life& life) {
  std::vector<std::string> surfaces;
  for (const std::string& name : life.view().visible) {
    if (name.starts_with('R')) surfaces.push_back(name);
  }
  if (surfaces.empty()) return {};
  const bool hasFocus = contains(surfaces, life.view().focus);
  return hasFocus && !oneOf(3) ? life.view().focus : pick(surfaces);
}

Json Chance::nextStep(Life& life) {
  if (oneOf(25)) return machineStep();
  if (oneOf(60)) return anyStep(life);
  return life.view().onMenu() ? onMenu() : onPage(life);
}

Json Chance::onMenu() {
  const int kind = below(10);
  if (kind < 6) return {{"do", "click"}, {"button", buttonName()}};
  if (kind < 7) return {{"do", "hover"}, {"button", buttonName()}, {"frames", 1 + below(30)}};
  return keyStep();
}

Json Chance::onPage(Life& life) {
  const int kind = below(20);
  if (kind < 9) return keyStep();
  return kind < 18 ? mouseStep(life) : moveStep(life);
}

Json Chance::keyStep() {
  static constexpr std::string_view often[] = {"Enter", "Enter", "Enter", "Space", "Left", "Right",
                                               "Up",    "Down",  "Down",  "Esc",   "Tab",  "PgUp",
                                               "PgDn",  "Home",  "End",   "F2",    "F6",   "F9"};
  static constexpr std::string_view seldom[] = {"Backspace", "Delete", "Ctrl", "Shift"};
  static constexpr std::string_view commands[] = {"key", "key", "key", "key", "keydown", "keyup"};
  static constexpr std::string_view characters =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789.,;:'\"?!-+()";
  Json step = {{"do", oneOf(6) ? pick(commands) : "key"}};
  const int kind = below(10);
  step["key"] = std::string(
      kind < 7 ? pick(often)
      : kind < 8
          ? pick(seldom)
          : std::string_view(
                &characters[static_cast<std::size_t>(below(static_cast<int>(characters.size())))],
                1));
  if (oneOf(12)) step["ctrl"] = true;
  if (oneOf(12)) step["shift"] = true;
  return step;
}

Json Chance::mouseStep(Life& life) {
  const std::string name = visibleSurface(life);
  return name.empty() ? keyStep() : mouseStepOn(name, life);
}

Json Chance::mouseStepOn(const std::string& name, Life& life) {
  const Aim aim = life.aim(name);
  // What is parked beside the window is out of reach.
  if (!inWindow(aim, life.setting())) return keyStep();
  // Headings and first lines are where most is met.
  const auto place = [&] { return below((oneOf(3) ? std::min(aim.length, 200) : aim.length) + 1); };
  Json step = {{"do", "mouse"}, {"surface", name}, {"at", place()}};
  switch (below(12)) {
  case 0:
  case 1:
    step["button"] = "right";
    break;
  case 2:
    step["double"] = true;
    break;
  case 3:
    step["to"] = place();
    break;
  case 4:
    step["ctrl"] = true;
    break;
  default:
    break;
  }
  return step;
}

/// A pointer on its way meets what stands in front; later controls stand ahead of earlier ones.
Json Chance::moveStep(Life& life) {
  const std::string wanted = visibleSurface(life);
  if (wanted.empty()) return keyStep();
  const Aim aim = life.aim(wanted);
  const int x = aim.left + below(std::max(aim.width, 1));
  const int y = aim.top + below(std::max(aim.height, 1));
  const auto& visible = life.view().visible;
  for (auto name = visible.rbegin(); name != visible.rend(); ++name) {
    const Aim met = life.aim(*name);
    const int atX = x - met.left;
    const int atY = y - met.top;
    if (atX < 0 || atY < 0 || atX >= met.width || atY >= met.height) continue;
    // A plate behind a page is no surface, and tells nobody of the pointer.
    if (!met.isSurface) return keyStep();
    return {{"do", "move"}, {"surface", *name}, {"x", atX}, {"y", atY}};
  }
  return keyStep();
}

/// What comes from the machine, or waits for a box or a loop.
Json Chance::machineStep() {
  static constexpr std::string_view held[] = {"Esc", "Space", "Enter", "Left", "Right", "F9", "a"};
  switch (below(8)) {
  case 0:
  case 1:
    return {{"do", "wait"}, {"ms", below(LongestWait)}};
  case 2:
  case 3:
    return {{"do", "answer"}, {"with", oneOf(3) ? "yes" : "no"}};
  case 4:
  case 5:
    return {{"do", "hold"}, {"key", pick(held)}, {"after", below(3000)}, {"for", below(300)}};
  case 6:
    return oneOf(4) ? Json{{"do", "close"}} : Json{{"do", "close"}, {"after", below(5000)}};
  default:
    return oneOf(4) ? Json{{"restart", true}} : Json{{"do", "wait"}, {"ms", 1}};
  }
}

/// What no learner can do, or nobody means.
Json Chance::anyStep(Life& life) {
  static constexpr std::string_view surfaces[] = {"R1",  "R2",   "RVP1",  "RVP2", "RN1",   "RN2",
                                                  "RHD", "RDOS", "Rchon", "RTD",  "RHDBT", "Rnen"};
  switch (below(4)) {
  case 0:
    return {{"do", "click"}, {"button", buttonName()}};
  case 1:
    return mouseStepOn(std::string(pick(surfaces)), life);
  case 2:
    return {{"do", "type"},
            {"text", "the " + std::string(1 + static_cast<std::size_t>(below(5)), 'x')}};
  default:
    return {{"line", noise()}};
  }
}

/// A line that is no command, or hardly one.
std::string Chance::noise() {
  std::string line = keyStep().dump();
  static constexpr std::string_view bytes = "{}[]\",:0e-\\u\n\x01";
  for (int change = 1 + below(4); change > 0; --change) {
    const auto at = static_cast<std::size_t>(below(static_cast<int>(line.size())));
    line[at] = pick(bytes);
  }
  return line;
}

} // namespace talvora::walk
