// The voices of the recordings.
#pragma once

#include "pack/Speakers.h"
#include "pack/WaveFile.h"
#include "sound/Pronunciations.h"

#include <string>
#include <string_view>

struct cst_voice_struct;

namespace talvora::pack {

/// A sentence as it was spoken.
struct SpokenSentence {
  Samples samples;
  int syllables = 0;
};

class Voice {
 public:
  static constexpr int SamplesPerSecond = 16000;

  /// The library keeps one voice of each speaker for the process: make it on one thread, and let
  /// one thread at a time use it. Throws std::runtime_error when the library gives none.
  explicit Voice(Speaker speaker);

  /// Tells all voices how to say what they do not know. None may be speaking meanwhile.
  static void learn(const Pronunciations& pronunciations);

  /// A sentence in the text font's bytes, spoken in so many times its natural length. Its length
  /// depends on the text and the stretch alone; the breath in the voice is random, so that its
  /// samples differ a little every time.
  [[nodiscard]] SpokenSentence speak(std::string_view sentence, float stretch) const;

 private:
  [[maybe_unused]] cst_voice_struct* voice_; // The library's own; none in a silent build.
};

/// The name and release of what synthesises.
[[nodiscard]] std::string synthesiserName();

} // namespace talvora::pack
