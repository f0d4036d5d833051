#include "Scenario.h"

#include <fstream>
#include <set>

namespace talvora::scenario {

namespace {

[[noreturn]] void fail(const std::filesystem::path& file, int line, const std::string& what) {
  throw ScenarioFailure(file.string() + ":" + std::to_string(line) + ": " + what);
}

void replaceFolder(Json& value, const std::string& folder) {
  constexpr std::string_view Sign = "$DIR";
  if (value.is_structured()) {
    for (Json& each : value)
      replaceFolder(each, folder);
  } else if (value.is_string()) {
    auto& text = value.get_ref<std::string&>();
    const std::size_t at = text.find(Sign);
    if (at != std::string::npos) text.replace(at, Sign.size(), folder);
  }
}

/// Sets up the run from a first line. A field that has no meaning would be a test that tests
/// nothing.
void readSettings(const Json& line, Scenario& scenario) {
  static const std::set<std::string> known = {"pack", "options", "firstRun", "without", "note"};
  for (const auto& [name, value] : line.items()) {
    if (known.count(name) == 0) throw std::runtime_error("no setting is named \"" + name + "\"");
  }
  scenario.pack = line.value("pack", scenario.pack);
  scenario.options = line.value("options", scenario.options);
  scenario.firstRun = line.value("firstRun", false);
  scenario.without = line.value("without", scenario.without);
}

Step readStep(Json line) {
  Step step;
  step.expected = line.value("expect", Json::object());
  step.expectedLog = line.value("expect_log", Json());
  if (!step.expected.is_object()) throw std::runtime_error("\"expect\" is not an object");
  const bool entries = step.expectedLog.is_array() && line.value("do", "") == "log";
  if (!step.expectedLog.is_null() && !entries) {
    throw std::runtime_error("\"expect_log\" needs the command \"log\" and an array");
  }
  if (!step.expected.contains("ok")) step.expected["ok"] = true;
  for (const char* own : {"expect", "expect_log", "note"})
    line.erase(own);
  step.command = std::move(line);
  return step;
}

} // namespace

Scenario readScenario(const std::filesystem::path& file, const std::filesystem::path& runFolder) {
  std::ifstream input(file);
  if (!input) throw ScenarioFailure(file.string() + ": cannot be opened");
  Scenario scenario;
  std::string text;
  for (int number = 1; std::getline(input, text); ++number) {
    if (text.find_first_not_of(" \t\r") == std::string::npos) continue;
    try {
      Json line = Json::parse(text);
      if (!line.is_object()) throw std::runtime_error("not an object");
      replaceFolder(line, runFolder.string());
      if (line.value("restart", false)) {
        scenario.steps.emplace_back();
        scenario.steps.back().restart = true;
      } else if (line.contains("do")) {
        scenario.steps.push_back(readStep(std::move(line)));
        scenario.steps.back().line = number;
      } else if (number == 1) {
        readSettings(line, scenario);
      } else {
        throw std::runtime_error("\"do\" is missing");
      }
    } catch (const std::exception& error) {
      fail(file, number, error.what());
    }
  }
  if (scenario.steps.empty()) throw ScenarioFailure(file.string() + ": has no commands");
  return scenario;
}

void checkReply(const std::filesystem::path& file, const Step& step, const std::string& reply) {
  const Json got = Json::parse(reply, nullptr, false);
  if (!got.is_object()) fail(file, step.line, "the reply is not a JSON object: " + reply);
  auto difference = compare(step.expected, got);
  if (!difference && !step.expectedLog.is_null()) {
    difference = compareLog(step.expectedLog, got.value("entries", Json::array()));
  }
  if (!difference) return;
  std::string text = "field " + difference->field + ": expected " + difference->expected +
                     ", got " + difference->got;
  if (got.contains("error")) text += " (" + got["error"].get<std::string>() + ")";
  fail(file, step.line, text);
}

} // namespace talvora::scenario
