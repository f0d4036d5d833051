// The voices of the recordings.
#pragma once

#include "pack/WaveFile.h"

#include <string>
#include <string_view>

struct cst_voice_struct;

namespace talvora::pack {

/// Two men; what is spoken live has a woman's voice.
enum class Speaker { Rms, Awb };

class Voice {
 public:
  static constexpr int SamplesPerSecond = 16000;

  /// `stretch` is how many times as long as by nature the voice takes. The library keeps one voice
  /// of each speaker for the process: make it on one thread, and let one thread at a time use it.
  /// Throws std::runtime_error when the library gives none.
  Voice(Speaker speaker, float stretch);

  /// A sentence in the text font's bytes, spoken. Its length depends on the text alone; the breath
  /// in the voice is random, so that its samples differ a little every time.
  [[nodiscard]] Samples speak(std::string_view sentence) const;

 private:
  cst_voice_struct* voice_; // The library's own.
};

/// The name and release of what synthesises.
[[nodiscard]] std::string synthesiserName();

} // namespace talvora::pack
