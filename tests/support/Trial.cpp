#include "tests/support/Trial.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>

#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

namespace talvora::test {

namespace {

constexpr int KilledExit = 77;
/// How many trials may share a processor before one that waits for its turn counts as hung.
constexpr int MostSharing = 20;

/// Where a trial tells its outcome; -1 outside of one.
int tellTo = -1;

void tell(const std::string& text) {
  for (std::size_t done = 0; done < text.size();) {
    const ssize_t part = ::write(tellTo, text.data() + done, text.size() - done);
    if (part < 0 && errno != EINTR) std::_Exit(EXIT_FAILURE);
    if (part > 0) done += static_cast<std::size_t>(part);
  }
}

std::string readAll(int from) {
  std::string text;
  std::array<char, 4096> bytes{};
  for (;;) {
    const ssize_t part = ::read(from, bytes.data(), bytes.size());
    if (part == 0 || (part < 0 && errno != EINTR)) return text;
    if (part > 0) text.append(bytes.data(), static_cast<std::size_t>(part));
  }
}

void limitTo(std::chrono::seconds patience) {
  const auto most = static_cast<rlim_t>(patience.count());
  const rlimit processor{most, RLIM_INFINITY};
  ::setrlimit(RLIMIT_CPU, &processor);
  ::alarm(static_cast<unsigned>(MostSharing * patience.count()));
}

[[noreturn]] void runTrial(const std::function<std::string()>& trial) {
  std::string told;
  try {
    told = trial();
  } catch (const std::exception& defect) {
    told = std::string("an exception came out: ") + defect.what();
  }
  tell(told);
  ::close(tellTo);
  // What is still held then is a leak, and the sanitizers look for those on the way out.
  std::exit(EXIT_SUCCESS);
}

Outcome::Kind kindOf(int status) {
  if (WIFSIGNALED(status)) {
    const bool late = WTERMSIG(status) == SIGALRM || WTERMSIG(status) == SIGXCPU;
    return late ? Outcome::Kind::Hung : Outcome::Kind::Crashed;
  }
  if (WEXITSTATUS(status) == KilledExit) return Outcome::Kind::Killed;
  return WEXITSTATUS(status) == EXIT_SUCCESS ? Outcome::Kind::Returned : Outcome::Kind::Crashed;
}

std::chrono::duration<double> secondsOf(const timeval& time) {
  return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
}

} // namespace

Outcome tryInChild(const std::function<std::string()>& trial, std::chrono::seconds patience) {
  std::cout.flush();
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no child");
  if (child == 0) {
    ::close(ends[0]);
    tellTo = ends[1];
    limitTo(patience);
    runTrial(trial);
  }
  ::close(ends[1]);
  Outcome outcome;
  outcome.told = readAll(ends[0]);
  ::close(ends[0]);
  int status = 0;
  rusage used{};
  while (::wait4(child, &status, 0, &used) < 0 && errno == EINTR) {
  }
  outcome.kind = kindOf(status);
  outcome.seconds = std::chrono::steady_clock::now() - start;
  outcome.busy = secondsOf(used.ru_utime) + secondsOf(used.ru_stime);
  outcome.peakKilobytes = used.ru_maxrss;
  return outcome;
}

void killTrial(const std::string& told) {
  tell(told);
  std::_Exit(KilledExit);
}

int runTrials(std::string_view program, int (*run)(int argc, char** argv), int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << program << ": " << error.what() << '\n';
    return 2;
  }
}

} // namespace talvora::test
