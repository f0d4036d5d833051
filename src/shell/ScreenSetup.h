// The screen class, the measures that follow from it, and where every surface stands at the start.
#pragma once

#include "shell/Controls.h"
#include "shell/Pages.h"
#include "surface/Form.h"
#include "surface/State.h"

namespace talvora {

class ScreenSetup {
 public:
  ScreenSetup(Form& form, Controls& controls, Pages& pages, Measures& measures);

  /// Sets `RongMH` and `CaoMH` from the screen's size in pixels.
  void measureScreen(int pixelWidth, int pixelHeight);
  /// Gives the form and its background the screen's size.
  void placeForm();
  /// Chooses the screen class and pads the caption, which so comes to stand near the middle.
  void LapCoChu();
  /// Mode 4 slides by a sixteenth of the screen.
  void adjustSlideStep();
  /// The text font on every surface that the sections fill.
  void setTextFont();
  /// Back colours, parked places, shared measures and font sizes of the surfaces.
  void parkSurfaces();
  /// Size and place of the card behind a standard text surface.
  void measureCard();
  /// Takes the plate `Rnen3` off, as it was at the start: below the screen, white and empty.
  /// Whoever needs it shows it wherever it stands.
  void parkPlate();

 private:
  void shareMeasures();
  void parkOffScreen();
  void setFontSizes();

  Form& form_;
  Controls& controls_;
  const Pages& pages_;
  Measures& measures_;
};

} // namespace talvora
