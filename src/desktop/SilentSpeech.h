// Speech without a voice: takes the time that speaking would take.
#pragma once

#include "platform/Speech.h"

#include <QElapsedTimer>

#include <cstdint>

namespace talvora {

/// How many voices every engine of the desktop answers to. The settings panel shuts the speed level
/// whose number follows that of the last voice: with ten all ten levels can be chosen.
inline constexpr int VoiceNumbers = 10;

/// How many milliseconds a text takes at a speed, about.
[[nodiscard]] std::int64_t spokenMs(std::string_view text, int wordsPerMinute);

class SilentSpeech final : public SpeechEngine {
 public:
  SilentSpeech() { clock_.start(); }

  void Speak(std::string_view text) override;
  void StopSpeaking() override { silentFrom_ = 0; }
  [[nodiscard]] bool IsSpeaking() const override { return clock_.elapsed() < silentFrom_; }
  void Speed(int wordsPerMinute) override;
  bool Select(int voice) override { return voice >= 1 && voice <= VoiceNumbers; }

 private:
  QElapsedTimer clock_;
  qint64 silentFrom_ = 0; ///< ms of the clock
  int wordsPerMinute_ = 175;
};

} // namespace talvora
