#include "Life.h"

#include "formats/LearnerFiles.h"
#include "learner/LearnerWords.h"
#include "text/Contains.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <utility>

namespace talvora::walk {

namespace {

// No step keeps a learner waiting so long, whatever they are given by the machine.
constexpr std::chrono::seconds LongestStep(20);
// What is dearer to look at is looked at every so many steps.
constexpr long StepsPerLog = 10;
constexpr long StepsPerWords = 50;
constexpr long StepsPerLongPage = 20;
// The list of all words is such a page, and nothing else.
constexpr int LongPage = 1'000'000;
// From the deepest page the menu is not so many Esc away.
constexpr int MostEscapes = 20;

Aim aimFrom(const Json& control) {
  const std::string text = bytesOfJson(control.value("text", Json(""))).value_or("");
  return {control["left"],
          control["top"],
          control["width"],
          control["height"],
          static_cast<int>(text.size()),
          control.contains("runs")};
}

View viewFrom(const Json& state) {
  return {state["focus"], state["visible"], state["clock_ms"]};
}

/// The field for what a dictation asks for is there.
bool dictates(const View& view) {
  return contains(view.visible, "Rviet");
}

} // namespace

ScriptedOptions Setting::options() const {
  ScriptedOptions options;
  const std::size_t cross = screen.find('x');
  std::from_chars(screen.data(), screen.data() + cross, options.screenWidth);
  std::from_chars(screen.data() + cross + 1, screen.data() + screen.size(), options.screenHeight);
  options.seed = seed;
  options.voices = voices;
  options.speechMsPerChar = speechMsPerChar;
  return options;
}

Json Setting::asJson() const {
  return {
      {"screen", screen}, {"voices", voices}, {"speechMsPerChar", speechMsPerChar}, {"seed", seed}};
}

Setting Setting::from(const Json& line) {
  Setting setting;
  setting.screen = line.value("screen", setting.screen);
  setting.voices = line.value("voices", setting.voices);
  setting.speechMsPerChar = line.value("speechMsPerChar", setting.speechMsPerChar);
  setting.seed = line.value("seed", setting.seed);
  return setting;
}

Life::Life(Folders folders, Setting setting)
    : folders_(std::move(folders)), setting_(std::move(setting)) {
  std::ofstream(folders_.learner + "/" + std::string(learnerfile::FirstRun));
}

Json Life::ask(const Json& command) {
  return driver_->reply(command.dump());
}

Json Life::control(const std::string& name) {
  Json told = ask({{"do", "surface"}, {"name", name}});
  const Aim seen = aimFrom(told);
  if (seen.length > LongPage)
    longPages_[name] = seen;
  else
    longPages_.erase(name);
  return told;
}

Aim Life::aim(const std::string& name) {
  return isDue(name) ? aimFrom(control(name)) : longPages_.at(name);
}

// -- Steps.

std::optional<Breach> Life::begin() {
  driver_.emplace(setting_.options(), folders_, LearnerLock(systemFiles(), folders_.learner));
  view_ = {};
  if (auto breach = give(R"({"do":"start"})")) return breach;
  return lookAtMenu();
}

std::optional<Breach> Life::perform(const Json& step) {
  if (step.contains("restart")) return restart();
  if (step.contains("menu")) return goToMenu();
  return give(step.contains("line") ? step["line"].get<std::string>() : step.dump());
}

std::optional<Breach> Life::give(const std::string& line) {
  const auto before = std::chrono::steady_clock::now();
  const Json reply = Json::parse(driver_->answer(line), nullptr, false);
  if (std::chrono::steady_clock::now() - before > LongestStep) {
    return Breach{"no step is slow", line};
  }
  if (auto breach = replyBreach(reply)) return breach;
  if (!reply.value("running", true)) return restart();
  const View seen = view_;
  auto breach = look();
  if (!breach && !reply["ok"].get<bool>() && view_ != seen) {
    breach = Breach{"what is refused changes nothing", line};
  }
  return breach;
}

// The window is closed as a learner does it, unless the program has ended.
std::optional<Breach> Life::restart() {
  const auto before = storedWords();
  static_cast<void>(ask({{"do", "answer"}, {"with", "yes"}}));
  const Json reply = ask({{"do", "close"}});
  driver_.reset();
  if (auto breach = replyBreach(reply)) return breach;
  if (auto breach = begin()) return breach;
  if (storedWords() != before) return Breach{"the words outlive the program", "they differ"};
  return std::nullopt;
}

// Nobody holds another key down all the while.
std::optional<Breach> Life::goToMenu() {
  for (const char* modifier : {"Ctrl", "Shift"}) {
    if (auto breach = give(Json{{"do", "keyup"}, {"key", modifier}}.dump())) return breach;
  }
  const Json escape = {{"do", "key"}, {"key", "Esc"}};
  for (int pressed = 0; pressed < MostEscapes && !view_.onMenu(); ++pressed) {
    if (auto breach = give(escape.dump())) return breach;
  }
  if (!view_.onMenu()) return Breach{"Esc leads to the menu", view_.visible.back() + " stays"};
  return lookAtMenu();
}

// -- Looking.

std::optional<Breach> Life::look() {
  ++steps_;
  const Json state = ask({{"do", "state"}});
  const std::int64_t clockBefore = view_.clockMs;
  view_ = viewFrom(state);
  if (view_.clockMs < clockBefore) return Breach{"time never goes back", state.dump()};
  if (state["DangBan"].get<bool>() != dictates(view_)) {
    return Breach{"only a dictation keeps the program busy", state.dump()};
  }
  if (auto breach = lookAtVisible()) return breach;
  if (steps_ % StepsPerLog == 0) {
    if (auto breach = lookAtLog()) return breach;
  }
  return steps_ % StepsPerWords == 0 ? lookAtWords() : std::nullopt;
}

/// The page that has the keyboard, and one of the others in turn.
std::optional<Breach> Life::lookAtVisible() {
  if (view_.focus.empty()) return focusBreach(Json(), view_.onMenu());
  if (isDue(view_.focus)) {
    const Json focus = control(view_.focus);
    if (auto breach = focusBreach(focus, view_.onMenu())) return breach;
    if (auto breach = controlBreach(focus)) return breach;
  }
  if (view_.onMenu()) return std::nullopt;
  const std::string& other = view_.visible[static_cast<std::size_t>(steps_) % view_.visible.size()];
  return isDue(other) ? controlBreach(control(other)) : std::nullopt;
}

bool Life::isDue(const std::string& name) const {
  return !longPages_.contains(name) || steps_ % StepsPerLongPage == 0;
}

std::optional<Breach> Life::lookAtMenu() {
  for (int number = 1; number <= Controls::ButtonCount; ++number) {
    if (auto breach = menuButtonBreach(control("but" + std::to_string(number)))) return breach;
  }
  return std::nullopt;
}

std::optional<Breach> Life::lookAtLog() {
  const Json reply = ask({{"do", "log"}});
  for (const Json& entry : reply["entries"]) {
    if (auto breach = logBreach(entry)) return breach;
  }
  return std::nullopt;
}

std::optional<Breach> Life::lookAtWords() {
  const Json reply = ask({{"do", "get"}, {"names", {"SoTuVung", "TuVung"}}});
  const Json& values = reply["values"];
  if (auto breach = wordsBreach(values["SoTuVung"], values["TuVung"])) return breach;
  auto stored = storedWords();
  if (std::adjacent_find(stored.begin(), stored.end()) != stored.end()) {
    return Breach{"no word is stored twice", values.dump()};
  }
  return std::nullopt;
}

std::vector<std::string> Life::storedWords() const {
  LearnerWords files(folders_.learner, systemFiles(), systemCalendar());
  std::vector<std::string> words;
  for (const VocabularyWord& each : files.read().value_or(std::vector<VocabularyWord>()))
    words.push_back(each.Tu + std::to_string(each.ViTriCauTu));
  std::sort(words.begin(), words.end());
  return words;
}

} // namespace talvora::walk
