#include "desktop/EndSignals.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace talvora {

namespace {

constexpr std::array endSignals = {SIGTERM, SIGHUP, SIGINT};

// A signal handler is given nothing: the pipe that leads into the event loop stands here.
std::array<int, 2> ends = {-1, -1};

void passOn(int) {
  const int before = errno;
  const char byte = 0;
  // A pipe that is full has told everything already.
  [[maybe_unused]] const ssize_t put = ::write(ends[1], &byte, 1);
  errno = before;
}

} // namespace

EndSignals::EndSignals(std::function<void()> wanted) {
  if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [wanted = std::move(wanted)] {
    std::array<char, 16> bytes{};
    while (::read(ends[0], bytes.data(), bytes.size()) > 0) {
    }
    wanted();
  });
  struct sigaction action {};
  action.sa_handler = passOn;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  for (const int each : endSignals)
    ::sigaction(each, &action, nullptr);
}

EndSignals::~EndSignals() {
  if (!notifier_) return;
  for (const int each : endSignals)
    std::signal(each, SIG_DFL);
  notifier_.reset();
  for (int& end : ends) {
    ::close(end);
    end = -1;
  }
}

} // namespace talvora
