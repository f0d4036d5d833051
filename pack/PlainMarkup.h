// Simple markup of brackets and names as plain text.
#pragma once

#include <string>
#include <string_view>

namespace talvora::pack {

/// HTML, XDXF or Pango markup without its tags: what stands for a line's end there begins a new
/// line, letters that are written by their names or numbers become those letters. A bracket that is
/// not closed stays as it is.
[[nodiscard]] std::string withoutMarkup(std::string_view markup);

} // namespace talvora::pack
