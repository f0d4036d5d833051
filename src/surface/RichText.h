// A small reader of rich text (RTF): what guide pages and quiz templates are stored in.
#pragma once

#include "platform/TextStyle.h"
#include "surface/StyledText.h"

#include <string_view>

namespace talvora {

/// True when a file's text begins as rich text does.
[[nodiscard]] bool looksLikeRichText(std::string_view text) noexcept;

/// Reads font, size, bold, italic, underline, colours, alignment, indent, bullets, paragraphs, tabs
/// and characters by their code; skips every other control word and the destinations that hold no
/// text. Damaged input gives what could be read of it.
[[nodiscard]] StyledText readRichText(std::string_view rtf, const FontSpec& defaults);

} // namespace talvora
