// A speech engine speaks English text.
#pragma once

#include <string_view>

namespace talvora {

class SpeechEngine {
 public:
  virtual ~SpeechEngine() = default;

  /// Starts to speak and returns at once; a second text queues behind the first.
  virtual void Speak(std::string_view text) = 0;
  /// Ends speech and empties the queue; harmless when silent.
  virtual void StopSpeaking() = 0;
  [[nodiscard]] virtual bool IsSpeaking() const = 0;
  /// Sets the rate in words a minute.
  virtual void Speed(int wordsPerMinute) = 0;
  /// Chooses a voice by number from 1; false when there is none of that number.
  virtual bool Select(int voice) = 0;
};

} // namespace talvora
