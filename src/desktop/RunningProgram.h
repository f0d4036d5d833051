// One program to a learner's folder: a second start raises the first one's window and ends.
#pragma once

#include <QByteArray>
#include <QSocketNotifier>

#include <functional>
#include <memory>
#include <string>

namespace talvora {

/// Listens for second starts as long as it lives.
class RaiseCalls {
 public:
  /// `raise` brings the window to the front.
  RaiseCalls(const std::string& learner, std::function<void()> raise);
  RaiseCalls(const RaiseCalls&) = delete;
  RaiseCalls& operator=(const RaiseCalls&) = delete;
  ~RaiseCalls();

 private:
  void answer() const;

  QByteArray path_;
  std::function<void()> raise_;
  int socket_ = -1; ///< -1 when nobody can be listened to
  std::unique_ptr<QSocketNotifier> calls_;
};

/// Asks the program that has a learner's folder to come to the front; true when it did.
[[nodiscard]] bool raiseRunningProgram(const std::string& learner);

} // namespace talvora
