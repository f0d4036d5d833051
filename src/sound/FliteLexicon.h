// Gives the voices of flite the corrections of a pack. Belongs to whoever links flite.
#pragma once

#include "sound/Pronunciations.h"

#include <span>

struct lexicon_struct;

namespace talvora {

/// Puts the corrections into a lexicon, in place of those that it had. All voices of a language
/// share one lexicon, and none may be speaking meanwhile.
void teach(lexicon_struct& lexicon, std::span<const LexiconEntry> corrections);

} // namespace talvora
