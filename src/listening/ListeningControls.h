// The surfaces of quiz and dictation, beside those below.
#pragma once

#include "exercises/ExerciseControls.h"

namespace talvora {

struct ListeningControls : ExerciseControls {
  ListeningControls(Form& form, const LineLayout& layout);

  Surface RN2;   ///< listening text
  Surface Rviet; ///< dictation
};

} // namespace talvora
