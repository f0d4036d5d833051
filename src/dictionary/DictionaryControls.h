// The surface of the dictionary, beside those of the shell.
#pragma once

#include "shell/Controls.h"

namespace talvora {

struct DictionaryControls : Controls {
  DictionaryControls(Form& form, const LineLayout& layout);

  Surface RTD; ///< look-up list
};

} // namespace talvora
