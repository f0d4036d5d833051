#include "desktop/DesktopTime.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace talvora {

namespace {

// About sixty pictures a second, as most screens show.
constexpr qint64 FrameNs = 16'666'667;

/// Lets events run for a time, waiting for them where there are none.
void runFor(int ms) {
  QEventLoop loop;
  QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
}

} // namespace

void DesktopClock::Sleep(int ms) {
  if (ms <= 0) return;
  gate_.shut();
  runFor(ms);
  gate_.open();
}

Flow DesktopEventLoop::letEventsRun() {
  gate_.beginPump();
  QCoreApplication::processEvents();
  gate_.endPump();
  return flow();
}

Flow DesktopEventLoop::letEventsRunUntilNextFrame() {
  const qint64 now = timer_.nsecsElapsed();
  const qint64 wait = std::clamp<qint64>(nextFrame_ - now, 0, FrameNs);
  nextFrame_ = now + wait + FrameNs;
  gate_.beginPump();
  runFor(static_cast<int>(wait / 1'000'000));
  gate_.endPump();
  return flow();
}

} // namespace talvora
