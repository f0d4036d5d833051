// The learner's words as a deck file (".apkg") that flash-card programs open: an archive with a
// database of notes and cards, and the sounds.
#pragma once

#include "pack/words/CardAudio.h"
#include "pack/words/CardFields.h"

#include <cstdint>
#include <string>
#include <vector>

namespace talvora::pack {

/// The bytes of a deck. `seconds` is the moment since 1970 at which it is made: a note that comes
/// again with a later one replaces the earlier, since its identity is the word's. Throws
/// std::runtime_error when it cannot be made.
[[nodiscard]] std::string deckOf(const std::vector<SpokenCard>& cards,
                                 const std::vector<SoundClip>& sounds, std::int64_t seconds);

} // namespace talvora::pack
