// Qt's keys as the program's key codes.
#pragma once

#include <QKeyEvent>

namespace talvora {

/// The program's code of a key; 0 for a key that it does not know.
[[nodiscard]] int keyCodeOf(const QKeyEvent& event);
/// The bits of the Shift argument while the event's modifiers are down.
[[nodiscard]] int shiftOf(Qt::KeyboardModifiers modifiers);
/// The character that KeyPress gets for a key, 0 for none.
[[nodiscard]] char characterOf(const QKeyEvent& event);

} // namespace talvora
