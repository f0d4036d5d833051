#include "program/ProgramControls.h"

namespace talvora {

ProgramControls::ProgramControls(Form& form, const LineLayout& layout)
    : WritingControls(form, layout), Rcachhoc("Rcachhoc", form, layout) {
  form.add(Rcachhoc, Layer::Guide);
}

} // namespace talvora
