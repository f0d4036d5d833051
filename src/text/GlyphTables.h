// Which letters the bytes of the two Vietnamese fonts show, as tables.
#pragma once

#include "text/Bytes.h"

#include <array>
#include <string_view>

namespace talvora::glyphs {

// The upper half of "x1", sixteen bytes a row. A letter that stands in its Windows-1252 place keeps
// it; the rest of the places are Vietnamese, and eight have the letters of pronunciations that
// ASCII lacks in place of capitals that the fonts can do without.
inline constexpr std::u16string_view x1Upper = u"ÁÀẢƒẠĂ†‡ẮÂẤẦæẬðÊ"           // 0x80
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

inline constexpr std::array<VniLetter, 130> vniLetters = {{
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

} // namespace talvora::glyphs
