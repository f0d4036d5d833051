// A trace of what the program shows, one line for each change: for tests of the real window and for
// people who report a fault.
#pragma once

#include "program/Program.h"

#include <fstream>
#include <string>

namespace talvora {

class StateTrace {
 public:
  /// Writes to a new file of that path.
  StateTrace(const std::string& path, Program& program) : file_(path), program_(program) {}

  /// Writes a line when something has changed since the last one.
  void note();

 private:
  [[nodiscard]] std::string present();

  std::ofstream file_;
  Program& program_;
  std::string last_;
};

} // namespace talvora
