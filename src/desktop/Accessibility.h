// What assistive technology can ask for: surfaces as texts, menu buttons as buttons.
#pragma once

namespace talvora {

/// Makes the views known to Qt's accessibility; any number of calls count as one.
void installAccessibility();

} // namespace talvora
