#include "State.h"

#include "driver/Driver.h"
#include "formats/Integers.h"
#include "formats/LearnerFiles.h"
#include "formats/Settings.h"
#include "learner/LearnerWords.h"
#include "platform/Files.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace talvora::faults {

namespace {

void startAndEnd(const Folders& folders) {
  Driver driver(ScriptedOptions{}, folders, LearnerLock(systemFiles(), folders.learner));
  static_cast<void>(driver.answer(R"({"do":"answer","with":"yes"})"));
  for (const char* line : {R"({"do":"start"})", R"({"do":"close"})"}) {
    const Json reply = Json::parse(driver.answer(line));
    if (reply.contains("failure")) throw std::runtime_error(reply["failure"].get<std::string>());
  }
}

std::string contentOf(const std::string& learner, std::string_view name) {
  std::error_code error;
  const auto content = readWhole(systemFiles(), learner + "/" + std::string(name), error);
  return content ? textOfBytes(*content) : std::string();
}

void refuseLeftOvers(const std::string& learner) {
  for (const auto& entry : std::filesystem::directory_iterator(learner)) {
    if (entry.path().extension() == ".new")
      throw std::runtime_error(entry.path().string() + " is left over");
  }
}

} // namespace

State stateAfterRestart(const std::string& pack, const std::string& learner) {
  startAndEnd({pack, learner});
  refuseLeftOvers(learner);
  State state;
  LearnerWords words(learner, systemFiles(), systemCalendar());
  const auto list = words.read();
  if (!list) throw std::runtime_error("the words cannot be read");
  for (const VocabularyWord& word : *list)
    state.words.push_back(word.Tu + std::to_string(word.ViTriCauTu));
  std::sort(state.words.begin(), state.words.end());
  const std::string settings = contentOf(learner, learnerfile::Settings);
  for (int record = 1; record <= static_cast<int>(setting::Count); ++record) {
    if (record == setting::RunCounter) continue;
    state.settings.push_back(integerAt(settings, static_cast<std::size_t>(record)));
  }
  state.lists = contentOf(learner, learnerfile::Lists);
  return state;
}

} // namespace talvora::faults
