#include "shell/MENU.h"

#include "text/Rounding.h"
#include "text/Vietnamese.h"

#include <array>
#include <string>

namespace talvora {

namespace {

constexpr int RowsPerColumn = 9;

// Left and right column take turns while the menu appears.
constexpr std::array<int, Controls::ButtonCount> AppearingOrder = {
    1, 18, 2, 17, 3, 16, 4, 15, 5, 14, 6, 13, 7, 12, 8, 11, 9, 10};

} // namespace

void MENU::setCaptions() {
  const std::array<std::string_view, Controls::ButtonCount> captions = {
      "BÀI ĐỌC"_vni,
      "TỪ VỰNG CỦA BẠN"_vni,
      "VĂN PHẠM"_vni,
      "LUYỆN NGHE"_vni,
      "PHÂN TÍCH CÂU"_vni,
      "LUYỆN VIẾT"_vni,
      "LUYỆN NÓI"_vni,
      "CÀI ĐẶT"_vni,
      "HƯỚNG DẪN CÁCH HỌC"_vni,
      "ACTICLES"_vni,
      "CONDITIONAL"_vni,
      "TENSE"_vni,
      "PREPOSITION && INDIOMS"_vni,
      "PRELIMINARY TEST A"_vni,
      "PRELIMINARY TEST B"_vni,
      "TOEFL TEST"_vni,
      "TOEFL VOCABULARY"_vni,
      "B VOCABULARY"_vni};
  for (int number = 1; number <= Controls::ButtonCount; ++number) {
    Button& button = controls_.but(number);
    button.Caption(std::string(captions[static_cast<std::size_t>(number - 1)]));
    button.StoredPicture(number);
  }
}

void MENU::DatFontNut() {
  const FontSpec font{"Vni-centur", static_cast<double>(measures_.CoNut), false};
  for (int number = 1; number <= Controls::ButtonCount; ++number)
    controls_.but(number).Font(font);
  form_.FontSize(measures_.CoNut + 3);
}

void MENU::DatHinhNut() {
  random_.seedFromClock();
  int drawn = 0;
  // Only the last of the hundred draws counts; that is meant.
  for (int round = 1; round <= 100; ++round) {
    random_.seedFromClock();
    drawn = random_.upTo(round + 10);
  }
  if (drawn % 3 == 0) {
    controls_.but(16).StoredPicture(controls_.but(14).StoredPicture());
    controls_.but(17).StoredPicture(controls_.but(15).StoredPicture());
  }
  controls_.but(1).Picture(controls_.but(16).StoredPicture());
  controls_.but(18).Picture(controls_.but(17).StoredPicture());
  for (int number = 2; number <= 9; ++number) {
    controls_.but(number).Picture(controls_.but(1).Picture());
  }
  for (int number = 10; number <= 17; ++number) {
    controls_.but(number).Picture(controls_.but(18).Picture());
  }
}

void MENU::XepNut() {
  const double W = measures_.RongMH;
  const double H = measures_.CaoMH;
  const int block = Round(W / 100 * 55);
  const int blockTop = Round(H / 100 * 22);
  NutHo = Round(W / 100 * 1);
  NutCao = Round(H / 100 * 4);
  NutRong = Round((block - 3 * NutHo) / 2.0);
  steering_.ChuotY = blockTop + NutCao + NutCao / 2;
  steering_.ChuotX1 = Round((W - block) / 2 + NutHo);
  steering_.ChuotBuoc = Round(H / 100 * 6);
  for (int number = 1; number <= RowsPerColumn; ++number) {
    DatNut(controls_.but(number), NutCao, NutRong,
           steering_.ChuotY + (number - 1) * steering_.ChuotBuoc, steering_.ChuotX1, number);
  }
  steering_.ChuotX2 = controls_.but(1).Left() + controls_.but(1).Width() + NutHo;
  for (int number = RowsPerColumn + 1; number <= Controls::ButtonCount; ++number) {
    DatNut(controls_.but(number), NutCao, NutRong,
           steering_.ChuotY + (number - RowsPerColumn - 1) * steering_.ChuotBuoc, steering_.ChuotX2,
           number);
  }
}

void MENU::DatNut(Button& button, int height, int width, int top, int left, int tabIndex) {
  button.Height(height);
  button.Width(width);
  button.Top(top);
  button.Left(left);
  button.TabIndex(tabIndex);
}

void MENU::TienTrinhNap() {
  ++ticks_;
  if (ticks_ > Controls::ButtonCount) return;
  controls_.but(AppearingOrder[static_cast<std::size_t>(ticks_ - 1)]).Visible(true);
  form_.Refresh();
}

void MENU::finishProgress() {
  while (ticks_ < Controls::ButtonCount)
    TienTrinhNap();
}

void MENU::declare(Variables& variables) const {
  variables.add("NutHo", &NutHo);
  variables.add("NutCao", &NutCao);
  variables.add("NutRong", &NutRong);
}

} // namespace talvora
