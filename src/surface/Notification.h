// A slot for a handler that does not run inside itself.
#pragma once

#include <functional>
#include <memory>
#include <utility>

namespace talvora {

/// What the handler itself does that would call it again is not told. It may replace itself: the
/// one at work is kept to its end.
class Notification {
 public:
  Notification& operator=(std::function<void()> handler) {
    handler_ = handler ? std::make_shared<std::function<void()>>(std::move(handler)) : nullptr;
    return *this;
  }
  void tell() {
    if (!handler_ || running_) return;
    const Running mark(running_);
    const auto held = handler_;
    (*held)();
  }

 private:
  class Running {
   public:
    explicit Running(bool& flag) : flag_(flag) { flag_ = true; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() { flag_ = false; }

   private:
    bool& flag_;
  };

  std::shared_ptr<std::function<void()>> handler_;
  bool running_ = false;
};

} // namespace talvora
