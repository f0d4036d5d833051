// The glyph tables of the two Vietnamese fonts, and UTF-8 one character at a time.
#include "text/GlyphMap.h"

#include "text/Bytes.h"
#include "text/GlyphTables.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace talvora {

namespace {

using glyphs::VniLetter;
using glyphs::vniLetters;
using glyphs::x1Upper;

char16_t windows1252Letter(char byte) {
  const int code = asc(byte);
  if (code < 0x80 || code >= 0xA0) return static_cast<char16_t>(code);
  return static_cast<char16_t>(detail::windows1252Upper[static_cast<std::size_t>(code - 0x80)]);
}

/// The row of the VNI table whose bytes open the text; a letter with a mark goes before the bare
/// one.
const VniLetter* vniLetterAt(std::string_view bytes) {
  for (std::size_t length = std::min<std::size_t>(2, bytes.size()); length > 0; --length) {
    const std::string_view head = bytes.substr(0, length);
    const auto found = std::find_if(vniLetters.begin(), vniLetters.end(),
                                    [head](const VniLetter& row) { return row.bytes == head; });
    if (found != vniLetters.end()) return &*found;
  }
  return nullptr;
}

std::u16string vniText(std::string_view bytes) {
  std::u16string text;
  while (!bytes.empty()) {
    const VniLetter* row = vniLetterAt(bytes);
    text += row != nullptr ? row->letter : windows1252Letter(bytes.front());
    bytes.remove_prefix(row != nullptr ? row->bytes.size() : 1);
  }
  return text;
}

/// True when the VNI rule gives the byte a part to play, alone or as a mark, so that it cannot
/// stand for its Windows-1252 letter.
bool takenByVni(char byte) {
  return asc(byte) >= 0x80 &&
         std::any_of(vniLetters.begin(), vniLetters.end(), [byte](const VniLetter& row) {
           return row.bytes.find(byte) != std::string_view::npos;
         });
}

/// The small letter of a Vietnamese capital; any other letter is itself.
char32_t vietnameseSmall(char32_t letter) {
  if (letter >= 0x1EA0 && letter <= 0x1EF9) return letter | 1U;
  if (letter >= 0xC0 && letter <= 0xDD) return letter + 0x20;
  switch (letter) {
  case U'Ă':
  case U'Đ':
  case U'Ĩ':
  case U'Ũ':
  case U'Ơ':
  case U'Ư':
    return letter + 1;
  default:
    return letter;
  }
}

/// Whether the capital is a letter of Vietnamese: only those may fall back on their small letter.
bool isVietnamese(char32_t letter) {
  return std::any_of(vniLetters.begin(), vniLetters.end(),
                     [letter](const VniLetter& row) { return row.letter == letter; }) ||
         letter == U'Ì' || letter == U'Í';
}

const std::unordered_map<char32_t, char>& x1Bytes() {
  static const std::unordered_map<char32_t, char> bytes = [] {
    std::unordered_map<char32_t, char> map;
    for (int code = 0; code < 256; ++code)
      map.emplace(x1Letter(chr(code)), chr(code));
    return map;
  }();
  return bytes;
}

/// How many bytes a UTF-8 character has by its first byte; 0 for a byte that opens none.
std::size_t utf8Length(unsigned first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return 2;
  if (first >= 0xE0 && first < 0xF0) return 3;
  return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

/// The least code point that may be written with that many bytes.
char32_t leastOfLength(std::size_t length) {
  constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
  return least[length];
}

} // namespace

Encoding encodingOf(std::string_view fontName) {
  if (fontName == "x1") return Encoding::X1;
  if (fontName == "Vni-centur") return Encoding::Vni;
  return Encoding::Windows1252;
}

char16_t x1Letter(char byte) {
  const int code = asc(byte);
  return code < 0x80 ? static_cast<char16_t>(code) : x1Upper[static_cast<std::size_t>(code - 0x80)];
}

std::u16string toUnicode(std::string_view bytes, Encoding encoding) {
  if (encoding == Encoding::Vni) return vniText(bytes);
  std::u16string text(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), text.begin(),
                 encoding == Encoding::X1 ? x1Letter : windows1252Letter);
  return text;
}

std::optional<char> x1Byte(char32_t letter) {
  const auto found = x1Bytes().find(letter);
  if (found != x1Bytes().end()) return found->second;
  if (!isVietnamese(letter) || vietnameseSmall(letter) == letter) return std::nullopt;
  return x1Byte(vietnameseSmall(letter));
}

std::optional<std::string> vniBytes(char32_t letter) {
  for (const VniLetter& row : vniLetters) {
    if (row.letter == letter) return std::string(row.bytes);
  }
  for (int code = 0; code < 256; ++code) {
    const char byte = chr(code);
    if (windows1252Letter(byte) != letter) continue;
    return takenByVni(byte) ? std::nullopt : std::optional(std::string(1, byte));
  }
  return std::nullopt;
}

std::optional<char32_t> nextCodePoint(std::string_view utf8, std::size_t& at) {
  if (at >= utf8.size()) return std::nullopt;
  const auto first = static_cast<unsigned char>(utf8[at]);
  const std::size_t length = utf8Length(first);
  if (length == 0 || length > utf8.size() - at) return std::nullopt;
  char32_t codePoint = length == 1 ? first : first & (0x7FU >> length);
  for (std::size_t tail = 1; tail < length; ++tail) {
    const auto byte = static_cast<unsigned char>(utf8[at + tail]);
    if ((byte & 0xC0U) != 0x80) return std::nullopt;
    codePoint = codePoint << 6 | (byte & 0x3FU);
  }
  const bool surrogate = codePoint >= 0xD800 && codePoint < 0xE000;
  if (codePoint < leastOfLength(length) || codePoint > 0x10FFFF || surrogate) return std::nullopt;
  at += length;
  return codePoint;
}

void appendUtf8(std::string& utf8, char32_t codePoint) {
  const auto tail = [codePoint](unsigned shift) {
    return static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
  };
  if (codePoint < 0x80) {
    utf8 += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    utf8 += {static_cast<char>(0xC0U | codePoint >> 6), tail(0)};
  } else if (codePoint < 0x10000) {
    utf8 += {static_cast<char>(0xE0U | codePoint >> 12), tail(6), tail(0)};
  } else {
    utf8 += {static_cast<char>(0xF0U | codePoint >> 18), tail(12), tail(6), tail(0)};
  }
}

} // namespace talvora
