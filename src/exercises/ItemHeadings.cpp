#include "exercises/ItemHeadings.h"

#include "text/Bytes.h"

#include <algorithm>
#include <iterator>

namespace talvora {

namespace {

struct Heading {
  int code;
  std::string_view bank;
  std::string_view ownTest;
};

constexpr Heading headings[] = {
    {2, "ÐiÈn vào: THE, A, AN (hoÄc không ðiÈn)"_bytes,
     "ÐiÈn vào: THE, A, AN  (hoÄc không ðiÈn):"_bytes},
    {3, "ÐiÈn vào: A, AN, ONE (HoÄc b÷ trÓng)"_bytes,
     "ÐiÈn vào: A, AN, ONE (HoÄc b÷ trÓng):"_bytes},
    {5, "THE SIMPLE PRESENT \\ THE PRESENT CONTINUOUS?"_bytes, "THE SIMPLE PRESENT:"_bytes},
    {6, "THE SIMPLE PAST \\ THE PAST CONTINUOUS?"_bytes, "THE PRESENT PERFECT:"_bytes},
    {7, "THE SIMPLE PAST \\ THE PRESENT PERFECT?"_bytes, "THE PRESENT PERFECT CONTINUOUS:"_bytes},
    {8, "THE PRESENT PERFECT \\ THE PRESENT PERFECT CONTINUOUS?"_bytes, "THE SIMPLE PAST:"_bytes},
    {9, "THE SIMPLE PAST \\ THE PAST PERFECT \\ THE PAST PERFECT CONTINUOUS?"_bytes,
     "THE PAST CONTINUOUS:"_bytes},
    {10, "Hãy chön câu ðúng ðÇ thay vào ______"_bytes,
     "Hãy chön câu ðúng ðÇ thay vào _________"_bytes},
    {11, "Hãy chön câu ðúng:"_bytes, "Hãy chön câu ðúng:"_bytes},
    {12, "Hãy chön chÕ sai trong câu sau ðây:"_bytes, "Sau ðÖng tÙ này là:"_bytes},
    {13, "ÐiÈn TÙ thích h¢p vào chÕ trÓng hoÄc không ðiÈn:"_bytes,
     "ÐiÈn TÙ thích h¢p vào chÕ trÓng hoÄc không ðiÈn:"_bytes},
    {14, {}, "THE SIMPLE PRESENT TENSE (Dùng tr¢ ðÖng tÙ):"_bytes},
    {15, {}, "THE SIMPLE PRESENT TENSE (không dùng tr¢ ðÖng tÙ):"_bytes},
    {16, {}, "Khong Viet tat!"_bytes},
    {17, {}, "Viet tat!"_bytes},
    {18, {}, "THE PRESENT CONTINUOUS:"_bytes},
    {19, {}, "THE PAST PERFECT:"_bytes},
    {20, {}, "THE PAST PERFECT CONTINUOUS:"_bytes},
    {21, {}, "THE SIMPLE FUTURE:"_bytes},
    {22, {}, "THE FUTURE CONTINUOUS:"_bytes},
    {23, {}, "THE FUTURE PERFECT:"_bytes},
    {24, {}, "THE FUTURE PERFECT CONTINUOUS:"_bytes},
    {25, {}, "TO BE GOING TO:"_bytes},
    {26, {}, "Thêm ing vào ðÖng tÙ:"_bytes},
    {27, {}, "ÐÖng tÙ BÍt Quy TÁc:"_bytes},
    {28, {}, "THE SIMPLE PAST (Không dùng tr¢ tÙ):"_bytes},
    {29, {}, "THE SIMPLE PAST (Dùng tr¢ tÙ):"_bytes},
    {30, {}, "CONDITIONAL (Câu ðiÈu kiËn):"_bytes},
    {31, {}, "Câu hô khßi:"_bytes},
};

} // namespace

std::string_view ChonDeMuc(int code, ItemOrigin origin) {
  const auto heading = std::find_if(std::begin(headings), std::end(headings),
                                    [code](const Heading& each) { return each.code == code; });
  if (heading == std::end(headings)) return {};
  return origin == ItemOrigin::Bank ? heading->bank : heading->ownTest;
}

} // namespace talvora
