// The background picture: karst hills in the morning mist over a bay, and a small boat.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QSize>

namespace talvora {

/// The program's sign for title bars and task lists: the boat on its bay.
[[nodiscard]] QPixmap drawSign(int size);

/// Draws the landscape in a size in device pixels. Takes some milliseconds, on any thread: keep the
/// result.
[[nodiscard]] QImage drawLandscape(QSize size);
/// Writes the program's name into the landscape; on the thread that has the fonts.
void writeName(QPixmap& landscape);

} // namespace talvora
