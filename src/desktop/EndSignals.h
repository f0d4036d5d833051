// The signals by which a system wants a program ended, brought into the event loop.
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace talvora {

/// SIGTERM, SIGHUP and SIGINT. The first one of a kind is passed on; a second one ends the program
/// as it would any other. One object at a time.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> wanted);
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;
  ~EndSignals();

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace talvora
