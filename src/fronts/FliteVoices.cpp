#include "fronts/FliteVoices.h"

#include "sound/FliteLexicon.h"

#include <flite/flite.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace talvora {

namespace {

struct VoiceSource {
  const char* name;
  float gain; ///< brings it to the level of the recordings
};

/// The voices that the numbers go through in turn. The last number has the last and clearest one,
/// since that is the one in use.
constexpr std::array<VoiceSource, 3> sources = {{
    {"awb", 0.89F},
    {"rms", 1.0F},
    {"slt", 0.52F},
}};
constexpr const char* StreamFeature = "streaming_info";
constexpr const char* StretchFeature = "duration_stretch";
/// The speed that a voice has of itself, in words a minute.
constexpr int NaturalSpeed = 175;
/// Samples from one call of the callback to the next: a twentieth of a second.
constexpr int PartSamples = 800;

const VoiceSource& sourceOf(int number) {
  const auto beforeLast = static_cast<std::size_t>(VoiceNumbers - number);
  return sources.at(sources.size() - 1 - beforeLast % sources.size());
}

struct DeleteUtterance {
  void operator()(cst_utterance* utterance) const { delete_utterance(utterance); }
};

/// What flite's callback is given.
struct Stream {
  const Voices::Take& take;
  float gain;

  static int pass(const cst_wave* wave, int start, int size, int, cst_audio_streaming_info* info) {
    const auto& stream = *static_cast<const Stream*>(info->userdata);
    std::vector<std::int16_t> part(wave->samples + start,
                                   wave->samples + start + std::max(size, 0));
    for (std::int16_t& sample : part)
      sample = static_cast<std::int16_t>(std::lround(static_cast<float>(sample) * stream.gain));
    return stream.take(part, wave->sample_rate) ? CST_AUDIO_STREAM_CONT : CST_AUDIO_STREAM_STOP;
  }
};

} // namespace

const char* fliteVoiceName(int number) {
  return sourceOf(number).name;
}

FliteVoices::FliteVoices(Load load, std::vector<LexiconEntry> lexicon)
    : load_(load), lexicon_(std::move(lexicon)) {
  flite_init();
}

bool FliteVoices::say(const std::string& text, int number, int wordsPerMinute, const Take& take) {
  cst_voice* const voice = load_(fliteVoiceName(number));
  if (voice == nullptr) return false;
  // All voices have one lexicon; it is there with the first of them.
  if (!std::exchange(taught_, true))
    teach(*val_lexicon(feat_val(voice->features, "lexicon")), lexicon_);
  Stream stream{take, sourceOf(number).gain};
  cst_audio_streaming_info* const info = new_audio_streaming_info();
  info->asc = Stream::pass;
  info->min_buffsize = PartSamples;
  info->userdata = &stream;
  flite_feat_set(voice->features, StreamFeature, audio_streaming_info_val(info));
  flite_feat_set_float(voice->features, StretchFeature,
                       static_cast<float>(NaturalSpeed) / static_cast<float>(wordsPerMinute));
  {
    const std::unique_ptr<cst_utterance, DeleteUtterance> spoken(
        flite_synth_text(text.c_str(), voice));
  }
  // The voice outlives the stream and must not keep it.
  flite_feat_remove(voice->features, StreamFeature);
  return true;
}

} // namespace talvora
