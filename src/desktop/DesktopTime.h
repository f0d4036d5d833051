// Time on the desktop: real waits that keep the window alive, and events between them.
#pragma once

#include "desktop/InputGate.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <functional>

namespace talvora {

class DesktopClock final : public Clock {
 public:
  explicit DesktopClock(InputGate& gate) : gate_(gate) { timer_.start(); }

  [[nodiscard]] std::int64_t nowMs() const override { return timer_.elapsed(); }
  [[nodiscard]] Flow Sleep(int ms) override;
  /// Ends the sleep that is on, so that a wish is heard.
  void wake();

  /// Whether the program is wanted closed; set by the window.
  std::function<bool()> closingIsWanted = [] { return false; };

 private:
  InputGate& gate_;
  QElapsedTimer timer_;
  QEventLoop* sleeping_ = nullptr; ///< the loop of the sleep that is on
};

class DesktopEventLoop final : public EventLoop {
 public:
  explicit DesktopEventLoop(InputGate& gate) : gate_(gate) { timer_.start(); }

  Flow letEventsRun() override;
  Flow letEventsRunUntilNextFrame() override;

  /// False when the program has ended, so that its loops must too; set by the window.
  std::function<bool()> programRuns = [] { return true; };

 private:
  /// Waits without a picture, for as long as nothing is touched.
  void rest();
  [[nodiscard]] Flow flow() const { return programRuns() ? Flow::Continue : Flow::Interrupt; }

  InputGate& gate_;
  QElapsedTimer timer_;
  qint64 nextFrame_ = 0; ///< ns of the timer
};

} // namespace talvora
