#include "desktop/ThreadedSpeech.h"

#include "text/Text.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

namespace talvora {

namespace {

/// Until a speed is set, in words a minute.
constexpr int FirstSpeed = 175;
constexpr int SlowestSpeed = 30;
constexpr int FastestSpeed = 500;
/// How long a word waits for the picture that comes with it: at work together, each would hold the
/// other up, and the learner notices it in the picture only.
constexpr std::chrono::milliseconds PictureFirst(4);
/// Of the silence in place of a voice.
constexpr int SilenceRate = 16000;

/// How many milliseconds a text takes at a speed, about.
std::int64_t spokenMs(std::string_view text, int wordsPerMinute) {
  // A spoken word has about six characters with its blank.
  constexpr std::int64_t CharactersPerWord = 6;
  return static_cast<std::int64_t>(text.size()) * 60'000 / (CharactersPerWord * wordsPerMinute);
}

} // namespace

ThreadedSpeech::ThreadedSpeech(PcmPlayer::MakeDevice makeDevice, MakeVoices makeVoices,
                               ReadPronunciations readPronunciations)
    : player_(std::move(makeDevice)), makeVoices_(std::move(makeVoices)),
      readPronunciations_(std::move(readPronunciations)), wordsPerMinute_(FirstSpeed),
      thread_([this](const std::stop_token& ending) { run(ending); }) {}

ThreadedSpeech::~ThreadedSpeech() {
  StopSpeaking();
}

// -- What the program calls.

void ThreadedSpeech::Speak(std::string_view text) {
  std::string words = plainAscii(text);
  if (words.find_first_not_of(' ') == std::string::npos) return;
  const std::lock_guard lock(mutex_);
  queue_.push_back({std::move(words), voice_, wordsPerMinute_});
  changed_.notify_one();
}

void ThreadedSpeech::StopSpeaking() {
  const std::lock_guard lock(mutex_);
  queue_.clear();
  synthesising_ = false;
  ++stops_;
  player_.stop();
}

bool ThreadedSpeech::IsSpeaking() const {
  const std::lock_guard lock(mutex_);
  return !queue_.empty() || synthesising_ || player_.isPlaying();
}

void ThreadedSpeech::Speed(int wordsPerMinute) {
  const std::lock_guard lock(mutex_);
  wordsPerMinute_ = std::clamp(wordsPerMinute, SlowestSpeed, FastestSpeed);
}

bool ThreadedSpeech::Select(int voice) {
  if (voice < 1 || voice > VoiceNumbers) return false;
  const std::lock_guard lock(mutex_);
  voice_ = voice;
  return true;
}

// -- What the thread does.

void ThreadedSpeech::run(const std::stop_token& ending) {
  std::optional<std::unique_ptr<Voices>> voices;
  std::unique_lock lock(mutex_);
  while (!ending.stop_requested()) {
    if (!changed_.wait(lock, ending, [this] { return !queue_.empty(); })) continue;
    if (changed_.wait_for(lock, ending, PictureFirst, [this] { return queue_.empty(); })) continue;
    const Utterance utterance = std::move(queue_.front());
    queue_.pop_front();
    synthesising_ = true;
    const std::uint64_t stops = stops_;
    lock.unlock();
    if (!voices) {
      pronunciations_ = readPronunciations_();
      voices = makeVoices_(pronunciations_.lexicon());
    }
    say(utterance, voices->get(), stops);
    lock.lock();
    // Stopped, it was over already, and something else may be on its way.
    if (stops == stops_) synthesising_ = false;
  }
}

void ThreadedSpeech::say(const Utterance& utterance, Voices* voices, std::uint64_t stops) {
  const auto play = [&](std::span<const std::int16_t> samples, int rate) {
    return playPart(samples, rate, stops);
  };
  if (voices != nullptr && voices->say(pronunciations_.prepared(utterance.text), utterance.voice,
                                       utterance.wordsPerMinute, play)) {
    return;
  }
  const std::int64_t ms = spokenMs(utterance.text, utterance.wordsPerMinute);
  play(Samples(static_cast<std::size_t>(ms * SilenceRate / 1000)), SilenceRate);
}

bool ThreadedSpeech::playPart(std::span<const std::int16_t> samples, int rate,
                              std::uint64_t stops) {
  const std::lock_guard lock(mutex_);
  if (stops != stops_) return false;
  player_.play(Samples(samples.begin(), samples.end()), rate);
  return true;
}

} // namespace talvora
