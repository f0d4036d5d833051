// The scroll bar of a surface: where its thumb stands, and which place of the text a place of the
// thumb means. A text of few paragraphs is measured exactly; of a longer one paragraphs are
// counted, so that the bar of 385,082 lines costs no more than that of ten.
#pragma once

#include "platform/LineLayout.h"
#include "surface/Surface.h"

namespace talvora {

class ScrollBar {
 public:
  ScrollBar(Surface& surface, const LineLayout& layout) : surface_(surface), layout_(layout) {}

  /// Width of the strip at the right edge that belongs to the bar and not to the text, in twips.
  static constexpr int StripWidth = 220;

  /// How much of the text is in view, and how much lies above.
  struct Extent {
    double above = 0;
    double inView = 0;
    double all = 0;
    bool scrolls = false; ///< false when all of the text is in view
  };
  [[nodiscard]] Extent extent() const;

  /// The thumb from the surface's upper edge, in twips.
  struct Thumb {
    double top = 0;
    double length = 0;
  };
  [[nodiscard]] Thumb thumb(const Extent& extent) const;

  /// Scrolls so that the thumb's upper edge comes to a height, in twips.
  void bringThumbTo(double top, const Extent& extent);
  /// Scrolls by nearly as much as is in view: down with 1, up with -1.
  void page(int direction);

 private:
  [[nodiscard]] int heightOf(int paragraph) const;
  [[nodiscard]] bool isMeasured() const;
  [[nodiscard]] ScrollPlace placeAt(double above) const;

  Surface& surface_;
  const LineLayout& layout_;
};

} // namespace talvora
