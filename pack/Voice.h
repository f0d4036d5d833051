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

  /// The library keeps one voice of each speaker for the process: one thread at a time may make or
  /// use any. Throws std::runtime_error when the library gives none.
  explicit Voice(Speaker speaker);

  /// Tells all voices how to say what they do not know.
  static void learn(const Pronunciations& pronunciations);

  /// A sentence in the text font's bytes, spoken in so many times its natural length. It sounds the
  /// same to the last sample whenever it is spoken.
  [[nodiscard]] SpokenSentence speak(std::string_view sentence, float stretch) const;

 private:
  [[maybe_unused]] cst_voice_struct* voice_; // The library's own; none in a silent build.
};

/// The name and release of what synthesises.
[[nodiscard]] std::string synthesiserName();

} // namespace talvora::pack
