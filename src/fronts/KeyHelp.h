// What the window adds to the hints of a page: the keys and the mouse button that are its own.
#pragma once

#include "surface/Form.h"

#include <string_view>

namespace talvora {

/// One line for what is open: empty unless the hint bar is called up or an explanation names a
/// lesson.
[[nodiscard]] std::u16string_view keyHelp(const Form& form);

/// The same for all pages, a line each.
[[nodiscard]] std::u16string_view allKeyHelp();

} // namespace talvora
