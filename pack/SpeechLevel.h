// Loudness of what is spoken: one level for every sentence and speaker.
#pragma once

#include "pack/WaveFile.h"

namespace talvora::pack {

/// The level of every recorded sentence, in dB below full scale.
inline constexpr double RecordedLevel = -20.0;

/// Takes out what lies below 50 Hz: a constant offset and rumble, which only use up loudness.
void highPass(Samples& samples, int samplesPerSecond);

/// The level in dB of the stretches in which somebody speaks; pauses do not count. Silence has
/// -120.
[[nodiscard]] double speechLevel(const Samples& samples, int samplesPerSecond);

/// Brings a sentence to a level; where its peaks would be cut off, it stays as much lower.
void bringToLevel(Samples& samples, int samplesPerSecond, double level);

} // namespace talvora::pack
