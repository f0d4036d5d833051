#include "pack/create/NewSource.h"

namespace talvora::pack {

namespace {

constexpr std::string_view text =
    R"(// Một bài đọc. Dòng bắt đầu bằng hai dấu gạch chéo là lời ghi chú, người học không thấy.
// Lưu tệp là content/reading/NNN-ten-bai.txt, NNN là số chỗ trong danh sách bài đọc.
title: My Morning

// Mỗi câu một dòng; dòng bắt đầu bằng dấu bằng và một dấu cách là lời dịch của câu ngay trên.
I get up at six every morning.
= Sáng nào tôi cũng dậy lúc sáu giờ.
My sister makes tea for us.
= Chị tôi pha trà cho cả nhà.

// Một dòng trống mở một đoạn mới.
Then we walk to school together.
= Rồi chúng tôi cùng đi bộ đến trường.
)";

constexpr std::string_view lesson =
    R"(// Một bài ngữ pháp. Lưu tệp là content/lessons/NNN-ten-bai.txt.
// Tên bài không được trùng với bài khác: bài tập dẫn đến bài này bằng tên.
title: Hỏi giờ và nói giờ

// Chữ giữa hai dấu sao hiện màu đỏ.
Muốn hỏi giờ, ta dùng *What time is it?*
// Phần đứng sau hai dấu lớn hơn hiện màu xanh.
Giờ đúng >> It is + số + o'clock

// Dòng bắt đầu bằng một dấu lớn hơn là ví dụ, cả dòng màu xanh.
> It is seven o'clock.
> The shop opens at *nine* o'clock.
)";

constexpr std::string_view item =
    R"(// Bài tập điền từ. Lưu trong content/lessons/NNN-items.txt (bài tập của bài ngữ pháp NNN)
// hoặc trong content/exercises/TEN-NGAN-HANG/; một tệp có thể có nhiều bài, mỗi bài mở bằng item:
item: fill, none
hints: go, be

// Đáp án đứng trong ngoặc nhọn; hai đáp án đều đúng thì cách nhau bằng một vạch đứng.
She {goes} to school every day, and her brothers {are} students there.

// Lời gợi ý chung, hiện khi người học xin giúp.
explain:
Mỗi chủ ngữ là một người hay nhiều người?

// Lời giải thích cho từng chỗ trống, theo thứ tự.
explain 1:
*She* là ngôi thứ ba số ít nên thêm *es*.

explain 2:
*Her brothers* là số nhiều nên dùng *are*.
)";

constexpr std::string_view unit =
    R"(// Một bài nghe chọn câu. Lưu tệp là content/listening/unit-N.txt, N từ 1 đến 9.
// Câu được đọc nằm trong bài đọc số 399 + N; số ở đầu là số của câu ấy trong bài đó.
// Tên bài là câu 1, nên câu nghe đầu tiên mang số 2.
2: I usually get up at half past six.
// Dòng có dấu cộng là đáp án đúng, ba dòng có dấu trừ là đáp án sai.
+ I usually get up at half past six.
- I used to get up at half past six.
- I usually get up at half past five.
- I usually get off at half past six.
)";

constexpr std::string_view analysis =
    R"(// Phân tích một bài đọc theo từng cụm. Lưu tệp là content/analysis/NN.txt, NN từ 01 đến 11:
// bài phân tích NN giải thích bài đọc số NN + 3. Các cụm nối nhau đi hết bài, không bỏ sót.
word: My sister
class: cụm danh từ: tính từ sở hữu + danh từ số ít
position: đầu câu, trước động từ "makes"
function: chủ ngữ của câu
idea: chị tôi
needed: My sister
because: câu cần một chủ ngữ, và trước danh từ chỉ người thân có tính từ sở hữu.
// Số của bài ngữ pháp nói về điểm này; không có thì bỏ dòng này đi.
lesson: 2

word: makes
class: động từ thường, ngôi thứ ba số ít
position: sau chủ ngữ "My sister"
function: động từ chính của câu
idea: pha (trà)
needed: makes
because: chủ ngữ là ngôi thứ ba số ít nên động từ thêm "s".
)";

} // namespace

std::string_view exampleOf(SourceKind kind) {
  switch (kind) {
  case SourceKind::Text:
    return text;
  case SourceKind::Lesson:
    return lesson;
  case SourceKind::Item:
    return item;
  case SourceKind::Unit:
    return unit;
  case SourceKind::AnalysedText:
    break;
  }
  return analysis;
}

} // namespace talvora::pack
