// The measures of the program's faces as the desktop program has them, for a front that has to
// break lines without a toolkit.
#pragma once

#include <QByteArray>

namespace talvora {

/// The measures of every face and the places where a line may break, in the form that
/// `web/core/Faces.h` reads.
[[nodiscard]] QByteArray faceMeasures();

} // namespace talvora
