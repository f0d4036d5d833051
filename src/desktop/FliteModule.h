// What the library talvora-voices is made of; the program loads it with the first word and knows
// nothing else of flite.
#pragma once

#include "fronts/FliteVoices.h"

#include <memory>
#include <vector>

namespace talvora {

/// The flite voice of a name. Null when its library is not installed. A voice takes up memory, and
/// stays for the whole process.
[[nodiscard]] cst_voice_struct* loadFliteVoice(const char* name);

} // namespace talvora

/// What the library of the voices is loaded for.
extern "C" [[gnu::visibility("default")]] void
talvoraMakeVoices(std::unique_ptr<talvora::Voices>& voices,
                  const std::vector<talvora::LexiconEntry>& lexicon);
