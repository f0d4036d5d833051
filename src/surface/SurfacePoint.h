// A point in twips.
#pragma once

namespace talvora {

/// A point of a surface or of the form, in twips from its upper left corner.
struct SurfacePoint {
  int x = 0;
  int y = 0;

  friend bool operator==(const SurfacePoint&, const SurfacePoint&) = default;
};

} // namespace talvora
