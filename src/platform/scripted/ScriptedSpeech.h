// A speech engine that speaks nothing and takes its time in virtual milliseconds.
#pragma once

#include "platform/Speech.h"
#include "platform/scripted/ScriptedLog.h"
#include "platform/scripted/VirtualTime.h"

#include <cstdint>

namespace talvora {

class ScriptedSpeech final : public SpeechEngine {
 public:
  /// It has the voices 1 to `voices`; each character of a text takes `msPerChar` milliseconds.
  ScriptedSpeech(const VirtualTime& time, ScriptedLog& log, int voices, int msPerChar)
      : time_(time), log_(log), voices_(voices), msPerChar_(msPerChar) {}

  void Speak(std::string_view text) override;
  void StopSpeaking() override;
  [[nodiscard]] bool IsSpeaking() const override { return time_.nowMs() < silentFrom_; }
  void Speed(int wordsPerMinute) override;
  bool Select(int voice) override;

 private:
  const VirtualTime& time_;
  ScriptedLog& log_;
  int voices_;
  int msPerChar_;
  std::int64_t silentFrom_ = 0;
};

} // namespace talvora
