// A visit to every section of the program on whatever pack there is.
#pragma once

#include "learner/FindFolders.h"

#include <string>

namespace talvora::damage {

/// Opens every section, goes into its list and its pages, and uses each of them for a while. Gives
/// what ended the program, or an empty text when it went on to the last.
[[nodiscard]] std::string visit(const Folders& folders);

} // namespace talvora::damage
