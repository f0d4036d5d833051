// Calls that run from the shell up to modules that stand above it. The program fills them in when
// it wires the modules.
#pragma once

#include <functional>

namespace talvora {

struct UpwardCalls {
  /// Closes the dictionary popup and gives the focus back to whoever had it.
  std::function<void()> DongNghia = [] {};
};

} // namespace talvora
