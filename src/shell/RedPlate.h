// The red plate that shows as a rim around a box of text.
#pragma once

#include "surface/State.h"
#include "surface/Surface.h"

namespace talvora {

/// Whether the rim is as wide at the right as at the left, or wider.
enum class PlateRim { Even, WiderAtRight };

/// Puts the plate behind a box that stands at its place, and shows it.
void fitRedPlate(Surface& plate, const Surface& box, const Measures& measures, PlateRim rim);

} // namespace talvora
