// A control is anything that stands on the form: a surface, a button, a frame, a label, a panel.
#pragma once

#include "platform/Input.h"
#include "platform/TextStyle.h"
#include "surface/SurfacePoint.h"

#include <functional>
#include <string>
#include <utility>

namespace talvora {

class Control;

enum class ControlKind { Plain, Frame, Image, Label, Panel, Button, Surface };

/// What about a control has changed, for whoever paints it.
enum class ControlChange { Place, Text, Look, Selection, Scroll };

/// The form, as its controls see it.
class ControlHost {
 public:
  virtual ~ControlHost() = default;

  /// Gives a control the keyboard; does nothing when it is hidden or disabled.
  virtual void giveFocus(Control& control) = 0;
  [[nodiscard]] virtual bool hasFocus(const Control& control) const noexcept = 0;
  /// Gives the keyboard to the next control in the tab order, or with -1 to the one before; the
  /// order is a ring.
  virtual void focusNeighbour(Control& control, int step) = 0;
  /// Called after every change that can be seen.
  virtual void controlChanged(Control& control, ControlChange change) = 0;
};

/// Place and flags of a control. All measures are twips from the form's upper left corner.
class Control {
 public:
  Control(std::string name, ControlHost& host) : name_(std::move(name)), host_(host) {}
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  [[nodiscard]] const std::string& Name() const noexcept { return name_; }
  [[nodiscard]] virtual ControlKind kind() const noexcept { return ControlKind::Plain; }

  [[nodiscard]] bool Visible() const noexcept { return visible_; }
  void Visible(bool visible);
  [[nodiscard]] bool Enabled() const noexcept { return enabled_; }
  void Enabled(bool enabled);
  [[nodiscard]] int Left() const noexcept { return left_; }
  void Left(int twips);
  [[nodiscard]] int Top() const noexcept { return top_; }
  void Top(int twips);
  [[nodiscard]] int Width() const noexcept { return width_; }
  void Width(int twips);
  [[nodiscard]] int Height() const noexcept { return height_; }
  void Height(int twips);
  [[nodiscard]] Colour BackColor() const noexcept { return backColor_; }
  void BackColor(Colour colour);

  /// Place in the tab order; 0 keeps the control out of it.
  [[nodiscard]] int TabIndex() const noexcept { return tabIndex_; }
  void TabIndex(int index) noexcept { tabIndex_ = index; }

  /// Whether the control can have the keyboard; a plate behind a page cannot.
  [[nodiscard]] bool TakesKeys() const noexcept { return takesKeys_; }
  void TakesKeys(bool takes) noexcept { takesKeys_ = takes; }

  /// Whether the pointer meets the control; it passes through any other to what lies behind.
  [[nodiscard]] virtual bool takesMouse() const noexcept { return false; }

  // -- What the learner does to the control. Points count from its upper left corner.

  /// A key goes down; `character` is 0 for a key without.
  virtual void pressKey(int /*keyCode*/, int /*shift*/, char /*character*/) {}
  virtual void releaseKey(int /*keyCode*/, int /*shift*/) {}
  virtual void moveMouse(int /*shift*/, SurfacePoint /*at*/) {}
  virtual void pressMouse(MouseButton /*button*/, int /*shift*/, SurfacePoint /*at*/) {}
  /// The pointer moves with the left button down.
  virtual void dragMouse(int /*shift*/, SurfacePoint /*at*/) {}
  /// The button came up, wherever the pointer is by then.
  virtual void releaseMouse(MouseButton /*button*/, int /*shift*/, SurfacePoint /*at*/) {}
  /// The left button came up over the control on which it had gone down.
  virtual void clickMouse() {}
  /// The second press of a double click; a control that has no double click takes it as a press.
  virtual void doubleClick(int shift, SurfacePoint at) {
    SetFocus();
    pressMouse(MouseButton::Left, shift, at);
  }
  /// Scrolls down by a distance in twips.
  virtual void scrollBy(int /*twips*/) {}

  /// Gives the control the keyboard; fails quietly when it is hidden or takes no keys.
  void SetFocus() { host_.giveFocus(*this); }

  std::function<void()> GotFocus;
  std::function<void()> LostFocus;

 protected:
  [[nodiscard]] ControlHost& host() const noexcept { return host_; }
  void changed(ControlChange change) { host_.controlChanged(*this, change); }
  /// Called when the size has changed, before the host hears of it.
  virtual void resized() {}

 private:
  template <class Value>
  void set(Value& field, Value value, ControlChange change);

  std::string name_;
  ControlHost& host_;
  bool visible_ = false;
  bool enabled_ = true;
  bool takesKeys_ = true;
  int left_ = 0;
  int top_ = 0;
  int width_ = 0;
  int height_ = 0;
  int tabIndex_ = 0;
  Colour backColor_ = 0xFFFFFF;
};

/// The control as one of a kind; null when it is none, or no control.
template <class Wanted>
[[nodiscard]] Wanted* as(Control* control) noexcept {
  return control != nullptr && control->kind() == Wanted::Kind ? static_cast<Wanted*>(control)
                                                               : nullptr;
}
template <class Wanted>
[[nodiscard]] const Wanted* as(const Control* control) noexcept {
  return control != nullptr && control->kind() == Wanted::Kind ? static_cast<const Wanted*>(control)
                                                               : nullptr;
}

/// A plain white card behind an open surface. It takes the mouse, so that a click beside the page
/// meets nothing, and leaves the keyboard where it is.
class Frame final : public Control {
 public:
  static constexpr ControlKind Kind = ControlKind::Frame;

  Frame(std::string name, ControlHost& host) : Control(std::move(name), host) { TakesKeys(false); }

  [[nodiscard]] ControlKind kind() const noexcept override { return Kind; }
  [[nodiscard]] bool takesMouse() const noexcept override { return true; }
};

/// A stretched picture.
class Image final : public Control {
 public:
  static constexpr ControlKind Kind = ControlKind::Image;

  using Control::Control;

  [[nodiscard]] ControlKind kind() const noexcept override { return Kind; }
};

/// A line of centred text that takes no keys.
class Label final : public Control {
 public:
  static constexpr ControlKind Kind = ControlKind::Label;

  using Control::Control;

  [[nodiscard]] ControlKind kind() const noexcept override { return Kind; }

  [[nodiscard]] const std::string& Caption() const noexcept { return caption_; }
  void Caption(std::string caption);
  [[nodiscard]] const FontSpec& Font() const noexcept { return font_; }
  void Font(FontSpec font);
  [[nodiscard]] Colour ForeColor() const noexcept { return foreColor_; }
  void ForeColor(Colour colour);

 private:
  std::string caption_;
  FontSpec font_;
  Colour foreColor_ = 0;
};

/// A dark translucent panel, one half of the curtain.
class Panel final : public Control {
 public:
  static constexpr ControlKind Kind = ControlKind::Panel;

  using Control::Control;

  [[nodiscard]] ControlKind kind() const noexcept override { return Kind; }

  /// Opacity from 0 to 255.
  [[nodiscard]] int Alpha() const noexcept { return alpha_; }
  void Alpha(int alpha);

 private:
  int alpha_ = 255;
};

} // namespace talvora
