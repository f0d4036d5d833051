#include "shell/ScreenSetup.h"

#include "surface/Looks.h"
#include "text/Rounding.h"

#include <string>

namespace talvora {

namespace {

struct ScreenClass {
  int CoNut;
  int CoChu;
  int PhanTramRong;
  int BuocTruot;
  int captionBlanks;
};

// Every width of 12005 or more takes the third class: larger screens were never told apart, and
// that is meant.
ScreenClass screenClassOf(int RongMH) {
  if (RongMH < 12000) return {9, 13, 75, 150, 50};
  if (RongMH < 12005) return {10, 15, 85, 200, 80};
  return {13, 20, 76, 300, 110};
}

double sizeOf(FontStep step, double CoChu) {
  switch (step) {
  case FontStep::Smaller:
    return CoChu - 1;
  case FontStep::Larger:
    return CoChu + 2;
  case FontStep::Same:
  case FontStep::AsItIs:
    break;
  }
  return CoChu;
}

} // namespace

ScreenSetup::ScreenSetup(Form& form, Controls& controls, Pages& pages, Measures& measures)
    : form_(form), controls_(controls), pages_(pages), measures_(measures) {
  pages.add({.surface = controls.Rnen3});
}

void ScreenSetup::measureScreen(int pixelWidth, int pixelHeight) {
  measures_.CaoMH = pixelHeight * TwipsPerPixel * 97 / 100;
  measures_.RongMH = pixelWidth * TwipsPerPixel;
}

void ScreenSetup::placeForm() {
  form_.Height(measures_.CaoMH);
  form_.Width(measures_.RongMH);
  Image& background = controls_.Im1;
  background.Width(measures_.RongMH);
  background.Height(measures_.CaoMH);
  background.Left(0);
  background.Top(0);
  background.Visible(true);
}

void ScreenSetup::LapCoChu() {
  const ScreenClass screenClass = screenClassOf(measures_.RongMH);
  measures_.CoNut = screenClass.CoNut;
  measures_.CoChu = screenClass.CoChu;
  measures_.PhanTramRong = screenClass.PhanTramRong;
  measures_.BuocTruot = screenClass.BuocTruot;
  adjustSlideStep();
  measures_.KhoangDem = std::string(static_cast<std::size_t>(screenClass.captionBlanks), ' ');
  measures_.TieuDeE = measures_.KhoangDem + form_.Caption();
  form_.Caption(measures_.TieuDeE);
}

void ScreenSetup::adjustSlideStep() {
  if (measures_.KieuTruot == 4) measures_.BuocTruot = measures_.RongMH / 16;
}

void ScreenSetup::setTextFont() {
  for (const Page& page : pages_.all()) {
    if (page.textFont) page.surface.FontName("x1");
  }
}

void ScreenSetup::parkSurfaces() {
  for (const Page& page : pages_.all()) {
    if (page.paper) page.surface.BackColor(*page.paper);
  }
  measures_.MauNenHD = controls_.RHD.BackColor();
  shareMeasures();
  parkOffScreen();
  setFontSizes();
}

void ScreenSetup::shareMeasures() {
  Measures& m = measures_;
  m.RongBai = Round(static_cast<double>(m.RongMH) * m.PhanTramRong / 100);
  m.CaoBai = Round(static_cast<double>(m.CaoMH) * 80 / 100);
  m.LeTraiBai = Round((m.RongMH - m.RongBai) / 2.0);
  m.LeTrenBai = Round((m.CaoMH - m.CaoBai) / 2.0);
  m.Phan12 = m.RongMH / 12;
  m.Phan3 = m.RongMH / 3;
  m.Phan6 = m.Phan3 / 2;
}

void ScreenSetup::parkOffScreen() {
  const int right = measures_.RongMH + 2;
  const int below = measures_.parkedTop();
  controls_.MM.Left(right);
  controls_.L1.Top(below);
  for (const Page& page : pages_.all()) {
    if (page.parked == Parked::BelowAndBeside) page.surface.Left(right);
    if (page.parked != Parked::WhereItIs) page.surface.Top(below);
  }
}

void ScreenSetup::setFontSizes() {
  form_.FontSize(sizeOf(FontStep::Smaller, measures_.CoChu));
  for (const Page& page : pages_.all()) {
    if (page.font != FontStep::AsItIs) page.surface.FontSize(sizeOf(page.font, measures_.CoChu));
    if (page.bold) page.surface.FontBold(true);
  }
}

void ScreenSetup::measureCard() {
  Measures& m = measures_;
  m.RongKhung = m.RongBai + Round(m.RongMH * 2 / 100.0);
  m.CaoKhung = m.CaoBai;
  m.LeTrenKhung = Round((m.CaoMH - m.CaoKhung) / 2.0);
  m.LeTraiKhung = Round((m.RongMH - m.RongKhung) / 2.0);
}

void ScreenSetup::parkPlate() {
  Surface& plate = controls_.Rnen3;
  plate.Visible(false);
  plate.Text("");
  plate.BackColor(look::White);
  plate.Top(measures_.parkedPlateTop());
}

} // namespace talvora
