// What the drills stand on, on a scripted machine: shell, stores, dictionary and speech.
#pragma once

#include "dictionary/Dictionary.h"
#include "dictionary/VietnameseSide.h"
#include "driver/Hand.h"
#include "platform/scripted/ScriptedMachine.h"
#include "reading/ReadingPage.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "support/ShellRun.h"
#include "support/TestFolder.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace talvora::test {

struct DrillRun {
  explicit DrillRun(const ScriptedOptions& options = {})
      : base(options), stores(base.state.places),
        voice(base.state.places, base.machine.wave, base.shell.messages),
        speech(base.machine.platform, base.shell.steering, voice),
        dictionary(base.form, base.controls, base.state, stores, base.shell, speech),
        vietnameseSide(base.controls, base.state, stores, base.shell, speech, dictionary.lookUp()),
        services{dictionary, vietnameseSide, speech, voice} {
    base.state.places.ThuMuc = folder.path();
    folder.writeEmptyStores();
    folder.write("data.Kcu", "");
    speech.AmThanhBat = 1;
  }

  /// Opens the stores that the test has written, with the reading texts chosen.
  void open(int section = 1, int store = file::TextPositions) {
    // By now the drills have said what is to be known of their pages.
    base.shell.setup.parkSurfaces();
    stores.MoDuLieu();
    base.state.places.MucMenu = section;
    stores.ChonKho(store);
    stores.NapViTriBai();
  }

  /// Writes texts in stored form, by their slots, each with its translation.
  void writeTexts(const std::map<int, std::pair<std::string, std::string>>& texts,
                  bool speaking = false) const {
    const int slots = speaking ? Stores::SpeakingTexts : Stores::ReadingTexts;
    std::vector<std::int32_t> positions;
    std::string stream;
    const auto write = [&](bool translation) {
      for (int slot = 1; slot <= slots; ++slot) {
        positions.push_back(static_cast<std::int32_t>(stream.size()));
        const auto found = texts.find(slot);
        if (found != texts.end())
          stream += translation ? found->second.second : found->second.first;
        stream += '@';
      }
    };
    write(false);
    write(true);
    positions.push_back(static_cast<std::int32_t>(stream.size()));
    folder.writeIntegers(speaking ? "datasp.vt" : "data.vt", positions);
    folder.writeStream(speaking ? "datasp.av" : "data.av", stream);
  }

  /// A key stroke to whatever has the focus.
  void key(int keyCode, int shift = 0) { hand.strike(keyOfCode(keyCode), shift, Stroke::Whole); }
  void type(char character) {
    hand.strike(keyNamed({&character, 1}).value(), shift::None, Stroke::Whole);
  }
  void type(std::string_view text) {
    for (const char character : text)
      type(character);
  }

  /// A whole click at a caret, and the clicks with which the program answers.
  void click(Surface& surface, int caret, MouseButton button = MouseButton::Left) {
    hand.mouse(surface, {caret, {}, button, Clicks::Once, shift::None});
  }
  void rightClick(Surface& surface, int caret) { click(surface, caret, MouseButton::Right); }

  [[nodiscard]] std::string focus() const {
    const Control* control = base.form.ActiveControl();
    return control == nullptr ? std::string() : control->Name();
  }
  [[nodiscard]] ProgramControls& controls() { return base.controls; }
  [[nodiscard]] SharedState& state() { return base.state; }
  /// What was spoken since the log was last taken.
  [[nodiscard]] std::vector<std::string> spoken() { return texts("speak", "text"); }
  [[nodiscard]] std::vector<std::string> messages() { return texts("message", "text"); }

  TestFolder folder;
  ShellRun base;
  FormInput input{base.form};
  Hand hand{base.machine, base.form, input};
  Stores stores;
  RecordedVoice voice;
  Speech speech;
  Dictionary dictionary;
  VietnameseSide vietnameseSide;
  PageServices services;

 private:
  std::vector<std::string> texts(std::string_view what, std::string_view field) {
    std::vector<std::string> found;
    for (const LogEntry& entry : base.machine.log.take()) {
      if (entry.what == what) found.push_back(std::get<std::string>(*entry.find(field)));
    }
    return found;
  }
};

/// The value of a module's variable.
template <class Value, class Module>
[[nodiscard]] Value valueOf(const Module& module, const std::string& name) {
  Variables variables;
  module.declare(variables);
  return std::get<Value>((*variables.find(name))().value);
}

} // namespace talvora::test
