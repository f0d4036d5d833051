// The program's own texts as single bytes. Source files are UTF-8; the literal maps each character
// to its Windows-1252 byte when the program is compiled.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace talvora {

namespace detail {

/// The code points of the Windows-1252 bytes 0x80 to 0x9F; every other byte shows its own code.
inline constexpr std::array<char32_t, 32> windows1252Upper = {
    0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021, 0x2C6,  0x2030, 0x160,
    0x2039, 0x152,  0x8D,   0x17D,  0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

/// The Windows-1252 byte of a code point; a character without one stops the compilation.
constexpr unsigned char windows1252Byte(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
    return static_cast<unsigned char>(codePoint);
  }
  for (std::size_t place = 0; place < windows1252Upper.size(); ++place) {
    if (windows1252Upper[place] == codePoint) return static_cast<unsigned char>(0x80 + place);
  }
  throw "a character that Windows-1252 does not have";
}

/// A UTF-8 string literal turned into bytes; no letter takes more of them than in UTF-8.
template <std::size_t Size>
struct LiteralBytes {
  std::array<char, Size> bytes{};
  std::size_t length = 0;

  /// `encode` gives the bytes of a code point.
  template <class Encode>
  constexpr void fill(const char (&utf8)[Size], Encode encode) {
    std::size_t at = 0;
    while (at + 1 < Size) {
      const auto first = static_cast<unsigned char>(utf8[at]);
      const std::size_t count = first < 0x80 ? 1 : first < 0xE0 ? 2 : 3;
      char32_t codePoint = count == 1 ? first : count == 2 ? first & 0x1FU : first & 0x0FU;
      for (std::size_t tail = 1; tail < count; ++tail) {
        codePoint = codePoint << 6 | (static_cast<unsigned char>(utf8[at + tail]) & 0x3FU);
      }
      for (const char byte : encode(codePoint))
        bytes[length++] = byte;
      at += count;
    }
  }
};

/// Such a literal as a template argument.
template <std::size_t Size>
struct ByteLiteral : LiteralBytes<Size> {
  // Implicit: the literal operator's template argument is made from the string itself.
  consteval ByteLiteral(const char (&utf8)[Size]) { // NOLINT(google-explicit-constructor)
    this->fill(utf8, [](char32_t codePoint) {
      return std::array{static_cast<char>(windows1252Byte(codePoint))};
    });
  }
};

} // namespace detail

inline namespace literals {

/// "Không tìm thÍy!"_bytes: the text's Windows-1252 bytes.
template <detail::ByteLiteral Literal>
[[nodiscard]] constexpr std::string_view operator""_bytes() {
  return {Literal.bytes.data(), Literal.length};
}

} // namespace literals

/// The character of a code from 0 to 255.
[[nodiscard]] constexpr char chr(int code) {
  return static_cast<char>(static_cast<unsigned char>(code));
}

/// The code of a character, from 0 to 255.
[[nodiscard]] constexpr int asc(char character) {
  return static_cast<unsigned char>(character);
}

} // namespace talvora
