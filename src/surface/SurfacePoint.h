// Where something is on a surface.
#pragma once

namespace talvora {

/// A point on a surface, in twips from its upper left corner.
struct SurfacePoint {
  int x = 0;
  int y = 0;

  friend bool operator==(const SurfacePoint&, const SurfacePoint&) = default;
};

} // namespace talvora
