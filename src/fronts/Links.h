// Which words of a page answer to a click by leading somewhere, so that the pointer becomes a hand.
#pragma once

#include "surface/FormInput.h"
#include "surface/Surface.h"

namespace talvora {

/// Whether a click at a point of a surface, in twips, opens, chooses or turns over something; a
/// word that is merely looked up is no link.
[[nodiscard]] bool isLink(const Surface& surface, SurfacePoint at);

/// The caret behind which the next lesson that an explanation names begins, past `caret`, and from
/// the top again; -1 when it names none. A caret of -1 starts at the top.
[[nodiscard]] int nextLessonLink(const Surface& explanation, int caret);

enum class PointerShape { Arrow, Hand, Text };

/// What the pointer looks like where it is.
[[nodiscard]] PointerShape pointerShape(const FormInput& input);

} // namespace talvora
