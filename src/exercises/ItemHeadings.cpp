#include "exercises/ItemHeadings.h"

#include "text/Vietnamese.h"

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
    {2, "Điền vào: THE, A, AN (hoặc không điền)"_x1, "Điền vào: THE, A, AN  (hoặc không điền):"_x1},
    {3, "Điền vào: A, AN, ONE (Hoặc bỏ trống)"_x1, "Điền vào: A, AN, ONE (Hoặc bỏ trống):"_x1},
    {5, "THE SIMPLE PRESENT \\ THE PRESENT CONTINUOUS?"_x1, "THE SIMPLE PRESENT:"_x1},
    {6, "THE SIMPLE PAST \\ THE PAST CONTINUOUS?"_x1, "THE PRESENT PERFECT:"_x1},
    {7, "THE SIMPLE PAST \\ THE PRESENT PERFECT?"_x1, "THE PRESENT PERFECT CONTINUOUS:"_x1},
    {8, "THE PRESENT PERFECT \\ THE PRESENT PERFECT CONTINUOUS?"_x1, "THE SIMPLE PAST:"_x1},
    {9, "THE SIMPLE PAST \\ THE PAST PERFECT \\ THE PAST PERFECT CONTINUOUS?"_x1,
     "THE PAST CONTINUOUS:"_x1},
    {10, "Hãy chọn câu đúng để thay vào ______"_x1, "Hãy chọn câu đúng để thay vào _________"_x1},
    {11, "Hãy chọn câu đúng:"_x1, "Hãy chọn câu đúng:"_x1},
    {12, "Hãy chọn chỗ sai trong câu sau đây:"_x1, "Sau động từ này là:"_x1},
    {13, "Điền Từ thích hợp vào chỗ trống hoặc không điền:"_x1,
     "Điền Từ thích hợp vào chỗ trống hoặc không điền:"_x1},
    {14, {}, "THE SIMPLE PRESENT TENSE (Dùng trợ động từ):"_x1},
    {15, {}, "THE SIMPLE PRESENT TENSE (không dùng trợ động từ):"_x1},
    {16, {}, "Khong Viet tat!"_x1},
    {17, {}, "Viet tat!"_x1},
    {18, {}, "THE PRESENT CONTINUOUS:"_x1},
    {19, {}, "THE PAST PERFECT:"_x1},
    {20, {}, "THE PAST PERFECT CONTINUOUS:"_x1},
    {21, {}, "THE SIMPLE FUTURE:"_x1},
    {22, {}, "THE FUTURE CONTINUOUS:"_x1},
    {23, {}, "THE FUTURE PERFECT:"_x1},
    {24, {}, "THE FUTURE PERFECT CONTINUOUS:"_x1},
    {25, {}, "TO BE GOING TO:"_x1},
    {26, {}, "Thêm ing vào động từ:"_x1},
    {27, {}, "Động từ Bất Quy Tắc:"_x1},
    {28, {}, "THE SIMPLE PAST (Không dùng trợ từ):"_x1},
    {29, {}, "THE SIMPLE PAST (Dùng trợ từ):"_x1},
    {30, {}, "CONDITIONAL (Câu điều kiện):"_x1},
    {31, {}, "Câu hô khởi:"_x1},
};

} // namespace

std::string_view ChonDeMuc(int code, ItemOrigin origin) {
  const auto heading = std::find_if(std::begin(headings), std::end(headings),
                                    [code](const Heading& each) { return each.code == code; });
  if (heading == std::end(headings)) return {};
  return origin == ItemOrigin::Bank ? heading->bank : heading->ownTest;
}

} // namespace talvora
