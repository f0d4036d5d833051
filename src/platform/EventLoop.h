// An event loop hands pending events to the program.
#pragma once

#include "platform/Flow.h"

namespace talvora {

class EventLoop {
 public:
  virtual ~EventLoop() = default;

  /// Delivers what is pending and returns. A loop of the program that waits in this way must end
  /// when the answer is Interrupt: the front has something that cannot be delivered inside it.
  virtual Flow letEventsRun() = 0;
  /// The same, paced to the screen: returns when the next animation picture is due.
  virtual Flow letEventsRunUntilNextFrame() = 0;
};

} // namespace talvora
