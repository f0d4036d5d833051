#include "surface/Controls.h"

#include <string>

namespace talvora {

Controls::Controls(Form& form, const LineLayout& layout)
    : Im1("Im1", form), MM("MM", form), Frame1("Frame1", form), Frame2("Frame2", form),
      Frame3("Frame3", form), Rnen3("Rnen3", form, layout), R1("R1", form, layout),
      RVP1("RVP1", form, layout), RN1("RN1", form, layout), RW1("RW1", form, layout),
      Rchon("Rchon", form, layout), RAmthanh("RAmthanh", form, layout),
      Rcachhoc("Rcachhoc", form, layout), R2("R2", form, layout), RN2("RN2", form, layout),
      RW2("RW2", form, layout), RDT("RDT", form, layout), RABCD("RABCD", form, layout),
      Rsai("Rsai", form, layout), Rviet("Rviet", form, layout), Rxep("Rxep", form, layout),
      Rnen2("Rnen2", form, layout), RHDBT("RHDBT", form, layout), RVP2("RVP2", form, layout),
      RTD("RTD", form, layout), Rnen("Rnen", form, layout), RHD("RHD", form, layout),
      RDOS("RDOS", form, layout), L1("L1", form), FC1("FC1", form), FC2("FC2", form) {
  for (int number = 1; number <= ButtonCount; ++number) {
    but_[static_cast<std::size_t>(number - 1)] =
        std::make_unique<Button>("but" + std::to_string(number), form);
  }

  form.add(Im1);
  form.add(MM);
  for (auto& button : but_)
    form.add(*button);
  // From the back to the front: a plate lies behind the surface that it backs, a text lies over the
  // list that it was opened from, and popups lie over everything that they explain.
  for (Control* control : std::initializer_list<Control*>{
           &Frame1, &R1,   &RVP1, &RN1,   &RW1,  &Rchon, &RAmthanh, &Rcachhoc, &Rnen3,  &Frame2,
           &R2,     &RN2,  &RDT,  &RABCD, &Rsai, &Rviet, &Rnen2,    &RHDBT,    &Frame3, &Rxep,
           &RW2,    &RVP2, &RTD,  &Rnen,  &RHD,  &RDOS,  &L1,       &FC1,      &FC2}) {
    form.add(*control);
  }
  // A click on the rim around a page must not take the keyboard away from it, nor does the hint bar
  // have a use for keys.
  for (Surface* plate : {&Rnen, &Rnen2, &Rnen3, &RDOS})
    plate->TakesKeys(false);
}

} // namespace talvora
