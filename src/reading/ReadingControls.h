// The surfaces of texts and of the vocabulary, beside those below.
#pragma once

#include "sound/SoundControls.h"

namespace talvora {

struct ReadingControls : SoundControls {
  ReadingControls(Form& form, const LineLayout& layout);

  Surface R1;    ///< list of titles
  Surface R2;    ///< reading text
  Surface Rchon; ///< your vocabulary
};

} // namespace talvora
