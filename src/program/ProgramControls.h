// The surface of the guide, and so all controls of the form.
#pragma once

#include "writing/WritingControls.h"

namespace talvora {

struct ProgramControls : WritingControls {
  ProgramControls(Form& form, const LineLayout& layout);

  Surface Rcachhoc; ///< how-to-study guide
};

} // namespace talvora
