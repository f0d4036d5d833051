#include "pack/SmallLetters.h"

#include "text/GlyphMap.h"
#include "text/Text.h"

namespace talvora::pack {

namespace {

char32_t smallLetter(char32_t letter) {
  if (letter < 0x80) return static_cast<unsigned char>(lower(static_cast<char>(letter)));
  if (letter >= 0x1EA0 && letter <= 0x1EF9) return letter | 1U;
  if (letter >= 0xC0 && letter <= 0xDD) return letter + 0x20;
  const bool paired = std::u32string_view(U"ĂĐĨŨƠƯ").find(letter) != std::u32string_view::npos;
  return paired ? letter + 1 : letter;
}

} // namespace

std::string smallUtf8(std::string_view text) {
  std::string small;
  for (std::size_t at = 0; at < text.size();) {
    const auto letter = nextCodePoint(text, at);
    if (!letter) return small;
    appendUtf8(small, smallLetter(*letter));
  }
  return small;
}

} // namespace talvora::pack
