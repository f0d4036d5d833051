// The system's calls on files as a test wants them: broken off by signals, or failing. They stand
// in the system's place in the whole program, and pass everything on while nobody wants anything.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>

namespace talvora::test {

/// While it lives, every call that may be broken off by a signal is, each time before it does what
/// it is asked the second time; and a write takes a few bytes only.
class SignalStorm {
 public:
  SignalStorm();
  SignalStorm(const SignalStorm&) = delete;
  SignalStorm& operator=(const SignalStorm&) = delete;
  ~SignalStorm();

  /// The names of the calls that it has met.
  [[nodiscard]] const std::set<std::string>& met() const { return met_; }

 private:
  friend struct SystemCall;

  std::map<std::string, bool> broken_;
  std::set<std::string> met_;
};

/// While it lives, a call of the system fails.
class FailingCall {
 public:
  /// Calls of that name fail with an error of `errno`, from the `from`-th on. An error of 0 means
  /// that the call does nothing and says so: a write of no bytes.
  FailingCall(std::string call, int error, int from = 1);
  FailingCall(const FailingCall&) = delete;
  FailingCall& operator=(const FailingCall&) = delete;
  ~FailingCall();

  /// How often it was made.
  [[nodiscard]] int times() const { return times_; }

 private:
  friend struct SystemCall;

  std::string call_;
  int error_;
  int from_;
  int times_ = 0;
};

} // namespace talvora::test
