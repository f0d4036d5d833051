// The openers of an entry's lines, which the writer and the reader of entries share, and the
// reader.
#pragma once

#include "pack/Entry.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack::notation {

inline constexpr std::string_view exampleOpener = "_^vd: ";

/// "_^cụm: " in the text font.
[[nodiscard]] const std::string& phraseOpener();

/// "danh từ, không đếm được" in the text font, or the English name of the class.
[[nodiscard]] const std::string& label(WordClass wordClass, Language language, NounUse use);

} // namespace talvora::pack::notation

namespace talvora::pack {

/// Where the pattern of a sense begins, at the ": " ahead of it; the end when there is none. A
/// colon within brackets is part of the gloss.
[[nodiscard]] std::size_t patternIn(std::string_view sense);

/// What entry notation holds of a head word itself.
struct OwnNotation {
  std::vector<EntryBlock> blocks;
  bool formsFirst = false; ///< the word of which it is a form stands ahead of them
};

/// Reads entry notation; there are no blocks when the word is only a form or built from other
/// words, or explained in English.
[[nodiscard]] OwnNotation readOwnNotation(std::string_view entry, std::string_view head);

} // namespace talvora::pack
