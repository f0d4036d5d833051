// The window's own caption strip: the typed word, the title with the score or the item's number, a
// notice, and buttons that lead back, show the hint, minimise and close.
#pragma once

#include <QLabel>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace talvora {

enum class StripSign;
class StripButton;

/// Where the way back leads from.
enum class StripPlace { Menu, Page };

class CaptionStrip final : public QWidget {
 public:
  explicit CaptionStrip(QWidget* parent);

  /// The caption as it stands, with the padding that brings its second half to the middle: what is
  /// ahead of the padding is the typed word. A title that is new is shown with emphasis for two
  /// seconds, and a title that stood for less makes way as a notice.
  void setCaption(const QString& caption);
  /// Shows a short notice where a typed word stands, for two seconds.
  void notice(const QString& text);
  /// The text that stands there when no notice does; empty for none.
  void setHelp(const QString& text);
  /// What the button of the hints says about itself, a line each.
  void setHintTip(const QString& text);
  void setPlace(StripPlace place);

  [[nodiscard]] QString typedWord() const { return typed_->text(); }
  [[nodiscard]] QString title() const { return title_->text(); }
  [[nodiscard]] QString notice() const { return notice_->text(); }

  /// What the buttons do.
  std::function<void()> goBack = [] {};
  std::function<void()> showHint = [] {};
  std::function<void()> minimiseWindow = [] {};
  std::function<void()> closeWindow = [] {};
  /// Called with what is to be told to those who do not see the strip.
  std::function<void(const QString&)> told = [](const QString&) {};

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  StripButton* makeButton(StripSign sign, const QString& name, std::function<void()>& deed);
  QLabel* makeText(QRgb colour);
  void setTitle(const QString& title);
  void emphasise(bool emphasised);
  /// Gives every part its font and its place.
  void arrange();
  [[nodiscard]] QFont textFont(bool bold) const;
  /// Where the mark behind the typed word stands.
  [[nodiscard]] QRect typingMark() const;

  // Owned by this widget.
  QLabel* typed_;
  QLabel* notice_;
  QLabel* title_;
  StripButton* back_;
  StripButton* hint_;
  StripButton* minimise_;
  StripButton* close_;
  QTimer emphasis_; ///< runs while the title is new
  QTimer noticeEnd_;
  QString help_;
  QString firstTitle_; ///< the program's name, which is no news
};

} // namespace talvora
