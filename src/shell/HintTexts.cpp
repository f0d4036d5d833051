#include "shell/HintTexts.h"

#include "text/Bytes.h"

namespace talvora {

namespace {

constexpr auto hints = std::to_array<Hint>({
    {"Rviet",
     HintCase::Always,
     {"Møi tên Trái=Nghe läi;  Møi tên phåi=NhÁc tÙ;  NhÍp chuÖt=Tra tÙ"_bytes,
      "Møi tên lên=lùi 1 câu;  Møi tên xuÓng=tÝi 1 câu;  Esc=thoát."_bytes}},
    {"RHD",
     HintCase::Always,
     {"ChuÖt phåi/Esc=thoát; NhÍp chuÖt=Tra tÙ"_bytes,
      "Gõ phím=Tra tÙ (SÛ düng Roll chuÖt)"_bytes}},
    {"RTD",
     HintCase::Always,
     {"ChuÖt phåi/ESC=thoát,Xóa tÙ gõ"_bytes, "(SÛ düng Roll chuÖt)"_bytes}},
    {"RW2",
     HintCase::Always,
     {"ChuÖt phåi= Giång cách viÉt; 2ChuÖt Trái=Xem câu Anh"_bytes,
      "Gõ phím=Tra tÙ; Esc=thoát."_bytes}},
    {"R2",
     HintCase::NotAnalysis,
     {"ChuÖt Trái/Ctrl= Tra tÙ; ChuÖt phåi= ðöc läi; 2ChuÖt Trái=Xem câu dïch"_bytes,
      "Enter=Chön tÙ; F6= XÉp tÙ; F9= ðöc cå bài; Gõ phím=Tra tÙ; Esc=thoát."_bytes}},
    {"R2",
     HintCase::Analysis,
     {"ChuÖt Trái/Ctrl= Tra tÙ; ChuÖt phåi= Giång ngØ pháp; 2ChuÖt Trái=Xem câu dïch"_bytes,
      "Enter=Chön tÙ; F6= XÉp tÙ; F9= ðöc cå bài; Esc=thoát."_bytes}},
    {"R1",
     HintCase::Always,
     {"Enter/ChuÖt Trái=Mß bài ðöc; ChuÖt phåi= Nghe ViÉt; Møi tên Trái/phåi=Tiêu ðÈ"_bytes,
      "Esc=thoát; Gõ phím=Tra tÙ (SÛ düng Roll chuÖt)"_bytes}},
    {"Rchon",
     HintCase::Always,
     {"ChuÖt Trái=Tra tÙ; 2 ChuÖt Trái=Xem câu"_bytes,
      "Esc=thoát; Gõ phím=Tra tÙ (SÛ düng Roll chuÖt)"_bytes}},
    {"RVP2",
     HintCase::Always,
     {"ChuÖt Trái=Tra tÙ; Ctrl=Tra tÙ; ChuÖt phåi= ðöc läi"_bytes,
      "Gõ phím=Tra tÙ; Esc=thoát."_bytes}},
    {"RVP1",
     HintCase::Always,
     {"Enter/ChuÖt Trái=Mß bài ðöc; Møi tên Trái/phåi=Tiêu ðÈ"_bytes,
      "Gõ phím=Tra tÙ; Esc=thoát"_bytes}},
    {"Rxep",
     HintCase::Always,
     {"ChuÖt phåi=chön tÙ; ChuÖt Trái=Tra tÙ; Enter=ðáp án,chuyÇn câu"_bytes,
      "F6=b÷ tÙ xÉp; Gõ phím=Tra tÙ; Esc=thoát"_bytes}},
    {"RN2",
     HintCase::Always,
     {"ChuÖt Trái=Chön câu; ChuÖt phåi=Nghe läi; Next=Qua câu mÝi"_bytes, "Esc=thoát"_bytes}},
    {"Rsai",
     HintCase::Always,
     {"ChuÖt Trái=Chön câu; ChuÖt phåi=Xem hŸÝng dÑn"_bytes,
      "NhÍn chuÖt phåi vào câu Anh = câu dïch; ChuÖt Trái\\Ctrl=Tra tÙ"_bytes}},
    {"RABCD",
     HintCase::Always,
     {"NhÍn chuÖt Trái vào ( )=Xem ðáp án; NhÍn chuÖt phåi vào ( )=Xem hŸÝng dÑn"_bytes,
      "NhÍn chuÖt phåi vào câu Anh = Xem câu dïch"_bytes}},
    {"RDT",
     HintCase::ItemJudged,
     {"chuÖt Trái (__) = ðáp án; ChuÖt phåi (__) = hŸÝng dÑn"_bytes,
      "ChuÖt phåi câu Anh = câu dïch; ChuÖt Trái\\Ctrl=Tra tÙ"_bytes, "Gõ phím=Tra tÙ"_bytes}},
    {"RDT",
     HintCase::ItemOpen,
     {"ChuÖt Trái=Tra tÙ; ChuÖt phåi=Xem câu dïch; Next=Qua câu mÝi"_bytes,
      "Enter=ðáp án (RÒi NhÍn F2)"_bytes, " Esc = thoát"_bytes}},
});

} // namespace

std::span<const Hint> hintTexts() {
  return hints;
}

} // namespace talvora
