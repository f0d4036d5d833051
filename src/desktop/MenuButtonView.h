// The view of a menu button: its picture, its caption over it, a ring when it has the keyboard.
#pragma once

#include "desktop/ButtonArt.h"
#include "desktop/ControlView.h"
#include "surface/Button.h"
#include "surface/Form.h"

namespace talvora {

class MenuButtonView final : public ControlView {
 public:
  MenuButtonView(const Button& button, ButtonArt& art, const Form& form, QWidget* parent)
      : ControlView(button, parent), button_(button), art_(art), form_(form) {}

  [[nodiscard]] const Button& button() const noexcept { return button_; }
  /// The caption in letters.
  [[nodiscard]] QString caption() const;
  [[nodiscard]] bool buttonHasFocus() const noexcept { return form_.hasFocus(button_); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintCaption(QPainter& painter) const;
  void paintRing(QPainter& painter) const;

  const Button& button_;
  ButtonArt& art_;
  const Form& form_;
};

} // namespace talvora
