// The bridge between Qt's events and the program: no exception crosses it.
#pragma once

#include "platform/FatalFailure.h"
#include "platform/Files.h"

#include <exception>
#include <functional>
#include <string>
#include <utility>

namespace talvora {

class EventBridge {
 public:
  /// What happens when an event led to a fatal failure; called at most once.
  std::function<void(const std::string& message)> onFailure;
  /// Called after every event that was delivered, with whatever came of it.
  std::function<void()> afterEvent;

  /// Runs what an event does to the program. After a failure nothing is delivered any more.
  template <class Deed>
  void deliver(Deed deed) {
    if (failed_) return;
    try {
      deed();
      const std::string shrunk = takeShrunkFile();
      if (!shrunk.empty()) throw FatalFailure(shrunkFileProblem(shrunk));
    } catch (const FatalFailure& failure) {
      fail(failure.what());
    } catch (const std::exception& fault) {
      // A fault of the program itself; the event loop must not see it either.
      fail(std::string("internal fault: ") + fault.what());
    }
    if (afterEvent) afterEvent();
  }

  [[nodiscard]] bool failed() const noexcept { return failed_; }

 private:
  void fail(const std::string& message) {
    failed_ = true;
    if (onFailure) onFailure(message);
  }

  bool failed_ = false;
};

} // namespace talvora
