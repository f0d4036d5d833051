#include "platform/scripted/ScriptedLog.h"

#include <algorithm>

namespace talvora {

const LogValue* LogEntry::find(std::string_view name) const noexcept {
  const auto found = std::find_if(fields.begin(), fields.end(),
                                  [&](const auto& field) { return field.first == name; });
  return found == fields.end() ? nullptr : &found->second;
}

void ScriptedLog::add(std::string what, LogFields fields) {
  entries_.push_back({time_.nowMs(), std::move(what), std::move(fields)});
}

std::vector<LogEntry> ScriptedLog::take() {
  return std::exchange(entries_, {});
}

int ScriptedLog::count(std::string_view what) const noexcept {
  return static_cast<int>(std::count_if(entries_.begin(), entries_.end(),
                                        [&](const LogEntry& entry) { return entry.what == what; }));
}

} // namespace talvora
