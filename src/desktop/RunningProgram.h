// One program to a learner's folder: a second start raises the first one's window and ends.
#pragma once

#include <QLocalServer>

#include <functional>
#include <string>

namespace talvora {

/// Listens for second starts as long as it lives.
class RaiseCalls {
 public:
  /// `raise` brings the window to the front.
  RaiseCalls(const std::string& learner, std::function<void()> raise);

 private:
  QLocalServer server_;
};

/// Asks the program that has a learner's folder to come to the front; true when it did.
[[nodiscard]] bool raiseRunningProgram(const std::string& learner);

} // namespace talvora
