// The program's Vietnamese texts, written in source as they are read: "Không tìm thấy!"_x1 has the
// bytes that show it in the text font, "BÀI ĐỌC"_vni those of the menu's font.
#pragma once

#include "text/Bytes.h"
#include "text/GlyphTables.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace talvora {

namespace detail {

// Only the literals themselves are of the compiler's time alone: clang 14 takes no function of that
// kind within another.

/// One or two bytes.
struct LetterBytes {
  char bytes[2] = {};
  std::size_t count = 0;

  constexpr LetterBytes(std::string_view text) : count(text.size()) { // NOLINT
    for (std::size_t at = 0; at < count; ++at)
      bytes[at] = text[at];
  }
  [[nodiscard]] constexpr const char* begin() const { return bytes; }
  [[nodiscard]] constexpr const char* end() const { return bytes + count; }
};

/// The byte of a letter in the text font; a letter without one stops the compilation.
constexpr LetterBytes x1BytesOf(char32_t letter) {
  char byte = static_cast<char>(letter);
  if (letter >= 0x80) {
    const std::size_t place = glyphs::x1Upper.find(static_cast<char16_t>(letter));
    if (place == std::u16string_view::npos) throw "a letter that the text font does not have";
    byte = chr(0x80 + static_cast<int>(place));
  }
  return std::string_view(&byte, 1);
}

/// The bytes of a letter in the menu's font; a letter without any stops the compilation.
constexpr LetterBytes vniBytesOf(char32_t letter) {
  for (const glyphs::VniLetter& row : glyphs::vniLetters) {
    if (row.letter == letter) return row.bytes;
  }
  // Any other letter is itself, unless its byte is that of a mark.
  const char byte = static_cast<char>(windows1252Byte(letter));
  for (const glyphs::VniLetter& row : glyphs::vniLetters) {
    if (letter >= 0x80 && row.bytes.find(byte) != std::string_view::npos) {
      throw "a letter that the menu's font does not have";
    }
  }
  return std::string_view(&byte, 1);
}

template <std::size_t Size>
struct X1Literal : LiteralBytes<Size> {
  consteval X1Literal(const char (&utf8)[Size]) { // NOLINT(google-explicit-constructor)
    this->fill(utf8, x1BytesOf);
  }
};

template <std::size_t Size>
struct VniLiteral : LiteralBytes<Size> {
  consteval VniLiteral(const char (&utf8)[Size]) { // NOLINT(google-explicit-constructor)
    this->fill(utf8, vniBytesOf);
  }
};

} // namespace detail

inline namespace literals {

/// "Không tìm thấy!"_x1: the text in the bytes of the text font.
template <detail::X1Literal Literal>
[[nodiscard]] constexpr std::string_view operator""_x1() {
  return {Literal.bytes.data(), Literal.length};
}

/// "BÀI ĐỌC"_vni: the text in the bytes of the menu's font.
template <detail::VniLiteral Literal>
[[nodiscard]] constexpr std::string_view operator""_vni() {
  return {Literal.bytes.data(), Literal.length};
}

} // namespace literals

} // namespace talvora
