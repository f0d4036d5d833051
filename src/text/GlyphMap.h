// Which letter a byte shows in each of the program's fonts, and back. Only a front, which draws
// glyphs, the pack compiler, which reads UTF-8 sources, and the learner's files that people read
// use this; the program's own logic never converts its texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace talvora {

/// What a font name stands for.
enum class Encoding {
  X1,         ///< the text font "x1"
  Vni,        ///< "Vni-centur": base letter followed by its mark
  Windows1252 ///< any other font
};

[[nodiscard]] Encoding encodingOf(std::string_view fontName);

/// The letter that a byte shows in "x1".
[[nodiscard]] char16_t x1Letter(char byte);

/// The letters that bytes show in an encoding, as UTF-16. In `X1` and `Windows1252` the result has
/// exactly one unit for each byte; in `Vni` a base letter and its mark become one letter.
[[nodiscard]] std::u16string toUnicode(std::string_view bytes, Encoding encoding);

/// The byte that shows a letter in "x1"; a Vietnamese capital that has no byte is written with its
/// small letter. Empty when the font has no byte for the letter.
[[nodiscard]] std::optional<char> x1Byte(char32_t letter);

/// The bytes that show a letter in the VNI rule, one or two; empty when it has none.
[[nodiscard]] std::optional<std::string> vniBytes(char32_t letter);

/// Decodes one UTF-8 character at `at` and moves `at` behind it; empty when it is not valid there.
[[nodiscard]] std::optional<char32_t> nextCodePoint(std::string_view utf8, std::size_t& at);

/// Appends a code point as UTF-8.
void appendUtf8(std::string& utf8, char32_t codePoint);

} // namespace talvora
