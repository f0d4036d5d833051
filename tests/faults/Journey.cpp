#include "Journey.h"

#include "formats/LearnerFiles.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace talvora::faults {

namespace {

Json start() {
  return {{"do", "start"}};
}
Json key(const char* name) {
  return {{"do", "key"}, {"key", name}};
}
Json press(const char* button) {
  return {{"do", "click"}, {"button", button}};
}
Json clickOn(const char* surface, int at) {
  return {{"do", "mouse"}, {"surface", surface}, {"at", at}};
}
Json answerYes() {
  return {{"do", "answer"}, {"with", "yes"}};
}
Json closeWindow() {
  return {{"do", "close"}};
}

/// Steps one after the other; each part is a list of them.
template <class... Parts>
Steps joined(const Parts&... parts) {
  Steps steps;
  (steps.insert(steps.end(), parts.begin(), parts.end()), ...);
  return steps;
}

// The second text of the first group tells of an old bank near the river.
Steps openText() {
  return {press("but1"), key("Right"), key("Down"), key("Enter")};
}
Steps takeWord(int at) {
  return {clickOn("R2", at), key("Enter")};
}
Steps takeTwoWords() {
  return joined(openText(), takeWord(34), takeWord(29));
}
Steps leaveText() {
  return {key("Esc"), key("Esc"), key("Esc")};
}
Steps leave() {
  return {answerYes(), closeWindow()};
}
Steps lifeWithTwoWords() {
  return joined(Steps{start()}, takeTwoWords(), leaveText(), leave());
}

/// The words and the places in the lists become those of a pack that nobody has any more.
void belongToAnotherPack(const std::string& learner) {
  for (const std::string_view name : {learnerfile::Rows, learnerfile::Lists}) {
    const auto path = std::filesystem::path(learner) / name;
    std::ifstream file(path, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const std::size_t place = name == learnerfile::Rows ? 2 : 1;
    std::string changed;
    std::size_t tabs = 0;
    for (const char each : text) {
      if (each == '\n') tabs = 0;
      if (each == '\t') ++tabs;
      changed += tabs == place && each != '\t' ? '0' : each;
    }
    std::ofstream(path, std::ios::binary) << changed;
  }
}

} // namespace

std::vector<Journey> journeys() {
  const Steps begin = {start()};
  return {
      {"the first start", {}, {}, joined(begin, leave())},
      {"words are taken", {}, {}, lifeWithTwoWords()},
      {"more words are taken",
       {lifeWithTwoWords()},
       {},
       joined(begin, openText(), takeWord(5), takeWord(16), leaveText(), leave())},
      {"a word is deleted",
       {lifeWithTwoWords()},
       {},
       joined(begin,
              Steps{press("but2"), answerYes(),
                    Json{{"do", "mouse"}, {"surface", "Rchon"}, {"at", 0}, {"to", 6}}, key("Esc")},
              leave())},
      {"all words are deleted",
       {lifeWithTwoWords()},
       {},
       joined(begin,
              Steps{press("but2"), answerYes(),
                    Json{{"do", "mouse"}, {"surface", "Rchon"}, {"at", 0}, {"to", 12}}, key("Esc")},
              leave())},
      {"the sound is set",
       {joined(begin, leave())},
       {},
       joined(begin,
              Steps{press("but8"), clickOn("RAmthanh", 94), clickOn("RAmthanh", 62), key("Esc")},
              leave())},
      {"the program comes back after a kill",
       {lifeWithTwoWords(), joined(begin, openText(), takeWord(5))},
       {},
       joined(begin, leave())},
      {"the program comes back to another course",
       {lifeWithTwoWords()},
       belongToAnotherPack,
       joined(begin, leave())},
  };
}

} // namespace talvora::faults
