// The surfaces of the exercises, beside those below.
#pragma once

#include "lessons/LessonControls.h"

namespace talvora {

struct ExerciseControls : LessonControls {
  ExerciseControls(Form& form, const LineLayout& layout);

  Surface RN1;   ///< list of units
  Surface RDT;   ///< fill-in exercise
  Surface RABCD; ///< multiple choice
  Surface Rsai;  ///< find the mistake
  Surface Rxep;  ///< word ordering
  Surface Rnen2; ///< plate of the explanation box
  Surface RHDBT; ///< explanation box
};

} // namespace talvora
