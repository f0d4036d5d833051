// The tutor in its real window, in this process, for benchmarks: events go in as Qt delivers them,
// and each deed is timed to the end of the painting that it leads to.
#pragma once

#include "PackCopy.h"

#include "desktop/DesktopMachine.h"
#include "desktop/EventBridge.h"
#include "desktop/Window.h"
#include "program/Program.h"

#include <QEvent>
#include <QObject>
#include <QPoint>

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace talvora::bench {

/// Sees when a widget of the application has been painted.
class PaintWatch final : public QObject {
 public:
  PaintWatch();

  void forget() noexcept { seen_ = false; }
  [[nodiscard]] bool seen() const noexcept { return seen_; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool seen_ = false;
};

class OpenTutor {
 public:
  /// Starts the tutor on a pack and opens a text of its reading list, by its number from 1.
  OpenTutor(const std::filesystem::path& pack, int text);

  [[nodiscard]] Controls& controls() { return program_.controls(); }
  /// The caret in the middle of each word of three letters or more that is in view on `R2`.
  [[nodiscard]] std::vector<int> wordsInView();

  void movePointerTo(Surface& surface, int caret);
  void click(Surface& surface, int caret);
  /// Turns the wheel with the pointer over the middle of a surface; below 0 is down.
  void wheel(Surface& surface, int notches);
  /// A whole key stroke; 0 is a key without a character.
  void key(int qtKey, char character = 0, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Lets the window come to rest.
  void settle();
  /// Milliseconds from a deed to the end of the painting that follows it; below 0 when it changes
  /// no picture.
  double timeToPicture(const std::function<void()>& deed);
  /// How long the opening of a text of the reading list takes up to the pause under the curtain,
  /// and how long the curtain then takes, both in milliseconds; below 0 when it did not open. The
  /// list is on show before and behind.
  struct Opening {
    double text = -1;
    double curtain = -1;
  };
  Opening timeOpening();

 private:
  void startUp();
  void openText(int text);
  [[nodiscard]] QPoint pixelOf(const Surface& surface, SurfacePoint at);
  void sendMouse(QEvent::Type type, QPoint global, Qt::MouseButton button);

  PackCopy pack_;
  DesktopMachine machine_;
  Program program_;
  EventBridge bridge_;
  Window window_;
  PaintWatch paints_;
  /// When the program last asked for a painting and had it, since the list was forgotten.
  std::vector<std::chrono::steady_clock::time_point> refreshed_;
};

/// What this process holds in memory, in MB.
[[nodiscard]] double residentMegabytes();

} // namespace talvora::bench
