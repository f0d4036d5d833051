// The desk around the program: screen, clipboard, what is installed, boxes, and a screen reader.
#pragma once

#include "platform/Boxes.h"
#include "platform/Desk.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSize>
#include <QWidget>

#include <functional>

namespace talvora {

/// The size of the virtual screen, in pixels, for a real screen: 768 high and as wide as the real
/// screen's shape says, between 1024 and 1366; a lower real screen is taken as it is.
[[nodiscard]] QSize virtualScreenFor(QSize realScreen);

class DesktopScreen final : public Screen {
 public:
  explicit DesktopScreen(QSize size) : size_(size) {}

  [[nodiscard]] int pixelWidth() const override { return size_.width(); }
  [[nodiscard]] int pixelHeight() const override { return size_.height(); }
  /// Of two pictures within a fraction of a frame no eye sees the first: the second one then comes
  /// when events run, together with what else there is by then.
  void Refresh() override;
  void RefreshStep() override;

  /// Paints at once what has changed; set by the window.
  std::function<void()> refresh = [] {};

 private:
  void paint();

  QSize size_;
  QElapsedTimer sincePicture_;   ///< since the end of the last painting; invalid before the first
  QElapsedTimer sinceFirstStep_; ///< invalid until something has moved
  qint64 nextStep_ = 0;          ///< ns since the first step of the movement
};

/// Whoever filled it. It is cleared with every key, but the window system is troubled only when
/// something has come there since.
class DesktopClipboard final : public Clipboard {
 public:
  void clear() override;

 private:
  QObject watch_; ///< ends the watch on the clipboard with this object
  bool watching_ = false;
  bool mayHoldSomething_ = true;
};

/// Fonts and the speech engine are built in, so that there is nothing to install.
class DesktopInstallation final : public Installation {
 public:
  void installFonts() override {}
  [[nodiscard]] bool speechEngineInstalled() const override { return true; }
  [[nodiscard]] bool englishVoiceInstalled() const override { return true; }
  void run(const std::string& program) override;
};

class DesktopBoxes final : public Boxes {
 public:
  BoxAnswer ask(std::string_view text, std::string_view title, BoxAnswer byDefault) override;
  void tell(std::string_view text) override;

  /// What a box stands over; set by the window.
  QWidget* owner = nullptr;
  /// Called ahead of every box; set by the window.
  std::function<void()> opening = [] {};
};

class DesktopNarrator final : public Narrator {
 public:
  void messageShown(const std::string&, int) override {}
  void messageTakenDown() override {}
  void frameShown(int, int) override {}
  void curtainOpened(const std::string&) override {}
  void wordTaken(const std::string& word, WordTaken outcome, int count) override;
  void answerJudged(Verdict verdict) override;

  /// Shows a short text for a moment where it is in nobody's way; set by the window.
  std::function<void(const QString&)> sign = [](const QString&) {};
  /// Says a short text to a screen reader; set by the window.
  std::function<void(const QString&)> say = [](const QString&) {};
};

/// A message box with a text of the program's own bytes, on top of `owner`.
void showFailure(const std::string& message, QWidget* owner);

} // namespace talvora
