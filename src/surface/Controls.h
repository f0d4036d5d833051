// Every control of the form, made once and kept for the run.
#pragma once

#include "surface/Button.h"
#include "surface/Control.h"
#include "surface/Form.h"
#include "surface/Surface.h"

#include <array>
#include <memory>

namespace talvora {

/// The members are named after their sections: R for a rich text, then the section's letters.
struct Controls {
  Controls(Form& form, const LineLayout& layout);

  /// The menu button of a number from 1 to 18.
  [[nodiscard]] Button& but(int number) { return *but_.at(static_cast<std::size_t>(number - 1)); }
  static constexpr int ButtonCount = 18;

  Image Im1;                    ///< background picture
  Control MM;                   ///< the multimedia control, which never shows
  Frame Frame1, Frame2, Frame3; ///< white card behind the open surface
  Surface Rnen3;                ///< backing plate of the exercises
  Surface R1;                   ///< list of titles
  Surface RVP1;                 ///< list of rule lessons
  Surface RN1;                  ///< list of units
  Surface RW1;                  ///< list of writing texts
  Surface Rchon;                ///< your vocabulary
  Surface RAmthanh;             ///< settings
  Surface Rcachhoc;             ///< how-to-study guide
  Surface R2;                   ///< reading text
  Surface RN2;                  ///< listening text
  Surface RW2;                  ///< writing
  Surface RDT;                  ///< fill-in exercise
  Surface RABCD;                ///< multiple choice
  Surface Rsai;                 ///< find the mistake
  Surface Rviet;                ///< dictation
  Surface Rxep;                 ///< word ordering
  Surface Rnen2, RHDBT;         ///< explanation box and its plate
  Surface RVP2;                 ///< rule lesson
  Surface RTD;                  ///< look-up list
  Surface Rnen, RHD;            ///< dictionary popup, timed message, and the red plate
  Surface RDOS;                 ///< hint bar
  Label L1;                     ///< caption line over the hint bar
  Panel FC1, FC2;               ///< halves of the curtain

 private:
  std::array<std::unique_ptr<Button>, ButtonCount> but_;
};

} // namespace talvora
