#include "sound/SoundControls.h"

namespace talvora {

SoundControls::SoundControls(Form& form, const LineLayout& layout)
    : DictionaryControls(form, layout), RAmthanh("RAmthanh", form, layout) {
  form.add(RAmthanh, Layer::Settings);
}

} // namespace talvora
