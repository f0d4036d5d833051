#include "shell/Controls.h"

#include <string>

namespace talvora {

Controls::Controls(Form& form, const LineLayout& layout)
    : Im1("Im1", form), MM("MM", form), Frame1("Frame1", form), Frame2("Frame2", form),
      Frame3("Frame3", form), Rnen3("Rnen3", form, layout), Rnen("Rnen", form, layout),
      RHD("RHD", form, layout), RDOS("RDOS", form, layout), L1("L1", form), FC1("FC1", form),
      FC2("FC2", form) {
  for (int number = 1; number <= ButtonCount; ++number) {
    but_[static_cast<std::size_t>(number - 1)] =
        std::make_unique<Button>("but" + std::to_string(number), form);
  }

  form.add(Im1);
  form.add(MM);
  for (auto& button : but_)
    form.add(*button);
  form.add(Frame1, Layer::ListCard);
  form.add(Rnen3, Layer::PagePlate);
  form.add(Frame2, Layer::PageCard);
  form.add(Frame3, Layer::FrontCard);
  form.add(Rnen, Layer::PopupPlate);
  form.add(RHD, Layer::Popup);
  form.add(RDOS, Layer::HintBar);
  form.add(L1, Layer::Caption);
  form.add(FC1, Layer::LeftCurtain);
  form.add(FC2, Layer::RightCurtain);
  // A click on the rim around a page must not take the keyboard away from it, nor does the hint bar
  // have a use for keys.
  for (Surface* plate : {&Rnen, &Rnen3, &RDOS})
    plate->TakesKeys(false);
}

} // namespace talvora
