#include "dictionary/DictionaryControls.h"

namespace talvora {

DictionaryControls::DictionaryControls(Form& form, const LineLayout& layout)
    : Controls(form, layout), RTD("RTD", form, layout) {
  form.add(RTD, Layer::LookUpList);
}

} // namespace talvora
