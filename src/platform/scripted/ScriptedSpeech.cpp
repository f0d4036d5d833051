#include "platform/scripted/ScriptedSpeech.h"

#include <algorithm>

namespace talvora {

void ScriptedSpeech::Speak(std::string_view text) {
  log_.add("speak", {{"text", logText(text)}});
  const std::int64_t length = static_cast<std::int64_t>(text.size()) * msPerChar_;
  silentFrom_ = std::max(silentFrom_, time_.nowMs()) + length;
}

void ScriptedSpeech::StopSpeaking() {
  log_.add("stopspeaking");
  silentFrom_ = time_.nowMs();
}

void ScriptedSpeech::Speed(int wordsPerMinute) {
  log_.add("speed", {{"value", logNumber(wordsPerMinute)}});
}

bool ScriptedSpeech::Select(int voice) {
  const bool exists = voice >= 1 && voice <= voices_;
  LogFields fields = {{"value", logNumber(voice)}};
  if (!exists) fields.emplace_back("failed", true);
  log_.add("select", std::move(fields));
  return exists;
}

} // namespace talvora
