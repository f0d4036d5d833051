// What the program did to the outside, in order. Tests and the driver read it.
#pragma once

#include "platform/scripted/VirtualTime.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace talvora {

using LogValue = std::variant<bool, std::int64_t, std::string>;
using LogFields = std::vector<std::pair<std::string, LogValue>>;

/// One deed, with the virtual millisecond at which it was done.
struct LogEntry {
  std::int64_t t = 0;
  std::string what;
  LogFields fields;

  /// The value of a field, or null when the entry has none of that name.
  [[nodiscard]] const LogValue* find(std::string_view name) const noexcept;

  friend bool operator==(const LogEntry&, const LogEntry&) = default;
};

class ScriptedLog {
 public:
  explicit ScriptedLog(const VirtualTime& time) : time_(time) {}
  ScriptedLog(const ScriptedLog&) = delete;
  ScriptedLog& operator=(const ScriptedLog&) = delete;

  void add(std::string what, LogFields fields = {});

  [[nodiscard]] const std::vector<LogEntry>& entries() const noexcept { return entries_; }
  /// Gives the entries since the last call and forgets them.
  std::vector<LogEntry> take();
  /// How many of the present entries are of a kind.
  [[nodiscard]] int count(std::string_view what) const noexcept;

 private:
  const VirtualTime& time_;
  std::vector<LogEntry> entries_;
};

/// A text or a number as the value of a field.
[[nodiscard]] inline LogValue logText(std::string_view text) {
  return std::string(text);
}
[[nodiscard]] inline LogValue logNumber(std::int64_t number) {
  return number;
}

} // namespace talvora
