#include "lessons/LessonControls.h"

namespace talvora {

LessonControls::LessonControls(Form& form, const LineLayout& layout)
    : ReadingControls(form, layout), RVP1("RVP1", form, layout), RVP2("RVP2", form, layout) {
  form.add(RVP1, Layer::LessonList);
  form.add(RVP2, Layer::Lesson);
}

} // namespace talvora
