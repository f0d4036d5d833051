#include "exercises/ExerciseControls.h"

namespace talvora {

ExerciseControls::ExerciseControls(Form& form, const LineLayout& layout)
    : LessonControls(form, layout), RN1("RN1", form, layout), RDT("RDT", form, layout),
      RABCD("RABCD", form, layout), Rsai("Rsai", form, layout), Rxep("Rxep", form, layout),
      Rnen2("Rnen2", form, layout), RHDBT("RHDBT", form, layout) {
  form.add(RN1, Layer::UnitList);
  form.add(RDT, Layer::FillIn);
  form.add(RABCD, Layer::Choice);
  form.add(Rsai, Layer::Mistake);
  form.add(Rxep, Layer::Ordering);
  form.add(Rnen2, Layer::ExplanationPlate);
  form.add(RHDBT, Layer::Explanation);
  Rnen2.TakesKeys(false);
}

} // namespace talvora
