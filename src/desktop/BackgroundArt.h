// The background picture: karst hills in the morning mist over a bay, and a small boat.
#pragma once

#include <QPixmap>
#include <QSize>

namespace talvora {

/// Draws the landscape in a size in device pixels. Takes some milliseconds: keep the result.
[[nodiscard]] QPixmap drawLandscape(QSize size);

} // namespace talvora
