// A picture button of the menu.
#pragma once

#include "surface/Control.h"

#include <functional>
#include <string>

namespace talvora {

/// A button that shows one of the stored bitmaps. It is the button's business which bitmap, and the
/// front's what the bitmap looks like.
class Button final : public Control {
 public:
  static constexpr ControlKind Kind = ControlKind::Button;

  using Control::Control;

  [[nodiscard]] ControlKind kind() const noexcept override { return Kind; }
  [[nodiscard]] bool takesMouse() const noexcept override { return true; }

  [[nodiscard]] const std::string& Caption() const noexcept { return caption_; }
  void Caption(std::string caption);
  [[nodiscard]] const FontSpec& Font() const noexcept { return font_; }
  void Font(FontSpec font);

  /// Number of the bitmap that the button shows: 1 to 13 and 18 are the animation's frames, 14 to
  /// 17 the rest faces.
  [[nodiscard]] int Picture() const noexcept { return picture_; }
  void Picture(int bitmap);
  /// Number of the second bitmap that the button keeps and no button shows as such.
  [[nodiscard]] int StoredPicture() const noexcept { return storedPicture_; }
  void StoredPicture(int bitmap) noexcept { storedPicture_ = bitmap; }

  std::function<void()> Click;
  std::function<void(int& KeyAscii)> KeyPress;
  std::function<void()> MouseMove;

  /// A key goes down on the button: KeyPress when it has a character, then the default action:
  /// Enter and Space click, arrows and Tab move the focus along the tab order.
  void pressKey(int keyCode, int shift, char character) override;
  void moveMouse(int shift, SurfacePoint at) override;
  void clickMouse() override;

 private:
  void actOnKey(int keyCode, int shift);

  std::string caption_;
  FontSpec font_;
  int picture_ = 0;
  int storedPicture_ = 0;
};

} // namespace talvora
