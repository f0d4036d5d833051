// The speech engine of the desktop: flite, which speaks on a thread of its own.
#pragma once

#include "desktop/PcmPlayer.h"
#include "platform/Speech.h"
#include "sound/Pronunciations.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <span>
#include <string>
#include <thread>

struct cst_voice_struct;

namespace talvora {

/// The flite voice of a number, from 1 to 10; several numbers have the same one. Null when its
/// library is not installed. A voice takes up memory, and stays for the whole process.
[[nodiscard]] cst_voice_struct* loadFliteVoice(int number);

/// flite keeps its voices for the whole process: one engine at a time. A voice is loaded with its
/// first word; one that is not there keeps the timing silently.
class FliteSpeech final : public SpeechEngine {
 public:
  using LoadVoice = std::function<cst_voice_struct*(int number)>;

  /// `pronunciations` is what the voices say wrong of themselves, and for words that are said in
  /// several ways what they cannot know.
  explicit FliteSpeech(PcmPlayer::MakeDevice makeDevice, LoadVoice loadVoice = loadFliteVoice,
                       Pronunciations pronunciations = {});
  FliteSpeech(const FliteSpeech&) = delete;
  FliteSpeech& operator=(const FliteSpeech&) = delete;
  ~FliteSpeech() override;

  void Speak(std::string_view text) override;
  void StopSpeaking() override;
  [[nodiscard]] bool IsSpeaking() const override;
  void Speed(int wordsPerMinute) override;
  bool Select(int voice) override;

 private:
  /// A text with the voice and the speed that were in use when it came.
  struct Utterance {
    std::string text;
    int voice = 1;
    int wordsPerMinute = 0;
  };
  /// What flite's callback is given.
  struct Stream;

  void run(const std::stop_token& ending);
  void say(const Utterance& utterance, std::uint64_t stops);
  void synthesise(const Utterance& utterance, cst_voice_struct& voice, std::uint64_t stops);
  /// Plays what belongs to the text that was begun after so many stops; false when that is over.
  bool playPart(std::span<const std::int16_t> samples, int rate, std::uint64_t stops);

  PcmPlayer player_;
  LoadVoice loadVoice_;
  const Pronunciations pronunciations_;
  bool taught_ = false; ///< whether the lexicon has them; the thread's own
  mutable std::mutex mutex_;
  std::condition_variable_any changed_;
  std::deque<Utterance> queue_;
  bool synthesising_ = false;
  std::uint64_t stops_ = 0;
  int voice_ = 1;
  int wordsPerMinute_;
  std::jthread thread_; // The last member: it ends before what it uses.
};

} // namespace talvora
