// A button of the caption strip: a quiet text or a drawn sign that lights up under the pointer.
#pragma once

#include <QAbstractButton>

namespace talvora {

enum class StripSign { None, Minimise, Close };

class StripButton final : public QAbstractButton {
 public:
  /// `name` is what a screen reader says. A button without a sign shows its text.
  StripButton(StripSign sign, const QString& name, QWidget* parent);

  /// How wide the button is in a strip of that height, in pixels.
  [[nodiscard]] int widthIn(int height) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void paintSign(QPainter& painter) const;

  StripSign sign_;
};

} // namespace talvora
