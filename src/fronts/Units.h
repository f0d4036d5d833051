// The letters that the program's bytes show, as UTF-16, for fronts and for those who hear a page.
#pragma once

#include "surface/Button.h"
#include "surface/Surface.h"

#include <string>
#include <string_view>

namespace talvora {

/// The letters that bytes show in a font, exactly one UTF-16 unit a byte: what a byte adds to the
/// letter of another one, or does not show at all, becomes a unit without width.
[[nodiscard]] std::u16string unitsOf(std::string_view bytes, std::string_view fontName);

/// A mark of a sentence stands beside the blank that is to be seen, ahead of a title or behind a
/// tab: it takes no room there. Between two letters it is the only gap.
void hideSentenceMarks(std::u16string& units);

/// What stands on a button.
[[nodiscard]] std::u16string captionOf(const Button& button);

/// The letters between two carets; what ends a line is '\n'.
[[nodiscard]] std::u16string lettersOf(const Surface& surface, int from, int to);
/// What is told of a surface that has come up: the beginning of its text.
[[nodiscard]] std::u16string announcementOf(const Surface& surface);

} // namespace talvora
