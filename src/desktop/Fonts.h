// The faces that stand for the program's font names. They are embedded; a face is loaded when it is
// first asked for.
#pragma once

#include "platform/TextStyle.h"

#include <QFont>

namespace talvora {

/// Loads the faces of the menu at once: with each face that is loaded, the toolkit forgets what it
/// has made ready of the others. To be called once there is an application.
void loadMenuFonts();
/// Loads every face.
void loadFonts();

/// Gives back the memory that reading the faces has taken up; what is read again comes from the
/// program's file again.
void letFaceMemoryGo();

/// The face of a font name: a Century Schoolbook for "Vni-centur", a plain sans for any other. Its
/// pixel is a twip, so that what is laid out in it is measured in twips.
[[nodiscard]] QFont fontFor(const FontSpec& font);
[[nodiscard]] QFont fontFor(const CharStyle& style);

/// Height of a line in a face: what the face asks for, and at least what Vietnamese capitals with
/// their marks need.
[[nodiscard]] double lineHeightOf(const QFont& font);

} // namespace talvora
