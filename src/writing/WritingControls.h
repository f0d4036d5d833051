// The surfaces of writing practice, beside those of the other sections.
#pragma once

#include "listening/ListeningControls.h"

namespace talvora {

struct WritingControls : ListeningControls {
  WritingControls(Form& form, const LineLayout& layout);

  Surface RW1; ///< list of writing texts
  Surface RW2; ///< writing
};

} // namespace talvora
