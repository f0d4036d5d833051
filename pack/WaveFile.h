// Sound as a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace talvora::pack {

/// Samples of 16 bits, one channel.
using Samples = std::vector<std::int16_t>;

/// The bytes of a wave file. Throws std::runtime_error when it cannot be made.
[[nodiscard]] std::string waveFileOf(const Samples& samples, int samplesPerSecond);

/// The same sound as a FLAC file, which is about half as long and loses nothing; empty when the
/// bytes are no sound of 16 bits, or are FLAC already. Throws std::runtime_error when it cannot be
/// made.
[[nodiscard]] std::optional<std::string> flacFileOf(std::string bytes);
/// A sound that takes little room.
struct SmallSound {
  std::string bytes;
  std::string extension; ///< of a file of this form
};

/// The sound in the smallest form that every player has and this machine's library can write: MP3,
/// else Ogg Vorbis, else a wave file. Throws std::runtime_error when it cannot be made.
[[nodiscard]] SmallSound smallSoundOf(const Samples& samples, int samplesPerSecond);

/// How long a wave file is; empty when its bytes are none.
[[nodiscard]] std::optional<std::int64_t> waveLengthMs(std::string bytes);

} // namespace talvora::pack
