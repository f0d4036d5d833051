#include "shell/HintTexts.h"

#include "text/Vietnamese.h"

namespace talvora {

namespace {

constexpr auto hints = std::to_array<Hint>({
    {"Rviet",
     HintCase::Always,
     {"Mũi tên Trái=Nghe lại;  Mũi tên phải=Nhắc từ;  Nhấp chuột=Tra từ"_x1,
      "Mũi tên lên=lùi 1 câu;  Mũi tên xuống=tới 1 câu;  Esc=thoát."_x1}},
    {"RHD",
     HintCase::Always,
     {"Chuột phải/Esc=thoát; Nhấp chuột=Tra từ"_x1, "Gõ phím=Tra từ (Sử dụng Roll chuột)"_x1}},
    {"RTD", HintCase::Always, {"Chuột phải/ESC=thoát,Xóa từ gõ"_x1, "(Sử dụng Roll chuột)"_x1}},
    {"RW2",
     HintCase::Always,
     {"Chuột phải= Giảng cách viết; 2Chuột Trái=Xem câu Anh"_x1, "Gõ phím=Tra từ; Esc=thoát."_x1}},
    {"R2",
     HintCase::NotAnalysis,
     {"Chuột Trái/Ctrl= Tra từ; Chuột phải= đọc lại; 2Chuột Trái=Xem câu dịch"_x1,
      "Enter=Chọn từ; F6= Xếp từ; F9= đọc cả bài; Gõ phím=Tra từ; Esc=thoát."_x1}},
    {"R2",
     HintCase::Analysis,
     {"Chuột Trái/Ctrl= Tra từ; Chuột phải= Giảng ngữ pháp; 2Chuột Trái=Xem câu dịch"_x1,
      "Enter=Chọn từ; F6= Xếp từ; F9= đọc cả bài; Esc=thoát."_x1}},
    {"R1",
     HintCase::Always,
     {"Enter/Chuột Trái=Mở bài đọc; Chuột phải= Nghe Viết; Mũi tên Trái/phải=Tiêu đề"_x1,
      "Esc=thoát; Gõ phím=Tra từ (Sử dụng Roll chuột)"_x1}},
    {"Rchon",
     HintCase::Always,
     {"Chuột Trái=Tra từ; 2 Chuột Trái=Xem câu"_x1,
      "Esc=thoát; Gõ phím=Tra từ (Sử dụng Roll chuột)"_x1}},
    {"RVP2",
     HintCase::Always,
     {"Chuột Trái=Tra từ; Ctrl=Tra từ; Chuột phải= đọc lại"_x1, "Gõ phím=Tra từ; Esc=thoát."_x1}},
    {"RVP1",
     HintCase::Always,
     {"Enter/Chuột Trái=Mở bài đọc; Mũi tên Trái/phải=Tiêu đề"_x1, "Gõ phím=Tra từ; Esc=thoát"_x1}},
    {"Rxep",
     HintCase::Always,
     {"Chuột phải=chọn từ; Chuột Trái=Tra từ; Enter=đáp án,chuyển câu"_x1,
      "F6=bỏ từ xếp; Gõ phím=Tra từ; Esc=thoát"_x1}},
    {"RN2",
     HintCase::Always,
     {"Chuột Trái=Chọn câu; Chuột phải=Nghe lại; Next=Qua câu mới"_x1, "Esc=thoát"_x1}},
    {"Rsai",
     HintCase::Always,
     {"Chuột Trái=Chọn câu; Chuột phải=Xem hướng dẫn"_x1,
      "Nhấn chuột phải vào câu Anh = câu dịch; Chuột Trái\\Ctrl=Tra từ"_x1}},
    {"RABCD",
     HintCase::Always,
     {"Nhấn chuột Trái vào ( )=Xem đáp án; Nhấn chuột phải vào ( )=Xem hướng dẫn"_x1,
      "Nhấn chuột phải vào câu Anh = Xem câu dịch"_x1}},
    {"RDT",
     HintCase::ItemJudged,
     {"chuột Trái (__) = đáp án; Chuột phải (__) = hướng dẫn"_x1,
      "Chuột phải câu Anh = câu dịch; Chuột Trái\\Ctrl=Tra từ"_x1, "Gõ phím=Tra từ"_x1}},
    {"RDT",
     HintCase::ItemOpen,
     {"Chuột Trái=Tra từ; Chuột phải=Xem câu dịch; Next=Qua câu mới"_x1,
      "Enter=đáp án (Rồi Nhấn F2)"_x1, " Esc = thoát"_x1}},
});

} // namespace

std::span<const Hint> hintTexts() {
  return hints;
}

} // namespace talvora
