#include "fronts/PageNames.h"

#include <algorithm>
#include <array>
#include <utility>

namespace talvora {

std::u16string_view pageName(std::string_view surface) {
  using Row = std::pair<std::string_view, const char16_t*>;
  constexpr std::array names = {
      Row{"R1", u"Danh sách bài"},
      Row{"R2", u"Bài đọc"},
      Row{"Rchon", u"Từ vựng của bạn"},
      Row{"RHD", u"Nghĩa của từ"},
      Row{"RTD", u"Danh sách từ để tra"},
      Row{"RVP1", u"Danh sách bài văn phạm"},
      Row{"RVP2", u"Bài văn phạm"},
      Row{"RN1", u"Danh sách đề bài"},
      Row{"RN2", u"Bài luyện nghe"},
      Row{"Rviet", u"Nghe viết"},
      Row{"RW1", u"Danh sách bài luyện viết"},
      Row{"RW2", u"Bài luyện viết"},
      Row{"RDT", u"Bài tập điền từ"},
      Row{"RABCD", u"Bài tập chọn câu đúng"},
      Row{"Rsai", u"Bài tập tìm lỗi"},
      Row{"Rxep", u"Bài tập xếp từ"},
      Row{"RHDBT", u"Giải thích"},
      Row{"RDOS", u"Gợi ý"},
      Row{"RAmthanh", u"Cài đặt âm thanh"},
      Row{"Rcachhoc", u"Hướng dẫn cách học"},
  };
  const auto* const row = std::find_if(names.begin(), names.end(),
                                       [&](const Row& each) { return each.first == surface; });
  return row == names.end() ? std::u16string_view() : row->second;
}

} // namespace talvora
