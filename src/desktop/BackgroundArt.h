// The background picture: karst hills in the morning mist over a bay, and a small boat.
#pragma once

#include <QPixmap>
#include <QSize>

namespace talvora {

/// The program's sign for title bars and task lists: the boat on its bay.
[[nodiscard]] QPixmap drawSign(int size);

/// Draws the landscape in a size in device pixels. Takes some milliseconds: keep the result.
[[nodiscard]] QPixmap drawLandscape(QSize size);

} // namespace talvora
