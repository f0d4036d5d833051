// How the signs of a page are painted that say what its colours say.
#pragma once

#include "desktop/TextShaper.h"
#include "fronts/PageTraits.h"

class QPainter;

namespace talvora {

/// Paints the signs of a paragraph; the painter's origin is the paragraph's, its unit the twip.
void paintMarks(QPainter& painter, const ShapedParagraph& paragraph, PageTraits::BlueSign sign);

} // namespace talvora
