// The how-to-study guide: from its plain source to the rich text that the program opens.
#pragma once

#include "pack/Problems.h"

#include <string>
#include <string_view>

namespace talvora::pack {

/// The rich text of a guide: "# " title, "## " headings, "- " bullets, other lines paragraphs;
/// **bold** and //italic// inside a line. What is wrong is reported.
[[nodiscard]] std::string compileGuide(std::string_view text, const std::string& file,
                                       Problems& problems);

/// A text inside rich text: marks of the notation are escaped, bytes from 128 on are hexadecimal.
void appendRichText(std::string& rtf, std::string_view bytes);

/// What opens a rich text of the program: the text font at 20 points, the colours 1 of the body and
/// 2 of headings, and 3, blue.
[[nodiscard]] std::string richTextOpening();

} // namespace talvora::pack
