// The surface of the sound settings, beside those below.
#pragma once

#include "dictionary/DictionaryControls.h"

namespace talvora {

struct SoundControls : DictionaryControls {
  SoundControls(Form& form, const LineLayout& layout);

  Surface RAmthanh; ///< settings
};

} // namespace talvora
