// The glyph tables of the two Vietnamese fonts, and UTF-8 one character at a time.
#include "text/GlyphMap.h"

#include "text/Bytes.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace talvora {

namespace {

// The upper half of "x1", sixteen bytes a row. A letter that stands in its Windows-1252 place keeps
// it; the rest of the places are Vietnamese, and eight have the letters of pronunciations that
// ASCII lacks in place of capitals that the fonts can do without.
constexpr std::u16string_view x1Upper = u"ÁÀẢƒẠĂ†‡ẮÂẤẦæẬðÊ"           // 0x80
                                        u"Ế‘’“”•–—Ề™ăθÍÓÔư"           // 0x90
                                        u"\u00A0ỐợỒ¤ỵ¦ŋỘ©əỚʃ\u00AD®Ở" // 0xA0
                                        u"°±ÚỦƯʒ¶·ỪʌỰÝ¼½¾Ị"           // 0xB0
                                        u"ằắẳẵặỷỡểềếễệầấẩậ"           // 0xC0
                                        u"Đẫồốổỗộơữừứửựớờở"           // 0xD0
                                        u"àáâãạảẻẽèéêẹìíỉị"           // 0xE0
                                        u"đĩòóôõọỏũùúủụýỳỹ";          // 0xF0
static_assert(x1Upper.size() == 128);

/// A letter and the bytes that show it in the VNI rule, written as Windows-1252 shows them.
struct VniLetter {
  char16_t letter;
  std::string_view bytes;
};

using namespace literals;

constexpr std::array<VniLetter, 130> vniLetters = {{
    {u'á', "aù"_bytes}, {u'à', "aø"_bytes}, {u'ả', "aû"_bytes}, {u'ã', "aõ"_bytes},
    {u'ạ', "aï"_bytes}, {u'â', "aâ"_bytes}, {u'ấ', "aá"_bytes}, {u'ầ', "aà"_bytes},
    {u'ẩ', "aå"_bytes}, {u'ẫ', "aã"_bytes}, {u'ậ', "aä"_bytes}, {u'ă', "aê"_bytes},
    {u'ắ', "aé"_bytes}, {u'ằ', "aè"_bytes}, {u'ẳ', "aú"_bytes}, {u'ẵ', "aü"_bytes},
    {u'ặ', "aë"_bytes}, {u'é', "eù"_bytes}, {u'è', "eø"_bytes}, {u'ẻ', "eû"_bytes},
    {u'ẽ', "eõ"_bytes}, {u'ẹ', "eï"_bytes}, {u'ê', "eâ"_bytes}, {u'ế', "eá"_bytes},
    {u'ề', "eà"_bytes}, {u'ể', "eå"_bytes}, {u'ễ', "eã"_bytes}, {u'ệ', "eä"_bytes},
    {u'ỉ', "æ"_bytes},  {u'ĩ', "ó"_bytes},  {u'ị', "ò"_bytes},  {u'ó', "où"_bytes},
    {u'ò', "oø"_bytes}, {u'ỏ', "oû"_bytes}, {u'õ', "oõ"_bytes}, {u'ọ', "oï"_bytes},
    {u'ô', "oâ"_bytes}, {u'ố', "oá"_bytes}, {u'ồ', "oà"_bytes}, {u'ổ', "oå"_bytes},
    {u'ỗ', "oã"_bytes}, {u'ộ', "oä"_bytes}, {u'ơ', "ô"_bytes},  {u'ớ', "ôù"_bytes},
    {u'ờ', "ôø"_bytes}, {u'ở', "ôû"_bytes}, {u'ỡ', "ôõ"_bytes}, {u'ợ', "ôï"_bytes},
    {u'ú', "uù"_bytes}, {u'ù', "uø"_bytes}, {u'ủ', "uû"_bytes}, {u'ũ', "uõ"_bytes},
    {u'ụ', "uï"_bytes}, {u'ư', "ö"_bytes},  {u'ứ', "öù"_bytes}, {u'ừ', "öø"_bytes},
    {u'ử', "öû"_bytes}, {u'ữ', "öõ"_bytes}, {u'ự', "öï"_bytes}, {u'ý', "yù"_bytes},
    {u'ỳ', "yø"_bytes}, {u'ỷ', "yû"_bytes}, {u'ỹ', "yõ"_bytes}, {u'ỵ', "î"_bytes},
    {u'đ', "ñ"_bytes},  {u'Á', "AÙ"_bytes}, {u'À', "AØ"_bytes}, {u'Ả', "AÛ"_bytes},
    {u'Ã', "AÕ"_bytes}, {u'Ạ', "AÏ"_bytes}, {u'Â', "AÂ"_bytes}, {u'Ấ', "AÁ"_bytes},
    {u'Ầ', "AÀ"_bytes}, {u'Ẩ', "AÅ"_bytes}, {u'Ẫ', "AÃ"_bytes}, {u'Ậ', "AÄ"_bytes},
    {u'Ă', "AÊ"_bytes}, {u'Ắ', "AÉ"_bytes}, {u'Ằ', "AÈ"_bytes}, {u'Ẳ', "AÚ"_bytes},
    {u'Ẵ', "AÜ"_bytes}, {u'Ặ', "AË"_bytes}, {u'É', "EÙ"_bytes}, {u'È', "EØ"_bytes},
    {u'Ẻ', "EÛ"_bytes}, {u'Ẽ', "EÕ"_bytes}, {u'Ẹ', "EÏ"_bytes}, {u'Ê', "EÂ"_bytes},
    {u'Ế', "EÁ"_bytes}, {u'Ề', "EÀ"_bytes}, {u'Ể', "EÅ"_bytes}, {u'Ễ', "EÃ"_bytes},
    {u'Ệ', "EÄ"_bytes}, {u'Ỉ', "Æ"_bytes},  {u'Ĩ', "Ó"_bytes},  {u'Ị', "Ò"_bytes},
    {u'Ó', "OÙ"_bytes}, {u'Ò', "OØ"_bytes}, {u'Ỏ', "OÛ"_bytes}, {u'Õ', "OÕ"_bytes},
    {u'Ọ', "OÏ"_bytes}, {u'Ô', "OÂ"_bytes}, {u'Ố', "OÁ"_bytes}, {u'Ồ', "OÀ"_bytes},
    {u'Ổ', "OÅ"_bytes}, {u'Ỗ', "OÃ"_bytes}, {u'Ộ', "OÄ"_bytes}, {u'Ơ', "Ô"_bytes},
    {u'Ớ', "ÔÙ"_bytes}, {u'Ờ', "ÔØ"_bytes}, {u'Ở', "ÔÛ"_bytes}, {u'Ỡ', "ÔÕ"_bytes},
    {u'Ợ', "ÔÏ"_bytes}, {u'Ú', "UÙ"_bytes}, {u'Ù', "UØ"_bytes}, {u'Ủ', "UÛ"_bytes},
    {u'Ũ', "UÕ"_bytes}, {u'Ụ', "UÏ"_bytes}, {u'Ư', "Ö"_bytes},  {u'Ứ', "ÖÙ"_bytes},
    {u'Ừ', "ÖØ"_bytes}, {u'Ử', "ÖÛ"_bytes}, {u'Ữ', "ÖÕ"_bytes}, {u'Ự', "ÖÏ"_bytes},
    {u'Ý', "YÙ"_bytes}, {u'Ỳ', "YØ"_bytes}, {u'Ỷ', "YÛ"_bytes}, {u'Ỹ', "YÕ"_bytes},
    {u'Ỵ', "Î"_bytes},  {u'Đ', "Ñ"_bytes},
}};

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
