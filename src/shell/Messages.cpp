#include "shell/Messages.h"

#include "shell/RedPlate.h"
#include "surface/Looks.h"
#include "text/Rounding.h"
#include "text/Text.h"
#include "text/Vietnamese.h"

namespace talvora {

Messages::Messages(Form& form, Controls& controls, Pages& pages, const Measures& measures,
                   const UpwardCalls& upward, Clock& clock, Boxes& boxes, Narrator& narrator)
    : form_(form), controls_(controls), measures_(measures), upward_(upward), clock_(clock),
      boxes_(boxes), narrator_(narrator) {
  pages.add({.surface = controls_.RHD,
             .textFont = true,
             .font = FontStep::Smaller,
             .parked = Parked::BelowTheScreen,
             .paper = look::popup::Paper,
             .pointerName = controls_.RHD.Name(),
             .explains = true,
             .hints = {{{"Chuột phải/Esc=thoát; Nhấp chuột=Tra từ"_x1,
                         "Gõ phím=Tra từ (Sử dụng Roll chuột)"_x1}}}});
  pages.add({.surface = controls_.Rnen, .parked = Parked::BelowTheScreen});
}

void Messages::ThongBao(std::string_view text, int ms) {
  Surface& RHD = controls_.RHD;
  if (RHD.Visible()) upward_.DongNghia();
  RHD.Text("");
  RHD.SelAlignment(Alignment::Centred);
  RHD.SelColor(look::popup::Text);
  RHD.SelText("\r" + std::string(text) + "\r");
  RHD.SelStart(0);
  RHD.Top(measures_.CaoMH / 3);
  // The width of two letters stands for a line here.
  RHD.Height(3 * form_.TextWidth("AA"));
  RHD.Width(form_.TextWidth("AAAAA") + form_.TextWidth(text));
  RHD.Left(Round((measures_.RongMH - RHD.Width()) / 2.0));
  VeKhung();
  RHD.Visible(true);
  narrator_.messageShown(std::string(text), ms);
  form_.Refresh();
  if (ms <= 0) return;
  // Cut short or not, the message goes.
  static_cast<void>(clock_.Sleep(ms));
  TatThongBao();
}

void Messages::TatThongBao() {
  controls_.RHD.Text("");
  controls_.RHD.SelAlignment(Alignment::Centred);
  controls_.Rnen.Visible(false);
  controls_.RHD.Visible(false);
  narrator_.messageTakenDown();
}

void Messages::VeKhung() {
  Surface& RHD = controls_.RHD;
  RHD.Height(RHD.Height() + form_.TextWidth("  "));
  fitRedPlate(controls_.Rnen, RHD, measures_, PlateRim::Even);
}

bool Messages::XacNhan(std::string_view question, std::string_view defaultAnswer) {
  const BoxAnswer byDefault = lower(defaultAnswer) == "yes" ? BoxAnswer::Yes : BoxAnswer::No;
  return boxes_.ask(question, trim(form_.Caption()), byDefault) == BoxAnswer::Yes;
}

} // namespace talvora
