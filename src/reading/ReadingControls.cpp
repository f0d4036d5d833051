#include "reading/ReadingControls.h"

namespace talvora {

ReadingControls::ReadingControls(Form& form, const LineLayout& layout)
    : SoundControls(form, layout), R1("R1", form, layout), R2("R2", form, layout),
      Rchon("Rchon", form, layout) {
  form.add(R1, Layer::TextList);
  form.add(R2, Layer::Text);
  form.add(Rchon, Layer::Vocabulary);
}

} // namespace talvora
