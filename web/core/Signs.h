// What the page adds to the form's own picture: the shape of the pointer, help in the caption
// strip, and what came up, for those who do not see it.
#pragma once

#include "fronts/CameUp.h"
#include "fronts/Links.h"

#include <string>

namespace talvora::web {

class Signs {
 public:
  Signs(Form& form, FormInput& input) : form_(form), input_(input), cameUp_(form) {}

  /// Tells the page what has changed since this was last called.
  void send();

 private:
  void sendPointer();
  void sendHelp();

  Form& form_;
  FormInput& input_;
  PointerShape pointer_ = PointerShape::Arrow;
  std::u16string help_;
  CameUp cameUp_;
};

} // namespace talvora::web
