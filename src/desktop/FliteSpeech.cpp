#include "desktop/FliteSpeech.h"

#include "desktop/SilentSpeech.h"
#include "sound/FliteLexicon.h"
#include "text/Text.h"

#include <dlfcn.h>
#include <flite/flite.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <memory>
#include <utility>

namespace talvora {

namespace {

/// Where a voice comes from.
struct VoiceSource {
  const char* library;
  const char* entry; ///< the function that makes it
  float gain;        ///< brings it to the level of the recordings
};

/// The voices that the numbers go through in turn. The last number has the last and clearest one,
/// since that is the one in use.
constexpr std::array<VoiceSource, 3> voices = {{
    {"libflite_cmu_us_awb.so.1", "register_cmu_us_awb", 0.89F},
    {"libflite_cmu_us_rms.so.1", "register_cmu_us_rms", 1.0F},
    {"libflite_cmu_us_slt.so.1", "register_cmu_us_slt", 0.52F},
}};
constexpr const char* StreamFeature = "streaming_info";
constexpr const char* StretchFeature = "duration_stretch";
/// The speed that a voice has of itself, in words a minute.
constexpr int NaturalSpeed = 175;
constexpr int SlowestSpeed = 30;
constexpr int FastestSpeed = 500;
/// How long a word waits for the picture that comes with it: at work together, each would hold the
/// other up, and the learner notices it in the picture only.
constexpr std::chrono::milliseconds PictureFirst(4);
/// Of the silence in place of a voice.
constexpr int SilenceRate = 16000;
/// Samples from one call of the callback to the next: a twentieth of a second.
constexpr int PartSamples = 800;

const VoiceSource& sourceOf(int number) {
  const auto beforeLast = static_cast<std::size_t>(VoiceNumbers - number);
  return voices.at(voices.size() - 1 - beforeLast % voices.size());
}

struct DeleteUtterance {
  void operator()(cst_utterance* utterance) const { delete_utterance(utterance); }
};

} // namespace

struct FliteSpeech::Stream {
  FliteSpeech& speech;
  std::uint64_t stops;
  float gain;

  static int take(const cst_wave* wave, int start, int size, int, cst_audio_streaming_info* info) {
    const auto& stream = *static_cast<const Stream*>(info->userdata);
    Samples part(wave->samples + start, wave->samples + start + std::max(size, 0));
    for (std::int16_t& sample : part)
      sample = static_cast<std::int16_t>(std::lround(static_cast<float>(sample) * stream.gain));
    return stream.speech.playPart(part, wave->sample_rate, stream.stops) ? CST_AUDIO_STREAM_CONT
                                                                         : CST_AUDIO_STREAM_STOP;
  }
};

cst_voice* loadFliteVoice(int number) {
  const VoiceSource& source = sourceOf(number);
  // Never unloaded: the voice lives in it.
  void* const library = ::dlopen(source.library, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return nullptr;
  using Register = cst_voice*(const char* directory);
  auto* const makeVoice = reinterpret_cast<Register*>(::dlsym(library, source.entry));
  return makeVoice == nullptr ? nullptr : makeVoice(nullptr);
}

FliteSpeech::FliteSpeech(PcmPlayer::MakeDevice makeDevice, LoadVoice loadVoice,
                         Pronunciations pronunciations)
    : player_(std::move(makeDevice)), loadVoice_(std::move(loadVoice)),
      pronunciations_(std::move(pronunciations)), wordsPerMinute_(NaturalSpeed),
      thread_([this](const std::stop_token& ending) { run(ending); }) {}

FliteSpeech::~FliteSpeech() {
  StopSpeaking();
}

// -- What the program calls.

void FliteSpeech::Speak(std::string_view text) {
  std::string words = plainAscii(text);
  if (words.find_first_not_of(' ') == std::string::npos) return;
  const std::lock_guard lock(mutex_);
  queue_.push_back({std::move(words), voice_, wordsPerMinute_});
  changed_.notify_one();
}

void FliteSpeech::StopSpeaking() {
  const std::lock_guard lock(mutex_);
  queue_.clear();
  synthesising_ = false;
  ++stops_;
  player_.stop();
}

bool FliteSpeech::IsSpeaking() const {
  const std::lock_guard lock(mutex_);
  return !queue_.empty() || synthesising_ || player_.isPlaying();
}

void FliteSpeech::Speed(int wordsPerMinute) {
  const std::lock_guard lock(mutex_);
  wordsPerMinute_ = std::clamp(wordsPerMinute, SlowestSpeed, FastestSpeed);
}

bool FliteSpeech::Select(int voice) {
  if (voice < 1 || voice > VoiceNumbers) return false;
  const std::lock_guard lock(mutex_);
  voice_ = voice;
  return true;
}

// -- What the thread does.

void FliteSpeech::run(const std::stop_token& ending) {
  flite_init();
  std::unique_lock lock(mutex_);
  while (!ending.stop_requested()) {
    if (!changed_.wait(lock, ending, [this] { return !queue_.empty(); })) continue;
    if (changed_.wait_for(lock, ending, PictureFirst, [this] { return queue_.empty(); })) continue;
    const Utterance utterance = std::move(queue_.front());
    queue_.pop_front();
    synthesising_ = true;
    const std::uint64_t stops = stops_;
    lock.unlock();
    say(utterance, stops);
    lock.lock();
    // Stopped, it was over already, and something else may be on its way.
    if (stops == stops_) synthesising_ = false;
  }
}

void FliteSpeech::say(const Utterance& utterance, std::uint64_t stops) {
  if (cst_voice* const voice = loadVoice_(utterance.voice)) {
    synthesise(utterance, *voice, stops);
    return;
  }
  const std::int64_t ms = spokenMs(utterance.text, utterance.wordsPerMinute);
  const Samples silence(static_cast<std::size_t>(ms * SilenceRate / 1000));
  playPart(silence, SilenceRate, stops);
}

void FliteSpeech::synthesise(const Utterance& utterance, cst_voice& voice, std::uint64_t stops) {
  // All voices have one lexicon; it is there with the first of them.
  if (!taught_) teach(*val_lexicon(feat_val(voice.features, "lexicon")), pronunciations_);
  taught_ = true;
  Stream stream{*this, stops, sourceOf(utterance.voice).gain};
  cst_audio_streaming_info* const info = new_audio_streaming_info();
  info->asc = Stream::take;
  info->min_buffsize = PartSamples;
  info->userdata = &stream;
  flite_feat_set(voice.features, StreamFeature, audio_streaming_info_val(info));
  flite_feat_set_float(voice.features, StretchFeature,
                       static_cast<float>(NaturalSpeed) /
                           static_cast<float>(utterance.wordsPerMinute));
  {
    const std::unique_ptr<cst_utterance, DeleteUtterance> spoken(
        flite_synth_text(pronunciations_.prepared(utterance.text).c_str(), &voice));
  }
  // The voice outlives the stream and must not keep it.
  flite_feat_remove(voice.features, StreamFeature);
}

bool FliteSpeech::playPart(std::span<const std::int16_t> samples, int rate, std::uint64_t stops) {
  const std::lock_guard lock(mutex_);
  if (stops != stops_) return false;
  player_.play(Samples(samples.begin(), samples.end()), rate);
  return true;
}

} // namespace talvora
