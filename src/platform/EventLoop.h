// An event loop hands pending events to the program.
#pragma once

namespace talvora {

/// Whether a loop that lets events run may go on.
enum class Flow { Continue, Interrupt };

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
