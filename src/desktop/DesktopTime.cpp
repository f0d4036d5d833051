#include "desktop/DesktopTime.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

// About sixty pictures a second, as most screens show.
constexpr qint64 FrameNs = 16'666'667;

// A picture that nobody has looked at for so long moves no more: it would cost the machine's
// battery.
constexpr qint64 RestAfterMs = 20'000;

/// Lets events run in a loop for a time, waiting for them where there are none.
void runFor(QEventLoop& loop, int ms) {
  QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

} // namespace

Flow DesktopClock::Sleep(int ms) {
  if (ms > 0 && !closingIsWanted()) {
    gate_.shut();
    QEventLoop loop;
    QEventLoop* const outer = std::exchange(sleeping_, &loop);
    runFor(loop, ms);
    sleeping_ = outer;
    gate_.open();
  }
  return closingIsWanted() ? Flow::Interrupt : Flow::Continue;
}

void DesktopClock::wake() {
  if (sleeping_ != nullptr) sleeping_->quit();
}

Flow DesktopEventLoop::letEventsRun() {
  gate_.beginPump();
  QCoreApplication::processEvents();
  gate_.endPump();
  return flow();
}

void DesktopEventLoop::rest() {
  gate_.beginPump();
  while (programRuns() && gate_.quietMs() > RestAfterMs)
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  gate_.endPump();
}

Flow DesktopEventLoop::letEventsRunUntilNextFrame() {
  if (gate_.quietMs() > RestAfterMs) {
    rest();
    return flow();
  }
  const qint64 now = timer_.nsecsElapsed();
  const qint64 wait = std::clamp<qint64>(nextFrame_ - now, 0, FrameNs);
  nextFrame_ = now + wait + FrameNs;
  gate_.beginPump();
  QEventLoop loop;
  runFor(loop, static_cast<int>(wait / 1'000'000));
  gate_.endPump();
  return flow();
}

} // namespace talvora
