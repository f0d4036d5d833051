#include "DriverProcess.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace talvora::scenario {

namespace {

constexpr int Failed = 127;

struct Pipe {
  int read = -1;
  int write = -1;
};

[[noreturn]] void throwErrno(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

Pipe makePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) throwErrno("pipe");
  return {ends[0], ends[1]};
}

std::vector<char*> argumentsOf(std::vector<std::string>& words) {
  std::vector<char*> arguments;
  for (std::string& word : words)
    arguments.push_back(word.data());
  arguments.push_back(nullptr);
  return arguments;
}

} // namespace

DriverProcess::DriverProcess(const std::string& program, const std::vector<std::string>& options) {
  // A driver that has ended is told by the missing reply, not by a signal.
  std::signal(SIGPIPE, SIG_IGN);
  std::vector<std::string> words = {program};
  words.insert(words.end(), options.begin(), options.end());
  const std::vector<char*> arguments = argumentsOf(words);
  const Pipe commands = makePipe();
  const Pipe replies = makePipe();
  process_ = ::fork();
  if (process_ < 0) throwErrno("fork");
  if (process_ == 0) {
    ::dup2(commands.read, STDIN_FILENO);
    ::dup2(replies.write, STDOUT_FILENO);
    ::execv(program.c_str(), arguments.data());
    ::_exit(Failed);
  }
  ::close(commands.read);
  ::close(replies.write);
  input_ = commands.write;
  output_ = replies.read;
}

DriverProcess::~DriverProcess() {
  if (process_ > 0) static_cast<void>(finish());
  ::close(output_);
}

std::string DriverProcess::ask(const std::string& line) {
  const std::string sent = line + "\n";
  for (std::size_t done = 0; done < sent.size();) {
    const ssize_t written = ::write(input_, sent.data() + done, sent.size() - done);
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) throw std::runtime_error("the driver takes no more commands");
    done += static_cast<std::size_t>(written);
  }
  return readLine();
}

std::string DriverProcess::readLine() {
  std::array<char, 65536> buffer{};
  std::size_t searched = 0;
  for (;;) {
    const std::size_t end = received_.find('\n', searched);
    if (end != std::string::npos) {
      std::string line = received_.substr(0, end);
      received_.erase(0, end + 1);
      return line;
    }
    searched = received_.size();
    const ssize_t count = ::read(output_, buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) throw std::runtime_error("the driver has ended without a reply");
    received_.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

int DriverProcess::finish() {
  ::close(input_);
  const pid_t process = std::exchange(process_, -1);
  int status = 0;
  while (::waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) return -1;
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace talvora::scenario
