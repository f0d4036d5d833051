// The menu: 18 buttons in two columns, their fonts, faces and places, and their appearing one by
// one while the program loads.
#pragma once

#include "platform/Random.h"
#include "shell/Controls.h"
#include "shell/Steering.h"
#include "surface/Form.h"
#include "surface/State.h"

namespace talvora {

class MENU {
 public:
  MENU(Form& form, Controls& controls, const Measures& measures, Steering& steering, Random& random)
      : form_(form), controls_(controls), measures_(measures), steering_(steering),
        random_(random) {}

  /// The captions as stored, in the button font's encoding.
  void setCaptions();
  /// Font of the buttons, and for now the form's own.
  void DatFontNut();
  /// Picks one of two looks for the menu at random and shows the rest faces.
  void DatHinhNut();
  /// Lays the buttons out in two columns.
  void XepNut();
  /// Places one button, in twips.
  void DatNut(Button& button, int height, int width, int top, int left, int tabIndex);
  /// One tick of the loading progress: the next button appears. Above 18 ticks nothing happens.
  void TienTrinhNap();
  /// Makes the buttons appear that too few ticks have left hidden.
  void finishProgress();

  void declare(Variables& variables) const;

  int NutHo = 0;   ///< gap between buttons, twips
  int NutCao = 0;  ///< button height, twips
  int NutRong = 0; ///< button width, twips

 private:
  Form& form_;
  Controls& controls_;
  const Measures& measures_;
  Steering& steering_;
  Random& random_;
  int ticks_ = 0;
};

} // namespace talvora
