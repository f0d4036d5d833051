#include "fronts/ButtonMeaning.h"

#include <array>

namespace talvora {

bool hasEnglishCaption(const Button& button) {
  constexpr int FirstOfRightColumn = 10;
  return button.TabIndex() >= FirstOfRightColumn;
}

std::u16string_view meaningOf(const Button& button) {
  static const std::array<const char16_t*, 18> meanings = {
      u"Đọc bài tiếng Anh, bấm vào từ để tra nghĩa và nghe",
      u"Những từ bạn đã lưu, kèm câu chứa từ",
      u"Các bài văn phạm; bấm phải để đánh dấu bài cần luyện",
      u"Nghe rồi chọn câu đúng",
      u"Bài đọc được phân tích từng từ",
      u"Phần này đang xây dựng",
      u"Các bài hội thoại để luyện nói",
      u"Bật tắt âm thanh và chọn tốc độ đọc",
      u"Cách dùng chương trình và cách học",
      u"Bài tập về mạo từ: a, an, the",
      u"Bài tập về câu điều kiện",
      u"Bài tập về các thì",
      u"Bài tập về giới từ và thành ngữ",
      u"Bài kiểm tra sơ cấp A",
      u"Bài kiểm tra sơ cấp B",
      u"Bài thi thử kiểu TOEFL",
      u"Từ vựng cho kỳ thi TOEFL",
      u"Từ vựng trình độ B"};
  const auto number = static_cast<std::size_t>(button.TabIndex());
  if (number < 1 || number > meanings.size()) return {};
  return meanings[number - 1];
}

} // namespace talvora
