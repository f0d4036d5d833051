// The faces that stand for the program's font names. They are embedded; a face is loaded when it is
// first asked for.
#pragma once

#include "platform/TextStyle.h"

#include <QFont>

namespace talvora {

/// Loads the faces of the menu. To be called once there is an application.
void loadFonts();

/// The face of a font name: a Century Schoolbook for "Vni-centur", a plain sans for any other. Its
/// pixel is a twip, so that what is laid out in it is measured in twips.
[[nodiscard]] QFont fontFor(const FontSpec& font);
[[nodiscard]] QFont fontFor(const CharStyle& style);

/// Height of a line in a face: what the face asks for, and at least what Vietnamese capitals with
/// their marks need.
[[nodiscard]] double lineHeightOf(const QFont& font);

} // namespace talvora
