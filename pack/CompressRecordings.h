// A pack that travels carries its recordings in half the room.
#pragma once

#include <cstdint>
#include <filesystem>

namespace talvora::pack {

/// What compressing came to.
struct Compressed {
  int recordings = 0;        ///< that became smaller
  std::uintmax_t before = 0; ///< bytes of these
  std::uintmax_t after = 0;
};

/// Puts the wave files of a pack's recordings into FLAC, each under the name that it has: a player
/// knows a sound by its content. What is FLAC already stays. Throws std::runtime_error for a folder
/// without recordings and for one that cannot be read, put into FLAC or written.
Compressed compressRecordings(const std::filesystem::path& pack);

} // namespace talvora::pack
