// A box over the window, in the size and the face of its pages at every resolution.
#pragma once

#include <QDialog>
#include <QString>

class QHBoxLayout;

namespace talvora {

class MessageCard final : public QDialog {
 public:
  /// `detail` stands below the text in small letters; it may be empty. Without an owner that is on
  /// the screen the box measures itself by the screen.
  MessageCard(const QString& title, const QString& text, const QString& detail, QWidget* owner);

  enum class IsDefault { No, Yes };
  /// Adds a button; `answer` is what `exec` then returns. Esc answers with 0.
  void addButton(const QString& caption, int answer, IsDefault isDefault);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] QString buttonStyle() const;

  QWidget* owner_;
  double pixel_; ///< real pixels to one of a screen 768 high
  QHBoxLayout* buttons_ = nullptr;
};

} // namespace talvora
