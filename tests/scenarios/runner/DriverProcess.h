// A running talvora-driver, asked line by line.
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace talvora::scenario {

class DriverProcess {
 public:
  /// Starts a program with its options. Throws std::system_error when the machine refuses.
  DriverProcess(const std::string& program, const std::vector<std::string>& options);
  DriverProcess(const DriverProcess&) = delete;
  DriverProcess& operator=(const DriverProcess&) = delete;
  /// Ends the program's input and waits for its end.
  ~DriverProcess();

  /// Sends a line and gives the line that comes back. Throws std::runtime_error when none does.
  [[nodiscard]] std::string ask(const std::string& line);
  /// Ends the program's input and gives its exit code, or -1 when it did not exit by itself.
  [[nodiscard]] int finish();

 private:
  [[nodiscard]] std::string readLine();

  pid_t process_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string received_;
};

} // namespace talvora::scenario
