// The surfaces of the rule lessons, beside those below.
#pragma once

#include "reading/ReadingControls.h"

namespace talvora {

struct LessonControls : ReadingControls {
  LessonControls(Form& form, const LineLayout& layout);

  Surface RVP1; ///< list of rule lessons
  Surface RVP2; ///< rule lesson
};

} // namespace talvora
