// The openers of an entry's lines, which the writer and the reader of entries share.
#pragma once

#include "pack/Entry.h"

#include <string>
#include <string_view>

namespace talvora::pack::notation {

inline constexpr std::string_view exampleOpener = "_^vd: ";

/// "_^cụm: " in the text font.
[[nodiscard]] const std::string& phraseOpener();

/// "danh từ, không đếm được" in the text font, or the English name of the class.
[[nodiscard]] const std::string& label(WordClass wordClass, Language language, NounUse use);

} // namespace talvora::pack::notation
