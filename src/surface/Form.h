// The form: the one window as the program sees it. It knows its controls in their stacking order,
// who has the keyboard, its caption and its font.
#pragma once

#include "platform/Desk.h"
#include "platform/TextMetrics.h"
#include "surface/Control.h"
#include "surface/Layer.h"
#include "surface/Rows.h"
#include "surface/Surface.h"
#include "surface/VirtualScreen.h"

#include <span>
#include <string>
#include <vector>

namespace talvora {

/// Whoever paints the form. All calls come on the program's thread.
class FormObserver {
 public:
  virtual ~FormObserver() = default;

  virtual void controlChanged(Control& control, ControlChange change) = 0;
  virtual void focusChanged() = 0;
  virtual void captionChanged() = 0;
};

class Form final : public ControlHost {
 public:
  Form(Screen& screen, TextMetrics& metrics) : screen_(screen), metrics_(metrics) {}

  [[nodiscard]] const std::string& Caption() const noexcept { return caption_; }
  void Caption(std::string caption);
  [[nodiscard]] const FontSpec& Font() const noexcept { return font_; }
  void FontSize(double points) { font_.size = points; }

  /// Size in twips; the caption strip is not part of it.
  [[nodiscard]] int Width() const noexcept { return width_; }
  void Width(int twips) noexcept { width_ = twips; }
  [[nodiscard]] int Height() const noexcept { return height_; }
  void Height(int twips) noexcept { height_ = twips; }
  [[nodiscard]] bool Visible() const noexcept { return visible_; }
  /// Shows the form; until then a front paints nothing.
  void Show();

  /// Width and height of a text in the form's font, in twips.
  [[nodiscard]] int TextWidth(std::string_view text) const {
    return metrics_.TextWidth(text, font_);
  }
  [[nodiscard]] int TextHeight(std::string_view text) const {
    return metrics_.TextHeight(text, font_);
  }
  /// Height of the caption strip above the form, in twips.
  [[nodiscard]] int captionHeight() const {
    return screen_.pixelHeight() * TwipsPerPixel - height_;
  }
  /// Paints at once what has changed.
  void Refresh() { screen_.Refresh(); }
  /// The same for a step of a movement, at the pace of the screen.
  void RefreshStep() { screen_.RefreshStep(); }

  /// Adds a control in front of those added before. The form does not own it.
  void add(Control& control) { controls_.push_back(&control); }
  /// Adds it at its place in the stack, in front of all that have none.
  /// Throws std::logic_error when the layer is taken.
  void add(Control& control, Layer layer);
  /// Throws std::logic_error when a layer is nobody's. For the start.
  void check() const { layers_.check("layers"); }
  /// The controls from the back to the front.
  [[nodiscard]] const std::vector<Control*>& controls() const noexcept { return controls_; }
  /// The control of that name, or null.
  [[nodiscard]] Control* find(std::string_view name) const noexcept;
  /// The foremost visible control that takes the mouse at a point of the form, in twips; null where
  /// there is only background.
  [[nodiscard]] Control* controlAt(SurfacePoint point) const noexcept;

  /// The control that has the keyboard, or null. When it is hidden or disabled, the foremost
  /// surface that takes keys inherits the keyboard; null only where no surface is left.
  [[nodiscard]] Control* ActiveControl() const noexcept { return focus_; }
  /// The foremost surface that can have the keyboard and is none of those given; null where there
  /// is none.
  [[nodiscard]] Control*
  foremostSurface(std::span<const Control* const> butNot = {}) const noexcept;
  void giveFocus(Control& control) override;
  /// How often the keyboard has passed from one control to another.
  [[nodiscard]] unsigned focusMoves() const noexcept { return focusMoves_; }
  [[nodiscard]] bool hasFocus(const Control& control) const noexcept override {
    return focus_ == &control;
  }
  void focusNeighbour(Control& control, int step) override;
  void controlChanged(Control& control, ControlChange change) override;

  /// From now on a pointer that stands at a place of the screen means a control, whatever lies
  /// there, as long as the control has the keyboard.
  void steerTo(Control& control, PixelPoint place) noexcept { steered_ = {&control, place}; }
  /// The control that a pointer at a point of the form is so led to; null where it is not.
  [[nodiscard]] Control* steeredFrom(SurfacePoint point) const;
  /// The pointer has gone on, and means what lies under it.
  void endSteering() noexcept { steered_ = {}; }

  /// Delivers half a key stroke to whatever has the keyboard; `character` is 0 for a key without.
  void pressKey(int keyCode, int shift, char character);
  void releaseKey(int keyCode, int shift);

  [[nodiscard]] VirtualScreen virtualScreen() const { return VirtualScreen(captionHeight()); }

  /// Null when nobody paints.
  void observe(FormObserver* observer) noexcept { observer_ = observer; }

 private:
  struct Steered {
    Control* control = nullptr;
    PixelPoint place;
  };

  void dropFocus();
  void tellFocus();

  Screen& screen_;
  TextMetrics& metrics_;
  std::string caption_;
  FontSpec font_;
  int width_ = 0;
  int height_ = 0;
  bool visible_ = false;
  std::vector<Control*> controls_;
  Rows<Layer, Control*> layers_;
  Control* focus_ = nullptr;
  unsigned focusMoves_ = 0;
  Steered steered_;
  FormObserver* observer_ = nullptr;
};

} // namespace talvora
