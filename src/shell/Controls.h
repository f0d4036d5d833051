// The controls that the shell itself shows, and the menu. Those of the sections begin with them:
// each floor's list has the one below it as its base, so that a section reaches what lies below and
// cannot name what stands above it.
#pragma once

#include "surface/Button.h"
#include "surface/Control.h"
#include "surface/Form.h"
#include "surface/SectionNumbers.h"
#include "surface/Surface.h"

#include <array>
#include <memory>

namespace talvora {

/// Made once and kept for the run. Surfaces are named after their sections: R for a rich text, then
/// the section's letters.
struct Controls {
  Controls(Form& form, const LineLayout& layout);

  /// The menu button of a section's number, from 1.
  [[nodiscard]] Button& but(int number) { return *but_.at(static_cast<std::size_t>(number - 1)); }
  static constexpr int ButtonCount = section::LastBank;

  Image Im1;                    ///< background picture
  Control MM;                   ///< the multimedia control, which never shows
  Frame Frame1, Frame2, Frame3; ///< white card behind the open surface
  Surface Rnen3;                ///< backing plate of the exercises
  Surface Rnen, RHD;            ///< dictionary popup, timed message, and the red plate
  Surface RDOS;                 ///< hint bar
  Label L1;                     ///< caption line over the hint bar
  Panel FC1, FC2;               ///< halves of the curtain

 private:
  std::array<std::unique_ptr<Button>, ButtonCount> but_;
};

} // namespace talvora
