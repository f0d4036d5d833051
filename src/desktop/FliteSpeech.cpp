#include "desktop/FliteSpeech.h"

#include "text/Bytes.h"

#include <flite/flite.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

// The voice libraries come without headers.
extern "C" {
cst_voice* register_cmu_us_kal(const char* directory);
cst_voice* register_cmu_us_awb(const char* directory);
cst_voice* register_cmu_us_rms(const char* directory);
cst_voice* register_cmu_us_slt(const char* directory);
}

namespace talvora {

namespace {

/// The voices by number from 1; the clearest is the last, since that is the one in use.
constexpr std::array registerVoice = {register_cmu_us_kal, register_cmu_us_awb, register_cmu_us_rms,
                                      register_cmu_us_slt};
constexpr const char* StreamFeature = "streaming_info";
constexpr const char* StretchFeature = "duration_stretch";
/// The speed that a voice has of itself, in words a minute.
constexpr int NaturalSpeed = 175;
constexpr int SlowestSpeed = 30;
constexpr int FastestSpeed = 500;
/// Samples from one call of the callback to the next: a twentieth of a second.
constexpr int PartSamples = 800;
constexpr char Apostrophe = chr(0x92);

/// The text in the characters that flite knows.
std::string readable(std::string_view text) {
  std::string result(text);
  for (char& character : result) {
    if (character == Apostrophe) character = '\'';
    if (asc(character) < ' ' || asc(character) > '~') character = ' ';
  }
  return result;
}

struct DeleteUtterance {
  void operator()(cst_utterance* utterance) const { delete_utterance(utterance); }
};

} // namespace

struct FliteSpeech::Stream {
  FliteSpeech& speech;
  std::uint64_t stops;

  static int take(const cst_wave* wave, int start, int size, int, cst_audio_streaming_info* info) {
    const auto& stream = *static_cast<const Stream*>(info->userdata);
    const std::span part(wave->samples + start, static_cast<std::size_t>(std::max(size, 0)));
    return stream.speech.playPart(part, wave->sample_rate, stream.stops) ? CST_AUDIO_STREAM_CONT
                                                                         : CST_AUDIO_STREAM_STOP;
  }
};

FliteSpeech::FliteSpeech(PcmPlayer::MakeDevice makeDevice)
    : player_(std::move(makeDevice)), wordsPerMinute_(NaturalSpeed),
      thread_([this](const std::stop_token& ending) { run(ending); }) {}

FliteSpeech::~FliteSpeech() {
  StopSpeaking();
}

// -- What the program calls.

void FliteSpeech::Speak(std::string_view text) {
  std::string words = readable(text);
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
  if (voice < 1 || voice > static_cast<int>(registerVoice.size())) return false;
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
    const Utterance utterance = std::move(queue_.front());
    queue_.pop_front();
    synthesising_ = true;
    const std::uint64_t stops = stops_;
    lock.unlock();
    synthesise(utterance, stops);
    lock.lock();
    // Stopped, it was over already, and something else may be on its way.
    if (stops == stops_) synthesising_ = false;
  }
}

void FliteSpeech::synthesise(const Utterance& utterance, std::uint64_t stops) {
  cst_voice* const voice = registerVoice.at(static_cast<std::size_t>(utterance.voice - 1))(nullptr);
  Stream stream{*this, stops};
  cst_audio_streaming_info* const info = new_audio_streaming_info();
  info->asc = Stream::take;
  info->min_buffsize = PartSamples;
  info->userdata = &stream;
  flite_feat_set(voice->features, StreamFeature, audio_streaming_info_val(info));
  flite_feat_set_float(voice->features, StretchFeature,
                       static_cast<float>(NaturalSpeed) /
                           static_cast<float>(utterance.wordsPerMinute));
  {
    const std::unique_ptr<cst_utterance, DeleteUtterance> spoken(
        flite_synth_text(utterance.text.c_str(), voice));
  }
  // The voice outlives the stream and must not keep it.
  flite_feat_remove(voice->features, StreamFeature);
}

bool FliteSpeech::playPart(std::span<const std::int16_t> samples, int rate, std::uint64_t stops) {
  const std::lock_guard lock(mutex_);
  if (stops != stops_) return false;
  player_.play(Samples(samples.begin(), samples.end()), rate);
  return true;
}

} // namespace talvora
