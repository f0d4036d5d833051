// The speech engine of the desktop: voices that speak on a thread of their own.
#pragma once

#include "desktop/PcmPlayer.h"
#include "fronts/Voices.h"
#include "platform/Speech.h"
#include "sound/Pronunciations.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <thread>
#include <vector>

namespace talvora {

/// A text for which there is no voice takes the time that speaking it would take, silently.
class ThreadedSpeech final : public SpeechEngine {
 public:
  /// Makes the voices, with what they say wrong of themselves. Called on the engine's thread with
  /// the first word; null when there are none.
  using MakeVoices = std::function<std::unique_ptr<Voices>(std::vector<LexiconEntry> lexicon)>;

  /// Reads what the voices say wrong of themselves, and for words that are said in several ways
  /// what they cannot know. Called on the engine's thread with the first word.
  using ReadPronunciations = std::function<Pronunciations()>;

  ThreadedSpeech(
      PcmPlayer::MakeDevice makeDevice, MakeVoices makeVoices,
      ReadPronunciations readPronunciations = [] { return Pronunciations(); });
  ThreadedSpeech(const ThreadedSpeech&) = delete;
  ThreadedSpeech& operator=(const ThreadedSpeech&) = delete;
  ~ThreadedSpeech() override;

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

  void run(const std::stop_token& ending);
  void say(const Utterance& utterance, Voices* voices, std::uint64_t stops);
  /// Plays what belongs to the text that was begun after so many stops; false when that is over.
  bool playPart(std::span<const std::int16_t> samples, int rate, std::uint64_t stops);

  PcmPlayer player_;
  const MakeVoices makeVoices_;
  const ReadPronunciations readPronunciations_;
  Pronunciations pronunciations_; ///< of the thread alone
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
