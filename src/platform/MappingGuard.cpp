#include "platform/MappingGuard.h"

#include "platform/FileSystem.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <mutex>

#include <sys/mman.h>
#include <unistd.h>

namespace talvora {

namespace {

constexpr std::size_t LongestPath = 512;

/// A mapping as the signal handler sees it.
struct Place {
  std::atomic<std::uintptr_t> from = 0; ///< 0 when the place is free
  std::atomic<std::size_t> size = 0;
  std::atomic<bool> shrunk = false;
  std::array<char, LongestPath> path{};
};

// A signal handler is given nothing, so that what it needs stands here.
std::array<Place, 32> places;
std::atomic<std::uintptr_t> pageSize = 0;
std::mutex taking;

/// Puts a page of zeros where a page of a file is no longer, and lets the read go on.
void mend(int signal, siginfo_t* info, void*) {
  const int before = errno;
  const auto at = reinterpret_cast<std::uintptr_t>(info->si_addr);
  for (Place& each : places) {
    const std::uintptr_t from = each.from.load();
    if (from == 0 || at < from || at - from >= each.size.load()) continue;
    const std::uintptr_t page = at - at % pageSize.load();
    void* const zeros =
        ::mmap(reinterpret_cast<void*>(page), // NOLINT: a fault has a number
               pageSize.load(), PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0);
    if (zeros == MAP_FAILED) break;
    each.shrunk.store(true);
    errno = before;
    return;
  }
  // A fault of another kind ends the program as it always would.
  std::signal(signal, SIG_DFL);
}

void watchForFaults() {
  if (pageSize.load() != 0) return;
  pageSize.store(static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE)));
  struct sigaction action {};
  action.sa_sigaction = mend;
  action.sa_flags = SA_SIGINFO;
  ::sigaction(SIGBUS, &action, nullptr);
}

} // namespace

MappingGuard::MappingGuard(const void* from, std::size_t size, const std::string& path)
    : place_(-1) {
  const std::scoped_lock lock(taking);
  watchForFaults();
  for (std::size_t number = 0; number < places.size(); ++number) {
    Place& each = places[number];
    if (each.from.load() != 0) continue;
    each.path.fill('\0');
    std::memcpy(each.path.data(), path.data(), std::min(path.size(), LongestPath - 1));
    each.shrunk.store(false);
    each.size.store(size);
    each.from.store(reinterpret_cast<std::uintptr_t>(from));
    place_ = static_cast<int>(number);
    return;
  }
}

MappingGuard::~MappingGuard() {
  if (place_ >= 0) places[static_cast<std::size_t>(place_)].from.store(0);
}

std::string takeShrunkFile() {
  for (Place& each : places) {
    if (each.from.load() != 0 && each.shrunk.exchange(false)) return each.path.data();
  }
  return {};
}

} // namespace talvora
