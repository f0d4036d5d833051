// The window's own caption strip, in which the score and the typed word stand, with a close box.
#pragma once

#include <QString>
#include <QWidget>

#include <functional>

namespace talvora {

class CaptionStrip final : public QWidget {
 public:
  explicit CaptionStrip(QWidget* parent);

  /// The caption as it stands, leading blanks included: they place it near the middle.
  void setCaption(const QString& caption);

  /// The close box was clicked.
  std::function<void()> closeClicked = [] {};

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  [[nodiscard]] QRect closeBox() const;
  void setHot(bool hot);

  QString caption_;
  bool hot_ = false; ///< the pointer is over the close box
};

} // namespace talvora
