// The screen that the program sees, in pixels, and the form on it, in twips. The form lies below
// the caption strip.
#pragma once

#include "platform/Input.h"
#include "surface/SurfacePoint.h"

namespace talvora {

/// Twips to a pixel of the virtual screen.
inline constexpr int TwipsPerPixel = 15;

class VirtualScreen {
 public:
  /// `captionHeight` is the caption strip's, in twips.
  explicit constexpr VirtualScreen(int captionHeight) noexcept : captionHeight_(captionHeight) {}

  /// The point of the form at a pixel's upper left corner.
  [[nodiscard]] constexpr SurfacePoint toForm(PixelPoint pixel) const noexcept {
    return {pixel.x * TwipsPerPixel, pixel.y * TwipsPerPixel - captionHeight_};
  }
  /// The pixel that shows a point of the form.
  [[nodiscard]] constexpr PixelPoint toPixel(SurfacePoint point) const noexcept {
    return {floorDivided(point.x), floorDivided(point.y + captionHeight_)};
  }

 private:
  /// A point left of the screen or above it lies on no pixel of it.
  [[nodiscard]] static constexpr int floorDivided(int twips) noexcept {
    return (twips < 0 ? twips - TwipsPerPixel + 1 : twips) / TwipsPerPixel;
  }

  int captionHeight_;
};

} // namespace talvora
