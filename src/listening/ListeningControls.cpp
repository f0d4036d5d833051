#include "listening/ListeningControls.h"

namespace talvora {

ListeningControls::ListeningControls(Form& form, const LineLayout& layout)
    : ExerciseControls(form, layout), RN2("RN2", form, layout), Rviet("Rviet", form, layout) {
  form.add(RN2, Layer::ListeningItem);
  form.add(Rviet, Layer::Dictation);
}

} // namespace talvora
