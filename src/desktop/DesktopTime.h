// Time on the desktop: real waits that keep the window alive, and events between them.
#pragma once

#include "desktop/InputGate.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"

#include <QElapsedTimer>

#include <functional>

namespace talvora {

class DesktopClock final : public Clock {
 public:
  explicit DesktopClock(InputGate& gate) : gate_(gate) { timer_.start(); }

  [[nodiscard]] std::int64_t nowMs() const override { return timer_.elapsed(); }
  void Sleep(int ms) override;

 private:
  InputGate& gate_;
  QElapsedTimer timer_;
};

class DesktopEventLoop final : public EventLoop {
 public:
  explicit DesktopEventLoop(InputGate& gate) : gate_(gate) { timer_.start(); }

  Flow letEventsRun() override;
  Flow letEventsRunUntilNextFrame() override;

  /// False when the program has ended, so that its loops must too; set by the window.
  std::function<bool()> programRuns = [] { return true; };

 private:
  [[nodiscard]] Flow flow() const { return programRuns() ? Flow::Continue : Flow::Interrupt; }

  InputGate& gate_;
  QElapsedTimer timer_;
  qint64 nextFrame_ = 0; ///< ns of the timer
};

} // namespace talvora
