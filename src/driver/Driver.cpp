#include "driver/Driver.h"

#include "surface/Button.h"
#include "surface/Surface.h"
#include "text/Bytes.h"

#include <exception>
#include <utility>

namespace talvora {

namespace {

constexpr int DefaultFrames = 20;
// Each picture is a log entry that the reply to come must hold.
constexpr int MostFrames = 100'000;

int shiftFields(const Command& command) {
  return (command.flag("ctrl", false) ? shift::Ctrl : shift::None) |
         (command.flag("shift", false) ? shift::Shift : shift::None);
}

int caretField(const Command& command, const char* field, const Surface& surface) {
  const int caret = command.number(field);
  if (caret < 0 || caret > surface.TextLength()) {
    command.refuse(field, "lies outside the text of " + surface.Name());
  }
  return caret;
}

int lengthField(const Command& command, const char* field) {
  const int length = command.number(field);
  if (length < 0) command.refuse(field, "is below 0");
  return length;
}

MouseGesture gestureFields(const Command& command, const Surface& surface) {
  MouseGesture gesture;
  gesture.at = caretField(command, "at", surface);
  if (command.has("to")) gesture.to = caretField(command, "to", surface);
  gesture.button =
      command.choice("button", "left", "left", "right") ? MouseButton::Left : MouseButton::Right;
  gesture.clicks = command.flag("double", false) ? Clicks::Twice : Clicks::Once;
  gesture.shift = shiftFields(command);
  if (gesture.clicks == Clicks::Twice && gesture.to) {
    command.refuse("double", "does not go with a drag");
  }
  if (gesture.button == MouseButton::Right && gesture.to) {
    command.refuse("to", "a drag needs the left button");
  }
  if (gesture.button == MouseButton::Right && gesture.clicks == Clicks::Twice) {
    command.refuse("double", "needs the left button");
  }
  return gesture;
}

ScriptedKey keyField(const Command& command) {
  const std::string name = command.text("key");
  const auto key = keyNamed(name);
  if (!key) command.refuse("key", "no key is named \"" + name + "\"");
  ScriptedKey found = *key;
  const bool small = found.character >= 'a' && found.character <= 'z';
  // Shift makes a letter's key give the capital.
  if (small && command.flag("shift", false)) found.character = static_cast<char>(found.code);
  return found;
}

void refuseUnlessReachable(const Control& control) {
  if (!control.Visible()) throw CommandError(control.Name() + " is hidden");
  if (!control.Enabled()) throw CommandError(control.Name() + " is disabled");
}

/// `cover` is what a click meets instead of the control, or null.
void refuseCovered(const Control& control, const Control* cover) {
  if (cover != nullptr) throw CommandError(control.Name() + " is covered by " + cover->Name());
}

std::string endingName(Ending ending) {
  switch (ending) {
  case Ending::FirstRun:
    return "first-run";
  case Ending::Failure:
    return "failure";
  case Ending::Quit:
  case Ending::None:
    break;
  }
  return "quit";
}

} // namespace

const std::map<std::string, Driver::Entry>& Driver::commands() {
  static const std::map<std::string, Entry> all = {
      {"start", {&Driver::start, Taken::UntilTheEnd}},
      {"click", {&Driver::click, Taken::WhileRunning}},
      {"mouse", {&Driver::mouse, Taken::WhileRunning}},
      {"move", {&Driver::move, Taken::WhileRunning}},
      {"hover", {&Driver::hover, Taken::WhileRunning}},
      {"key", {&Driver::key, Taken::WhileRunning}},
      {"keydown", {&Driver::keydown, Taken::WhileRunning}},
      {"keyup", {&Driver::keyup, Taken::WhileRunning}},
      {"type", {&Driver::type, Taken::WhileRunning}},
      {"hold", {&Driver::hold, Taken::UntilTheEnd}},
      {"wait", {&Driver::wait, Taken::WhileRunning}},
      {"answer", {&Driver::queueAnswer, Taken::UntilTheEnd}},
      {"close", {&Driver::close, Taken::WhileRunning}},
      {"surface", {&Driver::surface, Taken::Always}},
      {"state", {&Driver::state, Taken::Always}},
      {"get", {&Driver::get, Taken::Always}},
      {"log", {&Driver::log, Taken::Always}},
      {"call", {&Driver::call, Taken::Always}},
  };
  return all;
}

Driver::Driver(const ScriptedOptions& options, const Folders& folders,
               std::optional<LearnerLock> lock, FileSystem& files)
    : machine_(options, files), lock_(std::move(lock)), program_(machine_.platform, folders),
      learner_(machine_, program_) {}

std::string Driver::answer(std::string_view line) {
  return reply(line).dump();
}

Json Driver::reply(std::string_view line) {
  try {
    return replyTo(Command(line));
  } catch (const CommandError& error) {
    return {{"ok", false}, {"error", jsonText(error.what())}};
  }
}

Json Driver::replyTo(const Command& command) {
  const auto entry = commands().find(command.name());
  if (entry == commands().end()) {
    throw CommandError("no command is named \"" + command.name() + "\"");
  }
  refuseUntimely(entry->second);
  Json reply = {{"ok", true}};
  reply.update((this->*entry->second.handler)(command));
  addEnding(reply);
  if (!program_.running()) lock_.reset();
  return reply;
}

void Driver::refuseUntimely(const Entry& entry) const {
  if (entry.taken == Taken::Always) return;
  if (!program_.running()) throw CommandError("the program has ended");
  if (entry.taken == Taken::WhileRunning && !started_) {
    throw CommandError("the program has not been started");
  }
}

void Driver::addEnding(Json& reply) const {
  if (program_.running()) return;
  reply["running"] = false;
  reply["ended"] = endingName(program_.ending());
  if (!learner_.failure().empty()) reply["failure"] = jsonText(learner_.failure());
}

// -- What the learner does. All fields are read before anything is done.

Json Driver::start(const Command&) {
  if (started_) throw CommandError("the program has been started already");
  started_ = true;
  if (lock_ && lock_->state() == LearnerLock::State::Taken) {
    learner_.fail(std::string("Talvora ðang chäy rÒi."_bytes));
  } else {
    learner_.start();
  }
  return {{"running", program_.running()}};
}

Json Driver::click(const Command& command) {
  Button& button = buttonField(command);
  refuseCovered(button, learner_.coverOf(button));
  learner_.click(button);
  return Json::object();
}

Json Driver::mouse(const Command& command) {
  Surface& surface = surfaceField(command);
  const MouseGesture gesture = gestureFields(command, surface);
  refuseCovered(surface, learner_.coverOf(surface, gesture.at));
  if (gesture.to) refuseCovered(surface, learner_.coverOf(surface, *gesture.to));
  const SurfacePoint point = learner_.mouse(surface, gesture);
  return {{"x", point.x}, {"y", point.y}};
}

Json Driver::move(const Command& command) {
  Surface& surface = surfaceField(command);
  learner_.move(surface, {command.coordinate("x"), command.coordinate("y")});
  return Json::object();
}

Json Driver::hover(const Command& command) {
  Button& button = buttonField(command);
  const int frames = command.has("frames") ? command.number("frames") : DefaultFrames;
  if (frames < 1 || frames > MostFrames) command.refuse("frames", "is out of range");
  learner_.hover(button, frames);
  return Json::object();
}

Json Driver::key(const Command& command) {
  return strike(command, Stroke::Whole);
}

Json Driver::keydown(const Command& command) {
  return strike(command, Stroke::Down);
}

Json Driver::keyup(const Command& command) {
  return strike(command, Stroke::Up);
}

Json Driver::strike(const Command& command, Stroke stroke) {
  const ScriptedKey key = keyField(command);
  learner_.strike(key, shiftFields(command), stroke, targetField(command));
  return Json::object();
}

Json Driver::type(const Command& command) {
  std::vector<ScriptedKey> keys;
  for (const char character : command.text("text")) {
    const auto key = keyNamed(std::string_view(&character, 1));
    if (!key) command.refuse("text", "has a character that no key gives");
    keys.push_back(*key);
  }
  learner_.type(keys, targetField(command));
  return Json::object();
}

Json Driver::hold(const Command& command) {
  const ScriptedKey key = keyField(command);
  const int after = lengthField(command, "after");
  machine_.input.hold(key.code, after, lengthField(command, "for"));
  return Json::object();
}

Json Driver::wait(const Command& command) {
  learner_.wait(lengthField(command, "ms"));
  return Json::object();
}

Json Driver::queueAnswer(const Command& command) {
  machine_.boxes.answer(command.choice("with", nullptr, "yes", "no") ? BoxAnswer::Yes
                                                                     : BoxAnswer::No);
  return Json::object();
}

Json Driver::close(const Command& command) {
  if (command.has("after")) {
    machine_.clock.wantClosing(lengthField(command, "after"));
    return {{"running", program_.running()}};
  }
  learner_.close();
  return {{"running", program_.running()}};
}

// -- What is read.

Json Driver::surface(const Command& command) {
  const std::string name = command.text("name");
  const Control* const control = program_.form().find(name);
  if (control == nullptr) command.refuse("name", "nothing is named \"" + name + "\"");
  return jsonControl(*control);
}

Json Driver::state(const Command&) {
  Json visible = Json::array();
  for (const Control* control : program_.form().controls()) {
    const bool counts =
        control->kind() == ControlKind::Surface || control->kind() == ControlKind::Frame;
    if (counts && control->Visible()) visible.push_back(control->Name());
  }
  const Control* const focus = program_.form().ActiveControl();
  const PixelPoint pointer = machine_.input.cursorPos();
  return {{"running", started_ && program_.running()},
          {"caption", jsonText(program_.form().Caption())},
          {"focus", focus == nullptr ? "" : focus->Name()},
          {"visible", std::move(visible)},
          {"pointer", Json::array({pointer.x, pointer.y})},
          {"clock_ms", machine_.time.nowMs()},
          {"MucMenu", program_.section()},
          {"DangBan", program_.busy()}};
}

Json Driver::get(const Command& command) {
  Json values = Json::object();
  for (const Json& element : command.list("names")) {
    const auto name = bytesOfJson(element);
    if (!name) command.refuse("names", "has an element that is not a name");
    const Variables::Reader* const read = program_.variables().find(*name);
    if (read == nullptr) command.refuse("names", "no variable is named \"" + *name + "\"");
    values[*name] = jsonValue((*read)());
  }
  return {{"values", std::move(values)}};
}

Json Driver::log(const Command&) {
  Json entries = Json::array();
  for (const LogEntry& entry : machine_.log.take())
    entries.push_back(jsonEntry(entry));
  return {{"entries", std::move(entries)}};
}

Json Driver::call(const Command& command) {
  const std::string name = command.text("name");
  const Procedures::Procedure* const procedure = program_.procedures().find(name);
  if (procedure == nullptr) command.refuse("name", "no procedure is named \"" + name + "\"");
  Procedures::Arguments arguments;
  if (command.has("args")) {
    for (const Json& argument : command.list("args")) {
      auto value = valueOfJson(argument);
      if (!value) command.refuse("args", "has an element that no procedure takes");
      arguments.push_back(std::move(*value));
    }
  }
  try {
    const auto result = (*procedure)(arguments);
    if (!result) command.refuse("args", "do not fit " + name);
    return {{"result", jsonValue(*result)}};
  } catch (const CommandError&) {
    throw;
  } catch (const std::exception& failure) {
    throw CommandError(name + " failed: " + failure.what());
  }
}

// -- Fields that name a control.

Surface& Driver::surfaceField(const Command& command) {
  const std::string name = command.text("surface");
  auto* const surface = as<Surface>(program_.form().find(name));
  if (surface == nullptr) command.refuse("surface", "no surface is named \"" + name + "\"");
  refuseUnlessReachable(*surface);
  return *surface;
}

Button& Driver::buttonField(const Command& command) {
  const std::string name = command.text("button");
  auto* const button = as<Button>(program_.form().find(name));
  if (button == nullptr) command.refuse("button", "no button is named \"" + name + "\"");
  refuseUnlessReachable(*button);
  return *button;
}

Control* Driver::targetField(const Command& command) {
  if (!command.has("on")) return nullptr;
  const std::string name = command.text("on");
  Control* const control = program_.form().find(name);
  const bool takesKeys = as<Surface>(control) != nullptr || as<Button>(control) != nullptr;
  if (!takesKeys) command.refuse("on", "nothing that takes keys is named \"" + name + "\"");
  refuseUnlessReachable(*control);
  return control;
}

} // namespace talvora
