// Speech, the recorded voice and the settings panel on a scripted machine, with a folder of sounds.
#pragma once

#include "sound/AmthanhThuc.h"
#include "sound/Amthanhcaidat.h"
#include "sound/Speech.h"
#include "stores/Stores.h"
#include "support/ShellRun.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace talvora::test {

class SoundRun : public testing::Test {
 protected:
  explicit SoundRun(const ScriptedOptions& options = {}) : run(options) {
    folder.writeEmptyStores();
    run.state.places.ThuMuc = folder.path();
    stores.MoDuLieu();
    speech.DemGiong();
    forgetLog();
  }

  void setSettings(std::int32_t soundOn, std::int32_t level) {
    stores.writeSetting(setting::SoundOn, soundOn);
    stores.writeSetting(setting::SpeedLevel, level);
    speech.setUp(stores);
    forgetLog();
  }

  /// A recording of a number, with its marks in milliseconds, is there and open.
  void openRecording(const std::vector<std::int32_t>& marks) {
    std::vector<std::int32_t> records{1};
    records.insert(records.end(), marks.begin(), marks.end());
    folder.writeIntegers("DataS", records);
    folder.write("sound/1.wav", "");
    voice.MoAm(1);
    forgetLog();
  }

  void forgetLog() { static_cast<void>(run.machine.log.take()); }

  /// The values of a field in the log's entries of a kind.
  template <class Value>
  [[nodiscard]] std::vector<Value> logged(std::string_view what, std::string_view field) const {
    std::vector<Value> values;
    for (const LogEntry& entry : run.machine.log.entries()) {
      if (entry.what == what) values.push_back(std::get<Value>(*entry.find(field)));
    }
    return values;
  }
  [[nodiscard]] std::vector<std::string> spoken() const {
    return logged<std::string>("speak", "text");
  }
  /// What was asked of the wave player, as "Play 1 900"; times only where something plays.
  [[nodiscard]] std::vector<std::string> waveCommands() const {
    std::vector<std::string> commands;
    for (const LogEntry& entry : run.machine.log.entries()) {
      if (entry.what != "mm") continue;
      std::string command = std::get<std::string>(*entry.find("command"));
      if (command == "Play") {
        for (const char* time : {"from", "to"}) {
          command += " " + std::to_string(std::get<std::int64_t>(*entry.find(time)));
        }
      }
      commands.push_back(command);
    }
    return commands;
  }

  TestFolder folder;
  ShellRun run;
  Stores stores{run.state.places};
  RecordedVoice voice{run.state.places, run.machine.wave, run.shell.messages};
  Speech speech{run.machine.platform, run.shell.steering, voice};
};

using Texts = std::vector<std::string>;
using Numbers = std::vector<std::int64_t>;

} // namespace talvora::test
