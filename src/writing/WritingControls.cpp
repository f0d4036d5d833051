#include "writing/WritingControls.h"

namespace talvora {

WritingControls::WritingControls(Form& form, const LineLayout& layout)
    : ListeningControls(form, layout), RW1("RW1", form, layout), RW2("RW2", form, layout) {
  form.add(RW1, Layer::WritingList);
  form.add(RW2, Layer::WritingTask);
}

} // namespace talvora
