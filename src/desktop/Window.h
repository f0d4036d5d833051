// The one window: the virtual screen scaled to the real one, with the caption strip on top of the
// form, and the keyboard.
#pragma once

#include "desktop/CaptionStrip.h"
#include "desktop/DesktopMachine.h"
#include "desktop/EventBridge.h"
#include "desktop/FontWarmer.h"
#include "desktop/FormView.h"
#include "desktop/Teller.h"
#include "fronts/MouseKeys.h"
#include "program/Program.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

namespace talvora {

class Window final : public QWidget {
 public:
  Window(DesktopMachine& machine, Program& program, EventBridge& bridge);

  /// The system wants the program to end: it ends, without a question, as soon as what it is doing
  /// has come to its end.
  void closeAtOnce();
  /// The system's session is about to end: what the learner has done is stored, and being asked to
  /// close within the next minute is no question any more.
  void sessionEnds();
  /// Brings the window to the front.
  void comeUp();
  /// Makes the letters of the pages ready at once, which the window else does bit by bit.
  void warmFontsNow();

  /// The pixel of the virtual screen that shows a point of the form.
  [[nodiscard]] PixelPoint pixelOf(SurfacePoint point) const {
    return virtualScreen().toPixel(point);
  }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  /// Tab belongs to the form.
  bool focusNextPrevChild(bool) override { return false; }

 private:
  void connectStrip();
  void connectView();
  void connectMachine();
  void connectInput();
  /// Paints at once what has changed; the first time it brings the window up.
  void refresh();
  void showOnScreen();
  /// Makes the letters of the pages ready, bit by bit.
  void warmFonts();
  void arrange();
  void askToClose();
  /// Notes a wish while the program sleeps, and wakes it; true when it was asleep.
  bool waitsFor(bool& wish);
  /// Sends a whole stroke of a key to this window.
  void sendStroke(Qt::Key key);
  /// Animates the button that has the focus and the pointer, if it is not animated yet.
  void settleHover();
  /// The modifiers that are down, as the Shift argument of events has them.
  [[nodiscard]] int shiftDown() const;

  [[nodiscard]] double pixelsPerTwip() const { return scale_ / 15.0; }
  [[nodiscard]] VirtualScreen virtualScreen() const { return program_.form().virtualScreen(); }

  DesktopMachine& machine_;
  Program& program_;
  EventBridge& bridge_;
  FormView* view_ = nullptr;       ///< owned by this widget
  CaptionStrip* strip_ = nullptr;  ///< owned by this widget
  Announcer* announcer_ = nullptr; ///< owned by this widget
  MouseKeys mouseKeys_;
  FontWarmer warmer_;
  QTimer warmSoon_;          ///< runs out when the letters of what is open are to be made ready
  double scale_ = 1;         ///< real pixels to a virtual one
  QPointF origin_;           ///< of the virtual screen in the window
  bool closeWanted_ = false; ///< the window was closed while the program slept
  QElapsedTimer sessionEnd_; ///< since the session was about to end
  bool endWanted_ = false;   ///< the system wanted the program ended while it slept
};

} // namespace talvora
