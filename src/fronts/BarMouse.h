// The mouse on scroll bars: the thumb is dragged, and the trough leads on by pages for as long as
// it is held. What happens there never reaches the surface beneath.
#pragma once

#include "fronts/ScrollBar.h"
#include "surface/Form.h"

namespace talvora {

/// Points are twips of the form.
class BarMouse {
 public:
  BarMouse(Form& form, const LineLayout& layout) : form_(form), layout_(layout) {}

  /// The surface under whose scroll bar a point lies, or null; one whose whole text is in view has
  /// none.
  [[nodiscard]] Surface* surfaceAt(SurfacePoint at) const;
  /// Takes hold of the bar at a point: of its thumb, or of its trough, which goes on by a page.
  /// False where there is no bar.
  bool press(SurfacePoint at);
  /// Brings a thumb that is held to the pointer.
  void drag(SurfacePoint at);
  /// Goes on by a page to where the pointer is, up or down, where a trough is held.
  void goOnByPage();
  void release() noexcept { held_ = nullptr; }
  /// The surface whose bar is held, or null.
  [[nodiscard]] const Surface* held() const noexcept { return held_; }
  [[nodiscard]] bool holdsTrough() const noexcept { return held_ != nullptr && !dragged_; }

 private:
  Form& form_;
  const LineLayout& layout_;
  Surface* held_ = nullptr;
  SurfacePoint pointer_;
  bool dragged_ = false; ///< the thumb, not the trough
  double grip_ = 0;      ///< from the thumb's upper edge to the pointer
};

} // namespace talvora
