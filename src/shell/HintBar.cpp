#include "shell/HintBar.h"

#include "surface/Looks.h"
#include "text/Rounding.h"
#include "text/Vietnamese.h"

#include <algorithm>

namespace talvora {

namespace {

constexpr int MostReminders = 3;

} // namespace

HintBar::HintBar(Form& form, Controls& controls, Pages& pages, const Measures& measures,
                 Steering& steering)
    : form_(form), controls_(controls), pages_(pages), measures_(measures), steering_(steering) {
  Surface& RDOS = controls_.RDOS;
  pages.add({.surface = RDOS, .textFont = true, .parked = Parked::BelowTheScreen});
  RDOS.MouseMove = [this, &RDOS](int, SurfacePoint) {
    RDOS.Visible(false);
    // The page that is seen, which need not be the text: the look-up list or a drill may cover it.
    pages_.focusForemost();
  };
}

void HintBar::DatRDOS() {
  const double W = measures_.RongMH;
  const double H = measures_.CaoMH;
  const int cardTop = Round((H - Round(H * 80 / 100)) / 2);
  const int cardLeft = Round((W - Round(W * measures_.PhanTramRong / 100)) / 2);
  Surface& RDOS = controls_.RDOS;
  // The text holds both high and low letters.
  RDOS.Height(form_.TextWidth("a") + form_.TextHeight("ghAIG"));
  RDOS.Width(Round(W * measures_.PhanTramRong / 100) + Round(W * 2 / 100));
  RDOS.Left(cardLeft - Round(W / 100));
  RDOS.Top(cardTop - Round(H / 100) - RDOS.Height());
  RDOS.FontSize(form_.Font().size + 1.5);

  Label& L1 = controls_.L1;
  L1.Top(RDOS.Top());
  L1.Left(RDOS.Left());
  L1.Width(RDOS.Width());
  L1.Height(RDOS.Height());
  L1.ForeColor(0);
  L1.Font({"x1", RDOS.Font().size, false});
  L1.BackColor(RDOS.BackColor());
}

void HintBar::AnRDOS(Surface& surface) {
  controls_.RDOS.Visible(false);
  DatRDOS();
  if (surface.Visible()) surface.SetFocus();
}

void HintBar::clear() {
  controls_.RDOS.Text("");
  controls_.RDOS.SelAlignment(Alignment::Centred);
}

void HintBar::NoiDungHD(Surface& surface) {
  AnRDOS(surface);
  clear();
  Surface& RDOS = controls_.RDOS;
  RDOS.SelColor(look::Blue);
  const Page* const page = pages_.find(surface);
  if (page == nullptr) return;
  const auto hint = std::find_if(page->hints.begin(), page->hints.end(),
                                 [](const Hint& each) { return !each.holds || each.holds(); });
  if (hint == page->hints.end()) return;
  for (std::size_t line = 0; line < hint->lines.size() && !hint->lines[line].empty(); ++line) {
    if (line > 0) RDOS.SelText('\r');
    RDOS.SelText(hint->lines[line]);
  }
  RDOSCao();
}

void HintBar::HuongDan(Surface& surface) {
  NoiDungHD(surface);
  if (controls_.RDOS.TextLength() > 0) controls_.RDOS.Visible(true);
}

void HintBar::showOnF2(int keyCode, Surface& surface) {
  if (keyCode == key::F2 && !controls_.RDOS.Visible()) HuongDan(surface);
}

void HintBar::RDOSCao() {
  controls_.RDOS.Height(2 * controls_.RDOS.Height());
  controls_.RDOS.Top(0);
  controls_.L1.Top(0);
  controls_.L1.ForeColor(look::Blue);
}

void HintBar::GoiYF2() {
  if (DemChay < 2 || DemGoiYF2 >= MostReminders) return;
  clear();
  Surface& RDOS = controls_.RDOS;
  RDOS.SelColor(look::Blue);
  RDOS.SelText("Nhấn Phím "_x1);
  RDOS.SelColor(look::Red);
  RDOS.SelText("F2");
  RDOS.SelColor(look::Blue);
  RDOS.SelText(" để xem cách sử dụng trong mọi lúc."_x1);
  RDOS.Visible(true);
  ++DemGoiYF2;
}

void HintBar::GoiYNghe(Surface& page) {
  steering_.ChuotGoc();
  AnRDOS(page);
  clear();
  Surface& RDOS = controls_.RDOS;
  RDOS.SelColor(look::Blue);
  RDOS.SelText("Mũi tên Trái=Nghe lại;  Mũi tên phải/xuống=Tới"_x1);
  RDOS.SelText('\r');
  RDOS.SelText("Mũi tên lên=Lui;      ESC = thoát"_x1);
  RDOSCao();
  RDOS.Visible(true);
}

void HintBar::declare(Variables& variables) const {
  variables.add("DemGoiYF2", &DemGoiYF2);
  variables.add("DemChay", &DemChay);
}

} // namespace talvora
