#include "platform/scripted/ScriptedWave.h"

#include <algorithm>

namespace talvora {

void ScriptedWave::Open(const std::string& path) {
  path_ = path;
  silentFrom_ = time_.nowMs();
  record("Open");
}

void ScriptedWave::Close() {
  record("Close");
  path_.clear();
  silentFrom_ = time_.nowMs();
}

void ScriptedWave::Play(int from, int to) {
  record("Play", from, to);
  if (path_.empty()) return;
  silentFrom_ = time_.nowMs() + std::max<std::int64_t>(0, std::int64_t{to} - from);
}

void ScriptedWave::Stop() {
  record("Stop");
  silentFrom_ = time_.nowMs();
}

int ScriptedWave::Mode() const {
  return time_.nowMs() < silentFrom_ ? Playing : Stopped;
}

void ScriptedWave::record(std::string_view command, int from, int to) {
  log_.add("mm", {{"command", logText(command)},
                  {"file", logText(path_)},
                  {"from", logNumber(from)},
                  {"to", logNumber(to)}});
}

} // namespace talvora
