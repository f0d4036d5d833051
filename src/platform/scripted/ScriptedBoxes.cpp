#include "platform/scripted/ScriptedBoxes.h"

namespace talvora {

namespace {

LogValue nameOf(BoxAnswer answer) {
  return logText(answer == BoxAnswer::Yes ? "yes" : "no");
}

} // namespace

BoxAnswer ScriptedBoxes::ask(std::string_view text, std::string_view title, BoxAnswer byDefault) {
  BoxAnswer given = byDefault;
  if (!answers_.empty()) {
    given = answers_.front();
    answers_.pop_front();
  }
  log_.add("box", {{"text", logText(text)},
                   {"title", logText(title)},
                   {"buttons", logText("yes-no")},
                   {"default", nameOf(byDefault)},
                   {"answer", nameOf(given)}});
  return given;
}

void ScriptedBoxes::tell(std::string_view text) {
  log_.add("box", {{"text", logText(text)},
                   {"title", logText("")},
                   {"buttons", logText("ok")},
                   {"default", logText("ok")},
                   {"answer", logText("ok")}});
}

} // namespace talvora
