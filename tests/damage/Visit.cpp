#include "Visit.h"

#include "driver/Driver.h"
#include "shell/Controls.h"

#include <fstream>

namespace talvora::damage {

namespace {

constexpr int DeepestPage = 8;
/// What a learner does on a page, whichever it is.
constexpr std::string_view usual[] = {"Down", "Enter", "Space", "Right", "a",  "Enter", "End",
                                      "Up",   "Tab",   "F2",    "F6",    "F9", "Left",  "Home"};

class Visitor {
 public:
  explicit Visitor(const Folders& folders) : driver_(ScriptedOptions{}, folders) {}

  std::string goEverywhere() {
    ask({{"do", "start"}});
    for (int number = 1; number <= Controls::ButtonCount && running_; ++number)
      visitSection("but" + std::to_string(number));
    return failure_;
  }

 private:
  void visitSection(const std::string& button) {
    leave();
    ask({{"do", "click"}, {"button", button}});
    for (const std::string_view key : usual) {
      ask({{"do", "key"}, {"key", key}});
      useMouse();
    }
  }

  /// On the first words, in the middle and at the end of the page that has the keyboard.
  void useMouse() {
    const std::string page = ask({{"do", "state"}}).value("focus", "");
    const Json surface = ask({{"do", "surface"}, {"name", page}});
    if (!surface.contains("runs")) return;
    const auto length = static_cast<int>(bytesOfJson(surface["text"]).value_or("").size());
    for (const int at : {length / 2, length, 12}) {
      Json click = {{"do", "mouse"}, {"surface", page}, {"at", at}};
      ask(click);
      click["double"] = true;
      ask(click);
      click.erase("double");
      click["button"] = "right";
      ask(click);
    }
  }

  void leave() {
    for (int page = 0; page < DeepestPage; ++page) {
      if (ask({{"do", "state"}})["visible"].empty()) return;
      ask({{"do", "key"}, {"key", "Esc"}});
    }
  }

  Json ask(const Json& command) {
    Json reply = Json::parse(driver_.answer(command.dump()));
    if (!reply.value("running", true)) running_ = false;
    if (reply.contains("failure")) failure_ = reply["failure"];
    return reply;
  }

  Driver driver_;
  bool running_ = true;
  std::string failure_;
};

} // namespace

std::string visit(const Folders& folders) {
  std::ofstream(folders.learner + "/Yes1");
  return Visitor(folders).goEverywhere();
}

} // namespace talvora::damage
