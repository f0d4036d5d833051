#include "support/ProgramRun.h"

#include <map>
#include <stdexcept>

namespace talvora::test {

ProgramRun::ProgramRun(const ScriptedOptions& options)
    : machine(options), platform_(platform()), program(platform_, folder.path()) {
  folder.writeEmptyStores();
  folder.write("Yes1", "");
}

ProgramRun::ProgramRun(const Folders& folders, const ScriptedOptions& options)
    : machine(options), platform_(platform()), program(platform_, folders) {}

Platform ProgramRun::platform() {
  const Platform& own = machine.platform;
  return {own.clock,        own.events,   own.input,  own.speech, own.wave,
          own.metrics,      own.layout,   own.boxes,  own.screen, own.clipboard,
          own.installation, own.narrator, own.random, files};
}

void ProgramRun::writeTexts(const std::vector<StoredText>& texts, bool speaking) const {
  const int slots = speaking ? 2025 : 408;
  std::map<int, StoredText> bySlot;
  for (const StoredText& each : texts)
    bySlot[each.slot] = each;
  std::vector<std::int32_t> positions;
  std::string stream;
  for (int slot = 1; slot <= slots; ++slot) {
    positions.push_back(static_cast<std::int32_t>(stream.size()));
    const auto found = bySlot.find(slot);
    stream += found == bySlot.end() ? "slot " + std::to_string(slot) + "\r" : found->second.text;
    stream += '@';
  }
  for (int slot = 1; slot <= slots; ++slot) {
    positions.push_back(static_cast<std::int32_t>(stream.size()));
    const auto found = bySlot.find(slot);
    if (found != bySlot.end()) stream += found->second.translation;
    stream += '@';
  }
  positions.push_back(static_cast<std::int32_t>(stream.size()));
  folder.writeIntegers(speaking ? "datasp.vt" : "data.vt", positions);
  folder.writeStream(speaking ? "datasp.av" : "data.av", stream);
}

void ProgramRun::clickButton(int number) {
  hand.click(controls().but(number));
}

void ProgramRun::key(int keyCode, int shift) {
  hand.strike(keyOfCode(keyCode), shift, Stroke::Whole);
}

void ProgramRun::type(char character) {
  hand.strike(keyNamed({&character, 1}).value(), shift::None, Stroke::Whole);
}

void ProgramRun::click(Surface& surface, int caret, MouseButton button) {
  hand.mouse(surface, {caret, {}, button, Clicks::Once, shift::None});
}

void ProgramRun::doubleClick(Surface& surface, int caret) {
  hand.mouse(surface, {caret, {}, MouseButton::Left, Clicks::Twice, shift::None});
}

const VariableValue ProgramRun::value(const std::string& name) const {
  const Variables::Reader* reader = program.variables().find(name);
  if (reader == nullptr) throw std::runtime_error("no variable " + name);
  return (*reader)();
}

double ProgramRun::number(const std::string& name) const {
  return std::get<double>(value(name).value);
}

std::string ProgramRun::text(const std::string& name) const {
  return std::get<std::string>(value(name).value);
}

bool ProgramRun::flag(const std::string& name) const {
  return std::get<bool>(value(name).value);
}

std::string ProgramRun::focus() {
  const Control* control = form().ActiveControl();
  return control == nullptr ? std::string() : control->Name();
}

} // namespace talvora::test
