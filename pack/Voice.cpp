// Synthesis with flite.
#include "pack/Voice.h"

#include "pack/Message.h"

#include "sound/FliteLexicon.h"
#include "text/Text.h"

#include <flite/flite.h>
#include <flite/flite_version.h>

#include <cstdlib>
#include <memory>
#include <stdexcept>

// The voice libraries and the lexicon come without headers.
extern "C" {
cst_voice* register_cmu_us_rms(const char* directory);
cst_voice* register_cmu_us_slt(const char* directory);
cst_lexicon* cmu_lex_init();
}

namespace talvora::pack {

namespace {

constexpr unsigned breathSeed = 1;

struct DeleteUtterance {
  void operator()(cst_utterance* utterance) const { delete_utterance(utterance); }
};

int syllablesOf(cst_utterance& utterance) {
  int count = 0;
  for (const cst_item* syllable = relation_head(utt_relation(&utterance, "Syllable"));
       syllable != nullptr; syllable = item_next(syllable))
    ++count;
  return count;
}

} // namespace

Voice::Voice(Speaker speaker) {
  flite_init();
  voice_ = speaker == Speaker::Rms ? register_cmu_us_rms(nullptr) : register_cmu_us_slt(nullptr);
  if (voice_ == nullptr) throw std::runtime_error(said("flite gives no voice for the recordings"));
}

void Voice::learn(const Pronunciations& pronunciations) {
  flite_init();
  teach(*cmu_lex_init(), pronunciations.lexicon());
}

SpokenSentence Voice::speak(std::string_view sentence, float stretch) const {
  flite_feat_set_float(voice_->features, "duration_stretch", stretch);
  // The breath in the voice comes from the process's random numbers.
  std::srand(breathSeed);
  const std::unique_ptr<cst_utterance, DeleteUtterance> spoken(
      flite_synth_text(plainAscii(sentence).c_str(), voice_));
  const cst_wave* wave = spoken ? utt_wave(spoken.get()) : nullptr;
  if (wave == nullptr || wave->sample_rate != SamplesPerSecond || wave->num_channels != 1)
    throw std::runtime_error(said("flite cannot speak: {}", sentence));
  return {{wave->samples, wave->samples + wave->num_samples}, syllablesOf(*spoken)};
}

std::string synthesiserName() {
  return FLITE_PROJECT_PREFIX "-" FLITE_PROJECT_VERSION;
}

} // namespace talvora::pack
